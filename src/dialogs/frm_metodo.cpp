#include "dialogs/frm_metodo.h"

#include "check/clsmetodo.h"
#include "dialogs/ricerca_estrazione.h"
#include "platform/rapporto.h"

namespace vaticlo {

frmMetodo::frmMetodo(Programma& programma, Cornice& cornice)
    : Finestra(cornice), metodo(programma.cartella), programma_(programma) {
  Caption("Vaticla");
  for (auto& campo : estrazione.txtestr) {
    campo.Locked = true;
    campo.BackColor(kGrigio);
  }
  for (auto* campo : {&txtgiocabili, &txtvincenti, &txtingioco}) {
    campo->Locked = true;
    campo->BackColor(kGrigio);
  }
  for (int indice : {0, 1})
    metodo.optSelMetodo[static_cast<std::size_t>(indice)].Click = [this, indice] {
      optSelMetodo_Click(indice);
    };
  metodo.cmbMetodo.Click = [this] { cmbMetodo_Click(); };
  estrazione.VScroll1.Change = [this] { VScroll1_Change(); };
  btnTrova.Click = [this] { btnTrova_Click(); };
  btnStampa.Click = [this] { btnStampa_Click(); };
  btnAnnulla.Click = [this] { btnAnnulla_Click(); };
}

void frmMetodo::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({6960, 12660, 200, 630});
  mostraUltima();
}

void frmMetodo::archivioNuovo() {
  mostraUltima();
  if (programma_.globals.UltimaEstrazione > 0) VScroll1_Change();
}

void frmMetodo::mostraUltima() {
  auto& g = programma_.globals;
  g.apriSullUltima(ApriArchivio(programma_.cartella).PrimoIndiceLibero());
  estrazione.VScroll1.Max(g.EstrazioneCorrente);
  estrazione.VScroll1.Value(estrazione.VScroll1.Max());
  visualizza(g.EstrazioneCorrente);
}

void frmMetodo::VScroll1_Change() {
  auto& g = programma_.globals;
  g.EstrazioneCorrente = estrazioneDellaBarra(estrazione.VScroll1);
  visualizza(g.EstrazioneCorrente);
  g.mostra(g.EstrazioneCorrente);
  for (auto& campo : estrazione.txtestr) campo.BackColor(kGrigio);
  verifica();
}

void frmMetodo::optSelMetodo_Click(int indice) {
  // With "Scegli" the list's own event may have run the check just before: it then runs twice, which is
  // meant.
  metodo.optSelMetodo_Click(indice);
  verifica();
}

void frmMetodo::cmbMetodo_Click() { verifica(); }

void frmMetodo::btnTrova_Click() {
  cercaEstrazione(programma_, estrazione.VScroll1, estrazione, [this](int x) { visualizza(x); });
}

void frmMetodo::btnStampa_Click() {
  if (programma_.servizi.mostra({"Stampo la previsione?", "Ambolino", Genere::Domanda}) != Risposta::Si)
    return;
  RichTextBox1.SelLength(0);
  programma_.servizi.stampa(RichTextBox1.Text());
}

void frmMetodo::btnAnnulla_Click() { cornice().chiudi(*this); }

void frmMetodo::visualizza(int n) {
  clsGestione(programma_.cartella, programma_.servizi).Visualizza(estrazione, n);
}

void frmMetodo::verifica() {
  const auto& g = programma_.globals;
  eseguiVerifica(programma_, {metodo.scelta(), estrazione.lblnestr.Caption()});
  txtvincenti.Text(std::to_string(g.ContaVincenti));
  txtgiocabili.Text(std::to_string(g.ContaGiocabili));
  txtingioco.Text(std::to_string(g.ContaInGioco));
  RichTextBox1.Text(testoRapporto(programma_.cartella.file(kFileEsiti)));
}

}  // namespace vaticlo
