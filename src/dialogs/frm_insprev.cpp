#include "dialogs/frm_insprev.h"

#include <optional>

#include "dialogs/estremo_digitato.h"
#include "forms/controlli_metodo.h"
#include "methods/cartella_metodi.h"
#include "methods/giocata_in_parole.h"
#include "methods/spiegazioni.h"
#include "platform/blocco.h"
#include "platform/conversione.h"
#include "platform/due_cifre.h"
#include "platform/failure.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

constexpr int kColpiOfferti = 30;
constexpr int kColpiIniziali = 10;

// Meant: the double slash before the year.
std::string voceDiElenco(const FileMetodo& metodo, int slot) {
  return "Previsione n." + std::to_string(slot) + " del " + dueCifre(metodo(slot, kCampoData, 1)) + "/" +
         dueCifre(metodo(slot, kCampoData, 2)) + "//" + std::to_string(metodo(slot, kCampoData, 3)) +
         dueCifre(metodo(slot, kCampoData, 4));
}

}  // namespace

frmInsPrev::frmInsPrev(Programma& programma, Cornice& cornice) : Finestra(cornice), programma_(programma) {
  offriMetodi(cmbMetodo, programma.cartella);
  for (auto& campo : estrazione.txtestr) {
    campo.Locked = true;
    campo.BackColor(kGrigio);
  }
  txtNum.esempio = "Es. 899.11.22.33";
  txtRuote.esempio = "Es.:Ba-Ca-Tutte";
  txtAmbate.esempio = "Es.:21;36";
  txtAmbi.esempio = "Es.:15-50;25-12;66-10";
  txtSup.esempio = "Es.:15-50-66-71;25-12-10";
  estrazione.VScroll1.Change = [this] { VScroll1_Change(); };
  cmbMetodo.Click = [this] { cmbMetodo_Click(); };
  cmbMetodo.Change = [this] { cmbMetodo_Change(); };
  cmbPrevisione.Click = [this] { cmbPrevisione_Click(); };
  btnElabora.Click = [this] { btnElabora_Click(); };
  btnElimina.Click = [this] { btnElimina_Click(); };
  btnCancella.Click = [this] { btnCancella_Click(); };
  txtVai.esempio = "n. o data";
  txtVai.Invio = [this] { txtVai_Invio(); };
  for (int codice = 1; codice <= kTutte; ++codice) {
    auto& pulsante = btnRuota.at(static_cast<std::size_t>(codice - 1));
    pulsante.Caption(std::string(SiglaRuotaTutte(codice)));
    pulsante.Click = [this, codice] { btnRuota_Click(codice); };
  }
  for (auto* campo : {&txtRuote, &txtAmbate, &txtAmbi, &txtSup}) campo->Change = [this] { rileggi(); };
  cmbColpi.Click = [this] { rileggi(); };
}

void frmInsPrev::Form_Load() {
  modifica_ = programma_.globals.PrevisioneInModifica;
  Caption(modifica_ ? "Modifica Previsione" : "Inserisci Previsione");
  Frame10.Visible(modifica_);
  btnElimina.Visible(modifica_);
  cornice().chiudiAltre(*this);
  prendiMisure({8970, 12930, 1000, 2000});
  mostraUltima();
  for (int colpi = 1; colpi <= kColpiOfferti; ++colpi) cmbColpi.AddItem(std::to_string(colpi));
  cmbColpi.Text(std::to_string(kColpiIniziali));
}

void frmInsPrev::archivioNuovo() {
  if (modifica_) {
    btnCancella_Click();  // its number may stand for another draw now
    return;
  }
  mostraUltima();
  VScroll1_Change();
}

void frmInsPrev::mostraUltima() {
  auto& corrente = programma_.globals.EstrazioneCorrente;
  corrente = ApriArchivio(programma_.cartella).PrimoIndiceLibero();
  estrazione.VScroll1.Max(corrente);
  estrazione.VScroll1.Value(estrazione.VScroll1.Max());
  visualizza(corrente);
}

void frmInsPrev::VScroll1_Change() {
  programma_.globals.EstrazioneCorrente = estrazioneDellaBarra(estrazione.VScroll1);
  visualizza(programma_.globals.EstrazioneCorrente);
}

void frmInsPrev::cmbMetodo_Click() {
  if (!modifica_) return;
  cmbPrevisione.Clear();
  if (!esisteMetodo(programma_.cartella, cmbMetodo.Text())) {
    rifiuta("Non esiste il file del metodo selezionato!", Icona::Nessuna);
    return;
  }
  const auto metodo = LeggiMetodo(programma_.cartella, cmbMetodo.Text());
  try {
    const int elencate = ContaElencate(metodo);
    for (int slot = 1; slot <= elencate; ++slot) cmbPrevisione.AddItem(voceDiElenco(metodo, slot), slot);
  } catch (RuntimeFailure& failure) {
    failure.spiega(dieciPrevisioni(cmbMetodo.Text()));
    throw;
  }
  txtRuote.Text("");
  txtAmbate.Text("");
  txtAmbi.Text("");
  txtSup.Text("");
  rileggi();
}

// The predictions listed are those of another method than the one typed.
void frmInsPrev::cmbMetodo_Change() { cmbPrevisione.Clear(); }

void frmInsPrev::cmbPrevisione_Click() {
  const auto metodo = LeggiMetodo(programma_.cartella, cmbMetodo.Text());
  const int slot = cmbPrevisione.ItemDataScelta();
  visualizza(metodo.EstrazioneCalcolo(slot));  // Meant: the scroll bar stays where it is.
  const auto testi = testiDi(metodo, slot);
  txtNum.Text(testi.numero);
  txtRuote.Text(testi.ruote);
  cmbColpi.Text(testi.colpi);
  txtAmbate.Text(testi.ambate);
  txtAmbi.Text(testi.ambi);
  txtSup.Text(testi.sup);
  rileggi();
}

void frmInsPrev::rileggi() { lblLettura.Caption(giocataInParole(testi()).testo); }

void frmInsPrev::btnRuota_Click(int codice) {
  const auto sigla = maiuscolo(SiglaRuotaTutte(codice));
  std::string ruote;
  bool tolta = false;
  for (const auto parola : dividi(senzaBlanchi(txtRuote.Text()), '-')) {
    if (maiuscolo(senzaBlanchi(parola)) == sigla)
      tolta = true;
    else
      ruote.append(ruote.empty() ? "" : "-").append(parola);
  }
  if (!tolta) ruote.append(ruote.empty() ? "" : "-").append(SiglaRuotaTutte(codice));
  txtRuote.Text(ruote);
  rileggi();
}

void frmInsPrev::txtVai_Invio() {
  const int ultima = estrazione.VScroll1.Max() - 1;
  int n = 0;
  if (const auto numero = interoTra(txtVai.Text(), 1, ultima))
    n = *numero;
  else if (const auto data = dataDigitata(txtVai.Text()))
    n = cercaData(ApriArchivio(programma_.cartella),
                  {giorno(*data), mese(*data), annoDueCifre(*data), anno(*data) / 100}, ultima);
  if (n < 1 || n > ultima) {
    rifiuta(ultima < 1 ? kSenzaEstrazioni
                       : "Scrivete il numero di un'estrazione, da 1 a " + std::to_string(ultima) +
                             ", o la data di una che c'è.");
    return;
  }
  if (estrazione.VScroll1.Value() == n + 1)
    VScroll1_Change();  // a prediction may be on the screen with its own draw
  else
    estrazione.VScroll1.Value(n + 1);
}

TestiPrevisione frmInsPrev::testiDi(const FileMetodo& metodo, int slot) const {
  try {
    return leggiTesti(metodo, slot);
  } catch (RuntimeFailure& failure) {
    failure.spiega(previsioneIlleggibile(cmbMetodo.Text(), slot));
    throw;
  }
}

void frmInsPrev::btnElimina_Click() {
  if (senzaBlanchi(cmbPrevisione.Text()).empty()) {
    rifiuta("Nessuna previsione selezionata!");
    return;
  }
  const auto risposta = programma_.servizi.mostra(
      {"Sicuro di eliminare la previsione?", "Attenzione", Genere::Domanda, Icona::Nessuna, Risposta::No});
  if (risposta != Risposta::Si) return;
  try {
    std::optional<BloccoCartella> blocco(std::in_place, programma_.cartella.radice());
    const auto metodo = LeggiMetodo(programma_.cartella, cmbMetodo.Text());
    // Meant: this always fails, so a delete ends in its failure message and changes nothing.
    ScriviMetodo(programma_.cartella, cmbMetodo.Text(),
                 SenzaPrevisione(metodo, cmbPrevisione.ItemDataScelta()));
    blocco.reset();
    programma_.servizi.mostra({"Previsione Eliminata!", ""});
    ricomincia();
  } catch (const RuntimeFailure&) {
    rifiuta("Errore nell'eliminaizione della previsione!");  // Meant: the slip in the text.
  }
}

void frmInsPrev::btnCancella_Click() { cornice().chiudi(*this); }

void frmInsPrev::visualizza(int n) {
  clsGestione(programma_.cartella, programma_.servizi).Visualizza(estrazione, n);
}

bool frmInsPrev::rifiuta(const std::string& testo, Icona icona) {
  programma_.servizi.mostra({testo, "Attenzione", Genere::Rifiuto, icona});
  return false;
}

}  // namespace vaticlo
