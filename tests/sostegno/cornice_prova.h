#pragma once

#include <string>

#include "forms/finestra.h"

namespace vaticlo::prova {

/// A main window that notes what a dialog asks of it.
class CorniceProva : public Cornice {
 public:
  void chiudiAltre(Finestra& /*tranne*/) override { chiesto += "altre "; }
  void chiudi(Finestra& /*finestra*/) override { chiesto += "chiudi "; }
  void riapri(Finestra& /*finestra*/) override { chiesto += "riapri "; }
  void apriRisultati() override { chiesto += "risultati "; }
  void archivioNuovo() override { chiesto += "nuovo "; }
  void estrazioniAggiunte() override { chiesto += "aggiunte "; }
  void apriConfronto(const Finestra& /*chiede*/, const std::string& metodo) override {
    chiesto += "confronto " + metodo + " ";
  }
  void apriVerifica(const Finestra& /*chiede*/, const std::string& metodo, int estrazione) override {
    chiesto += "verifica " + metodo + " " + std::to_string(estrazione) + " ";
  }
  void lavoro(bool inCorso) override { chiesto += inCorso ? "lavoro " : "libera "; }

  std::string chiesto;
};

}  // namespace vaticlo::prova
