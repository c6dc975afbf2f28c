#include "dialogs/frm_aggiornamento.h"

#include "operations/aggiornamento.h"

namespace vaticlo {

frmAggiornamento::frmAggiornamento(Programma& programma, Cornice& cornice)
    : Finestra(cornice), programma_(programma) {
  Caption("Aggiornamento via Internet");
  btninizia.Click = [this] { btninizia_Click(); };
  btnAnnulla.Click = [this] { btnAnnulla_Click(); };
}

void frmAggiornamento::Form_Load() { prendiMisure({2400, 5400, 900, 3500}); }

void frmAggiornamento::btninizia_Click() {
  ProgressBar1.Value(10);
  const bool riuscito = programma_.servizi.scarica(indirizzoRiserva(), programma_.cartella.riserva());
  programma_.servizi.mostra({riuscito ? "ok" : "No"});
  // The bar runs to its end after the download, whichever way it went: it shows no real progress. Meant.
  for (int v = 2; v <= 10; ++v) ProgressBar1.Value(v * 10);
}

void frmAggiornamento::btnAnnulla_Click() { cornice().chiudi(*this); }

}  // namespace vaticlo
