#include "dialogs/frm_ritardi.h"

#include <utility>

#include "archive/ruota.h"

namespace vaticlo {

namespace {

constexpr std::array kSorti = {Sorte::Numeri, Sorte::Ambi};
constexpr std::array<const char*, 2> kNomiSorti = {"&Numeri", "Am&bi"};
constexpr std::array<const char*, kMisureRitardi.size()> kNomiMisure = {"Ri&tardo", "Ritardo &massimo",
                                                                        "&Frequenza"};

}  // namespace

frmRitardi::frmRitardi(Programma& programma, Cornice& cornice)
    : Finestra(cornice), estrazioni(programma), programma_(programma) {
  Caption("Ritardi e Frequenze");
  for (int ruota = 1; ruota <= kRuote; ++ruota)
    cmbRuota.AddItem(std::string(kTavolaRuote[static_cast<std::size_t>(ruota - 1)].nome), ruota);
  cmbRuota.AddItem("Tutte", kTutte);
  cmbRuota.ListIndex(0);
  cmbRuota.Click = [this] { cmbRuota_Click(); };
  for (std::size_t n = 0; n < optSorte.size(); ++n) {
    optSorte[n].Caption(kNomiSorti[n]);
    optSorte[n].Value(kSorti[n] == sorte_);
    optSorte[n].Click = [this, sorte = kSorti[n]] { optSorte_Click(sorte); };
  }
  for (std::size_t n = 0; n < optMisura.size(); ++n) {
    optMisura[n].Caption(kNomiMisure[n]);
    optMisura[n].Value(kMisureRitardi[n] == misura_);
    optMisura[n].Click = [this, misura = kMisureRitardi[n]] { optMisura_Click(misura); };
  }
  estrazioni.Change = [this] { calcola(); };
  btnCancella.Click = [this] { btnCancella_Click(); };
}

void frmRitardi::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({9300, 14100, 100, 100});
  estrazioni.prendi(ApriArchivio(programma_.cartella));
  calcola();
}

void frmRitardi::archivioNuovo() {
  estrazioni.segui(ApriArchivio(programma_.cartella));
  mostrati_.reset();
  calcola();
  if (mostrati_) return;
  righe.mostra({});
  lblFrase.Caption("");
  grafico.mostra({});
}

void frmRitardi::optSorte_Click(Sorte sorte) {
  sorte_ = sorte;
  for (std::size_t n = 0; n < optSorte.size(); ++n) optSorte[n].Value(kSorti[n] == sorte);
  calcola();
}

void frmRitardi::optMisura_Click(MisuraRitardi misura) {
  misura_ = misura;
  for (std::size_t n = 0; n < optMisura.size(); ++n) optMisura[n].Value(kMisureRitardi[n] == misura);
  righe.ordina({.colonna = colonnaDella(misura), .crescente = false});
  disegna();
}

void frmRitardi::calcola() {
  const auto intervallo = estrazioni.intervallo();
  if (!intervallo) return;  // a number is being typed, and what is shown stays
  auto ritardi = ritardiDi(ApriArchivio(programma_.cartella), cmbRuota.ItemDataScelta(), sorte_, *intervallo);
  CasoDeiRitardi caso(ritardi, sorte_);
  righe.Titolo("Ritardi e frequenze " + dove());
  righe.mostra(ritardi.ruote.empty() ? Tabella() : tabellaColCaso(ritardi, sorte_, caso));
  lblFrase.Caption(fraseDei(ritardi, sorte_, caso, dove()));
  mostrati_ = {sorte_, dove(), std::move(ritardi), std::move(caso)};
  disegna();
}

void frmRitardi::disegna() {
  if (!mostrati_) return;
  const auto& ora = *mostrati_;
  grafico.mostra(disegnoDei(ora.ritardi, ora.sorte, ora.caso, misura_, ora.dove));
}

std::string frmRitardi::dove() const {
  return cmbRuota.ItemDataScelta() == kTutte ? "su tutte le ruote" : "su " + cmbRuota.Text();
}

}  // namespace vaticlo
