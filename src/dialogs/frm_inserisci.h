#pragma once

#include "forms/controlli_estrazione.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// Draw entry: a new draw typed in number by number and appended to the archive.
class frmInserisci : public Finestra {
 public:
  frmInserisci(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  /// The focus is about to leave field f (0 to 54). True when it must stay there; the user has been told why.
  [[nodiscard]] bool txtestr_Validate(int f);
  void btnSalva_Click();
  void btnCancella_Click();

  Etichetta Label1{"Estrazione del"};
  SelettoreData mcdatecombo1;
  std::array<CampoTesto, kCampiEstrazione> txtestr;
  Pulsante btnSalva{"&Salva", "Salva Estrazione"};
  Pulsante btnCancella{"&Esci", "Esci dalla finestra"};

 private:
  [[nodiscard]] const std::string& testo(int f) const {
    return txtestr.at(static_cast<std::size_t>(f)).Text();
  }

  Programma& programma_;
};

}  // namespace vaticlo
