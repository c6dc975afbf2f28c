#pragma once

#include <gtest/gtest.h>

#include "sostegno/scenario.h"
#include "statistics/clsstatistica.h"

namespace vaticlo::prova {

/// A dialog that notes what a run does to it.
class FinestraProva : public FinestraCorsa {
 public:
  [[nodiscard]] SceltaMetodo scelta() const override { return scelto; }
  void prgbar_Value(int valore) override { eventi += " " + std::to_string(valore); }
  void prgbar_Max(int massimo) override { eventi += " max" + std::to_string(massimo); }
  void corsaIniziata() override { eventi += " iniziata"; }
  void corsaInterrotta() override { eventi += " interrotta"; }

  SceltaMetodo scelto;
  std::string eventi;
};

/// Statistics runs in one program, with the scan of method 1 chosen.
class Corsa : public testing::Test {
 protected:
  Corsa() { p.globals().MetodoScelto = 1; }
  void archivio(const ArchivioProva& archivio) {
    archivio.scrivi(p);
    auto& g = p.globals();
    g.UltimaEstrazione = archivio.griglia.PrimoIndiceLibero() - 1;
    g.UltimaEstrazione16 = static_cast<std::int16_t>(g.UltimaEstrazione);
  }
  void corri(int inizio, int fine) {
    frm.eventi.clear();
    clsStatistica statistica(p.programma, frm);
    statistica.Inizia(static_cast<std::int16_t>(inizio), static_cast<std::int16_t>(fine));
    statistica.rilascia();
  }
  [[nodiscard]] std::string stat() const { return p.contenuto("Stat.txt"); }
  [[nodiscard]] std::string vincite() const { return p.contenuto("Vincite.txt"); }
  /// The entries of Vincite.txt, each by its number and the first letter of its method: "1A 3B ".
  [[nodiscard]] std::string voci() const {
    std::string voci;
    std::istringstream righe(vincite());
    for (std::string riga; std::getline(righe, riga);) {
      if (riga.starts_with(" Previsione n.")) voci += riga.substr(15, riga.size() - 16);
      if (riga.starts_with(" Metodo: ")) voci += riga.substr(9, 1) + " ";
    }
    return voci;
  }
  [[nodiscard]] std::string prevGioco() const { return p.contenuto("PrevGioco.txt"); }
  ProgrammaProva p;
  FinestraProva frm;
};

}  // namespace vaticlo::prova
