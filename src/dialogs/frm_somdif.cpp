#include "dialogs/frm_somdif.h"

#include "dialogs/ricerca_estrazione.h"
#include "forms/controlli_estrazione.h"
#include "platform/failure.h"

namespace vaticlo {

frmSomdif::frmSomdif(Programma& programma, Cornice& cornice) : Finestra(cornice), programma_(programma) {
  Caption("Somma/Distanza Estratti");
  optdistciclo.Value(true);
  for (auto& colonna : colonne)
    for (auto& campo : colonna) campo.Locked = true;
  tuttoGrigio();
  VScroll1.Change = [this] { VScroll1_Change(); };
  optdistciclo.Click = [this] { opzione_Click(TipoSomDif::Ciclometrica); };
  optdistmat.Click = [this] { opzione_Click(TipoSomDif::Matematica); };
  optsommat.Click = [this] { opzione_Click(TipoSomDif::Somma); };
  btnTrova.Click = [this] { btnTrova_Click(); };
  btnTrova.tasto = kTastoCerca;
  btnAnnulla.Click = [this] { btnAnnulla_Click(); };
}

void frmSomdif::Form_Load() {
  // Meant: unlike the windows that enter and modify a draw, this one leaves the other child windows open.
  prendiMisure({6630, 11655, 500, 50});
  mostraUltima();
}

void frmSomdif::archivioNuovo() {
  mostraUltima();
  if (programma_.globals.UltimaEstrazione > 0) VScroll1_Change();
}

void frmSomdif::mostraUltima() {
  auto& g = programma_.globals;
  g.EstrazioneSomdif = ApriArchivio(programma_.cartella).PrimoIndiceLibero();
  g.UltimaEstrazione = g.EstrazioneSomdif - 1;
  VScroll1.Max(g.EstrazioneSomdif);
  VScroll1.Value(VScroll1.Max());
}

void frmSomdif::VScroll1_Change() {
  programma_.globals.EstrazioneSomdif = estrazioneDellaBarra(VScroll1);
  tuttoGrigio();
  visualizza(programma_.globals.EstrazioneSomdif);
}

void frmSomdif::opzione_Click(TipoSomDif tipo) {
  optdistciclo.Value(tipo == TipoSomDif::Ciclometrica);
  optdistmat.Value(tipo == TipoSomDif::Matematica);
  optsommat.Value(tipo == TipoSomDif::Somma);
  tuttoGrigio();
  visualizza(programma_.globals.EstrazioneSomdif);
}

void frmSomdif::btnTrova_Click() {
  cercaEstrazione(programma_, VScroll1, trovata_, [this](int x) { visualizza(x); });
}

void frmSomdif::btnAnnulla_Click() { cornice().chiudi(*this); }

void frmSomdif::visualizza(int n) {
  clsGestione(programma_.cartella, programma_.servizi).VisualizzaSomDif(valori_, n);
}

void frmSomdif::tuttoGrigio() {
  for (auto& colonna : colonne)
    for (auto& campo : colonna) campo.BackColor(kGrigio);
}

std::optional<TipoSomDif> frmSomdif::ValoriMostrati::opzione() const {
  if (frm_.optdistciclo.Value()) return TipoSomDif::Ciclometrica;
  if (frm_.optdistmat.Value()) return TipoSomDif::Matematica;
  if (frm_.optsommat.Value()) return TipoSomDif::Somma;
  return std::nullopt;
}

void frmSomdif::ValoriMostrati::txtestr_Mostra(int colonna, int i, const std::string& testo) {
  frm_.colonne.at(static_cast<std::size_t>(colonna)).at(static_cast<std::size_t>(i)).mostra(testo);
}

void frmSomdif::ValoriMostrati::txtestr_Giallo(int colonna, int i) {
  frm_.colonne.at(static_cast<std::size_t>(colonna)).at(static_cast<std::size_t>(i)).BackColor(kGiallo);
}

void frmSomdif::EstrazioneTrovata::txtestr_Mostra(int f, const std::string& testo) {
  if (f < 0 || f >= kRuoteSomDif) throw RuntimeFailure(Errore::ElementoInesistente);
  frm_.colonne[0][static_cast<std::size_t>(f)].mostra(testo);
}

}  // namespace vaticlo
