#include <iostream>

#include "console/comandi/avvisi.h"
#include "console/comandi/comandi.h"
#include "console/cornice_vuota.h"
#include "console/sessione.h"
#include "console/uscita.h"
#include "dialogs/frm_prev.h"
#include "dialogs/frm_vinc.h"

namespace vaticlo::comandi {

namespace {

Esito cerca(Sessione& sessione, ElencoScansione& frm, const Argomenti& argomenti) {
  const auto metodo = argomenti.seDato("--metodo");
  avvisaDeiMetodi(sessione.programma(), metodo);
  if (metodo) frm.metodo.scegliNome(*metodo);
  frm.Form_Load();
  const bool nessuna = frm.lblPrev.Visible();
  stampa({.oggetto = {{"previsioni", sessione.programma().globals.ContaGiocabili},
                      {"rapporto", nessuna ? "" : frm.RichTextBox1.Text()}},
          .testo =
              [&] {
                if (nessuna)
                  std::cout << frm.lblPrev.Caption() << '\n';
                else
                  std::cout << frm.RichTextBox1.Text();
              }},
         argomenti);
  return esitoDeiRapporti(sessione.programma());
}

}  // namespace

Esito inGioco(Sessione& sessione, const Argomenti& argomenti) {
  CorniceVuota cornice;
  frmPrev frm(sessione.programma(), cornice);
  return cerca(sessione, frm, argomenti);
}

Esito vincenti(Sessione& sessione, const Argomenti& argomenti) {
  const int ultime = argomenti.intero("--ultime");
  if (ultime < frmVinc::kMinimoUltime || ultime > frmVinc::kMassimoUltime)
    throw UsoErrato("--ultime va da " + std::to_string(frmVinc::kMinimoUltime) + " a " +
                    std::to_string(frmVinc::kMassimoUltime) + ", non " + argomenti["--ultime"]);
  CorniceVuota cornice;
  frmVinc frm(sessione.programma(), cornice);
  frm.txtColpi.Text(std::to_string(ultime));
  return cerca(sessione, frm, argomenti);
}

}  // namespace vaticlo::comandi
