#pragma once

#include <array>

#include "archive/clsgestione.h"
#include "forms/controlli.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// Draw entry: a new draw typed in number by number and appended to the archive.
class frmInserisci : public Finestra, private ModuloEstrazione {
 public:
  frmInserisci(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override { btnCancella_Click(); }
  void estrazioniAggiunte() override {}
  /// The focus is about to leave field f (0 to 54). True when it must stay there; a message has said why.
  [[nodiscard]] bool txtestr_Validate(int f);
  void btnSalva_Click();
  void btnCancella_Click();

  Etichetta Label1{"Estrazione del"};
  SelettoreData mcdatecombo1;
  std::array<CampoTesto, kCampiEstrazione> txtestr;
  Pulsante btnSalva{"&Salva", "Salva Estrazione"};
  Pulsante btnCancella{"&Esci", "Esci dalla finestra"};

 private:
  [[nodiscard]] std::string txtestr_Text(int f) const override {
    return txtestr.at(static_cast<std::size_t>(f)).Text();
  }
  [[nodiscard]] std::optional<Data> mcdatecombo1_Value() const override { return mcdatecombo1.Value(); }
  [[nodiscard]] std::string lbldataestr_Caption() const override { return {}; }

  Programma& programma_;
};

}  // namespace vaticlo
