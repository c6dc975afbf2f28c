#include "dialogs/frm_ritardi.h"

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
  calcola();
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
  ritardi_ = ritardiDi(ApriArchivio(programma_.cartella), cmbRuota.ItemDataScelta(), sorte_, *intervallo);
  const auto& caso = caso_.emplace(ritardi_, sorte_);
  righe.Titolo("Ritardi e frequenze " + dove());
  righe.mostra(ritardi_.ruote.empty() ? Tabella() : tabellaColCaso(ritardi_, sorte_, caso));
  lblFrase.Caption(fraseDei(ritardi_, sorte_, caso, dove()));
  disegna();
}

void frmRitardi::disegna() {
  if (caso_) grafico.mostra(disegnoDei(ritardi_, sorte_, *caso_, misura_, dove()));
}

std::string frmRitardi::dove() const {
  return cmbRuota.ItemDataScelta() == kTutte ? "su tutte le ruote" : "su " + cmbRuota.Text();
}

}  // namespace vaticlo
