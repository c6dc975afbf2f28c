#pragma once

#include "forms/finestra.h"

namespace vaticlo {

/// The main window of a program without windows: no other dialog is open, and closing one does nothing.
class CorniceVuota : public Cornice {
 public:
  void chiudiAltre(Finestra& /*tranne*/) override {}
  void chiudi(Finestra& /*finestra*/) override {}
  void riapri(Finestra& /*finestra*/) override {}
  void apriRisultati() override {}
  void apriConfronto(const Finestra& /*chiede*/, const std::string& /*metodo*/) override {}
  void apriVerifica(const Finestra& /*chiede*/, const std::string& /*metodo*/, int /*estrazione*/) override {}
  void lavoro(bool /*inCorso*/) override {}
  void archivioNuovo() override {}
  void estrazioniAggiunte() override {}
};

}  // namespace vaticlo
