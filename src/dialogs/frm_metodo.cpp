#include "dialogs/frm_metodo.h"

#include "check/clsmetodo.h"
#include "check/righe_di_esito.h"
#include "dialogs/ricerca_estrazione.h"
#include "platform/rapporto.h"

namespace vaticlo {

namespace {

Tono tonoDi(RigaDiEsito::Tipo tipo) {
  switch (tipo) {
    case RigaDiEsito::Tipo::Negativo:
      return Tono::Negativo;
    case RigaDiEsito::Tipo::InGioco:
      return Tono::Attesa;
    case RigaDiEsito::Tipo::Vincita:
      break;
  }
  return Tono::Vincita;
}

}  // namespace

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
  btnPrecedente.Click = [this] { btnPrecedente_Click(); };
  btnTrova.tasto = kTastoCerca;
  btnPrecedente.tasto = "Ctrl+PgUp";
  btnSeguente.Click = [this] { btnSeguente_Click(); };
  btnSeguente.tasto = "Ctrl+PgDown";
  btnStampa.Click = [this] { btnStampa_Click(); };
  btnAnnulla.Click = [this] { btnAnnulla_Click(); };
}

void frmMetodo::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({6960, 12660, 200, 630});
  mostraUltima();
}

void frmMetodo::archivioNuovo() {
  previsioni_.reset();
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

void frmMetodo::mostra(const std::string& nome, int n) {
  if (n >= estrazione.VScroll1.Max()) mostraUltima();  // the archive has grown
  metodo.scegliNome(nome);
  if (estrazione.VScroll1.Value() == n + 1)
    VScroll1_Change();
  else
    estrazione.VScroll1.Value(n + 1);
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
  // Meant: with "Scegli" the list's own event may have run the check just before, which then runs twice.
  metodo.optSelMetodo_Click(indice);
  verifica();
}

void frmMetodo::cmbMetodo_Click() { verifica(); }

void frmMetodo::btnTrova_Click() {
  cercaEstrazione(programma_, estrazione.VScroll1, estrazione, [this](int x) { visualizza(x); });
}

void frmMetodo::btnPrecedente_Click() {
  vaiA(previsioni().prima(estrazioneDellaBarra(estrazione.VScroll1)), "prima di");
}

void frmMetodo::btnSeguente_Click() {
  const auto trovata = previsioni().dopo(estrazioneDellaBarra(estrazione.VScroll1));
  vaiA(trovata < estrazione.VScroll1.Max() ? trovata : std::nullopt, "dopo");
}

void frmMetodo::vaiA(std::optional<int> trovata, const char* dove) {
  if (trovata > 0)
    estrazione.VScroll1.Value(*trovata + 1);
  else
    lblNota.Caption(std::string("Non ci sono previsioni ") + dove + " questa estrazione");
}

void frmMetodo::btnStampa_Click() {
  // Meant: the title, which is not the program's name.
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
  rileva();
}

void frmMetodo::rileva() {
  std::vector<AreaTesto::Rilievo> rilievi;
  for (const auto& [riga, tipo] : righeDiEsito(RichTextBox1.Text())) rilievi.push_back({riga, tonoDi(tipo)});
  RichTextBox1.Rilievi(std::move(rilievi));

  const auto archivio = ApriArchivio(programma_.cartella);
  const int mostrata = programma_.globals.EstrazioneBase;
  std::array<std::string, kCampiEstrazione> perche;
  for (const auto& vincente : previsioni().vincentiIn(archivio, mostrata))
    for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k) {
      if (vincente.ruota < 1 || archivio(mostrata, vincente.ruota, k) != vincente.numero) continue;
      auto& campo =
          perche.at(static_cast<std::size_t>((vincente.ruota - 1) * ArchivioEstrazioni::Colonne + k - 1));
      if (campo.find(vincente.vincita) == std::string::npos)
        campo += (campo.empty() ? "" : "\n") + vincente.vincita;
    }
  bool vincenti = false;
  for (std::size_t f = 0; f < perche.size(); ++f) {
    vincenti = vincenti || !perche[f].empty();
    estrazione.txtestr[f].Rilievo(std::move(perche[f]));
  }
  std::string nota = programma_.globals.ContaGiocabili == 0 ? "Nessuna previsione su questa estrazione" : "";
  if (vincenti) nota += (nota.empty() ? "" : " · ") + std::string("In verde i numeri vincenti");
  lblNota.Caption(std::move(nota));
}

const PrevisioniPerEstrazione& frmMetodo::previsioni() {
  const auto scelta = metodo.scelta();
  if (!previsioni_ || scelta != scelta_) {
    scelta_ = scelta;
    previsioni_.emplace(programma_.cartella, scelta_);
  }
  return *previsioni_;
}

}  // namespace vaticlo
