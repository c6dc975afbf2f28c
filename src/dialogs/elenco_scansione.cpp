#include "dialogs/elenco_scansione.h"

#include <utility>

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

void ElencoScansione::evento(const std::function<void()>& passi) {
  if (inCorso_) {
    inAttesa_.push_back(passi);
    return;
  }
  const bool daSolo = !std::exchange(inEvento_, true);
  passi();
  if (!daSolo) return;
  for (; !inAttesa_.empty(); inAttesa_.pop_front()) inAttesa_.front()();
  inEvento_ = false;
}

void ElencoScansione::optSelMetodo_Click(int indice) {
  evento([this, indice] {
    // With "Scegli" the list's own event may have run the scan just before: it then runs twice, which is
    // meant.
    metodo.optSelMetodo_Click(indice);
    btnCerca_Click();
  });
}

void ElencoScansione::btnCerca_Click() {
  evento([this] { cerca(); });
}

void ElencoScansione::cerca() {
  prgbar.Visible(true);
  RichTextBox1.Visible(false);
  lblPrev.Visible(false);
  inCorso_ = true;
  std::filesystem::path rapporto;
  try {
    rapporto = scansione();
  } catch (...) {
    inCorso_ = false;
    throw;
  }
  inCorso_ = false;
  prgbar.Visible(false);
  RichTextBox1.Text(testoRapporto(rapporto));
}

void ElencoScansione::btnCancella_Click() {
  evento([this] { cornice().chiudi(*this); });
}

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
  evento([this] {
    if (programma_.servizi.mostra({"Stampo la previsione?", "Ambolino", Pulsanti::SiNo}) == Risposta::Si)
      programma_.servizi.stampa(RichTextBox1.Text());
  });
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
  evento([this, ultime] {
    txtColpi.Text(std::to_string(ultime));
    btnCerca_Click();
  });
}

}  // namespace vaticlo
