#include "dialogs/elenco_scansione.h"

#include "platform/rapporto.h"

namespace vaticlo {

ElencoScansione::ElencoScansione(Programma& programma, Cornice& cornice)
    : Finestra(cornice), metodo(programma.cartella), programma_(programma) {
  for (int indice : {0, 1})
    metodo.optSelMetodo[static_cast<std::size_t>(indice)].Click = [this, indice] {
      optSelMetodo_Click(indice);
    };
  metodo.cmbMetodo.Click = [this] { btnCerca_Click(); };
  btnCancella.Click = [this] { btnCancella_Click(); };
  txtColpi.Text("1");
}

void ElencoScansione::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({7125, 7635, 1000, 3000});
  btnCerca_Click();
}

void ElencoScansione::optSelMetodo_Click(int indice) {
  // With "Scegli" the list's own event may have run the scan just before: it then runs twice, which is meant.
  metodo.optSelMetodo_Click(indice);
  btnCerca_Click();
}

void ElencoScansione::btnCerca_Click() {
  if (inCorso_) {
    daRifare_ = true;  // the selection has changed under a scan: another follows
    return;
  }
  do {
    daRifare_ = false;
    cerca();
  } while (daRifare_);
}

void ElencoScansione::cerca() {
  inCorso_ = true;
  btnCancella.Enabled(false);
  prgbar.Visible(true);
  RichTextBox1.Visible(false);
  lblPrev.Visible(false);
  std::filesystem::path rapporto;
  try {
    rapporto = scansione();
  } catch (...) {
    inCorso_ = false;
    throw;
  }
  inCorso_ = false;
  btnCancella.Enabled(true);
  prgbar.Visible(false);
  RichTextBox1.Text(testoRapporto(rapporto));
}

void ElencoScansione::btnCancella_Click() { cornice().chiudi(*this); }

void ElencoScansione::mostraRapporto(bool qualcosa) {
  lblPrev.Visible(!qualcosa);
  RichTextBox1.Visible(qualcosa);
  btnStampa.Enabled(qualcosa);
}

frmPrev::frmPrev(Programma& programma, Cornice& cornice) : ElencoScansione(programma, cornice) {
  Caption("Previsioni in Gioco");
  lblPrev.Caption("Non ci sono previsioni in gioco");
  btnStampa.Click = [this] { btnStampa_Click(); };
}

std::filesystem::path frmPrev::scansione() {
  ScansionePrevisioni(programma_, *this).PrevInGioco();
  return programma_.cartella.prevGioco();
}

void frmPrev::btnStampa_Click() {
  if (programma_.servizi.mostra({"Stampo la previsione?", "Ambolino", Pulsanti::SiNo}) == Risposta::Si)
    programma_.servizi.stampa(RichTextBox1.Text());
}

frmVinc::frmVinc(Programma& programma, Cornice& cornice) : ElencoScansione(programma, cornice) {
  Caption("Vincenti alle ultime Estrazioni");
  lblPrev.Caption("Non ci sono previsioni vincenti");
}

std::filesystem::path frmVinc::scansione() {
  ScansionePrevisioni(programma_, *this).PrevVincenti();
  return programma_.cartella.vincenti();
}

void frmVinc::UpDown1_Change(int ultime) {
  txtColpi.Text(std::to_string(ultime));
  btnCerca_Click();
}

}  // namespace vaticlo
