#include "dialogs/frm_caso.h"

#include <atomic>
#include <cmath>
#include <future>

#include "analysis/parole_confronto.h"
#include "analysis/tabelle.h"
#include "dialogs/quanti.h"
#include "methods/cartella_metodi.h"
#include "methods/catalogo.h"
#include "platform/conversione.h"

namespace vaticlo {

namespace {

constexpr std::chrono::milliseconds kRespiro{20};  // between two turns of the pending events
constexpr int kSemeMassimo = 999'999'999;
constexpr std::array<const char*, kFigureCaso.size()> kNomiFigure = {"Quante vincen&ti", "A quale c&olpo",
                                                                     "&Nel tempo"};

/// Whatever ends a piece of work ends its runs too.
class Fermata {
 public:
  explicit Fermata(std::stop_source& fonte) : fonte_(fonte) {}
  Fermata(const Fermata&) = delete;
  Fermata& operator=(const Fermata&) = delete;
  ~Fermata() { fonte_.request_stop(); }

 private:
  std::stop_source& fonte_;
};

}  // namespace

std::string testoRimasto(int fatte, int prove, std::chrono::milliseconds trascorso) {
  if (fatte == 0) return "";
  const double secondi = static_cast<double>(trascorso.count()) / 1000 * (prove - fatte) / fatte;
  if (secondi < 60) return "ancora " + quanti(static_cast<int>(std::ceil(secondi)), "secondo", "secondi");
  return "ancora " + quanti(static_cast<int>(std::lround(secondi / 60)), "minuto", "minuti");
}

frmCaso::frmCaso(Programma& programma, Cornice& cornice)
    : Finestra(cornice), metodo(programma.cartella), estrazioni(programma), programma_(programma) {
  Caption("Il Metodo e il Caso");
  for (int indice : {0, 1})
    metodo.optSelMetodo[static_cast<std::size_t>(indice)].Click = [this, indice] {
      optSelMetodo_Click(indice);  // no run: the choice is read when one starts
    };
  for (std::size_t n = 0; n < optFigura.size(); ++n) {
    optFigura[n].Caption(kNomiFigure[n]);
    optFigura[n].Value(kFigureCaso[n] == figura_);
    optFigura[n].Click = [this, figura = kFigureCaso[n]] { optFigura_Click(figura); };
  }
  confronti.Titolo("Il Metodo e il Caso");
  confronti.Change = [this] { confronti_Change(); };
  btnElabora.Click = [this] { btnElabora_Click(); };
  btnStop.Click = [this] { btnStop_Click(); };
  btnStop.Enabled(false);
  btnCancella.Click = [this] { btnCancella_Click(); };
}

void frmCaso::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({9600, 14700, 100, 100});
  estrazioni.prendi(ApriArchivio(programma_.cartella));
  txtprove.Text(std::to_string(OpzioniProve().prove));
  txtseme.Text(std::to_string(OpzioniProve().seme));
  prgbar.Visible(false);
  lblFrase.Caption(
      "Una scelta alla cieca avrebbe fatto lo stesso? Premete Elabora: le previsioni concluse vengono "
      "giocate "
      "in tanti archivi estratti a caso.");
  mostraScelto();
}

void frmCaso::archivioNuovo() {
  estrazioni.segui(ApriArchivio(programma_.cartella));
  risultati_.clear();
  confronti.mostra({});
  lblFrase.Caption("L'archivio è cambiato: premete di nuovo Elabora.");
  lblAvvertenza.Caption("");
  mostraScelto();
}

void frmCaso::optFigura_Click(FiguraCaso figura) {
  figura_ = figura;
  for (std::size_t n = 0; n < optFigura.size(); ++n) optFigura[n].Value(kFigureCaso[n] == figura);
  mostraScelto();
}

void frmCaso::confronti_Change() { mostraScelto(); }

void frmCaso::btnCancella_Click() { cornice().chiudi(*this); }

void frmCaso::btnElabora_Click() {
  const auto richiesta = leggiRichiesta();
  if (!richiesta) return;
  inCorso(true);
  try {
    risultati_ = esegui(*richiesta);
  } catch (...) {
    inCorso(false);
    throw;
  }
  inCorso(false);

  const int fatte = risultati_.empty() ? 0 : risultati_.front().prove;
  lblRimasto.Caption(risultati_.empty() ? ""
                     : fatte < richiesta->opzioni.prove
                         ? "Fermato dopo " + quanti(fatte, "prova", "prove") + " su " +
                               std::to_string(richiesta->opzioni.prove)
                         : quanti(fatte, "prova", "prove") + " col seme " +
                               std::to_string(richiesta->opzioni.seme));
  const auto metodi = risultati_.size() > 1 ? risultati_.size() - 1 : risultati_.size();
  lblAvvertenza.Caption(avvertenzaPer(metodi));
  confronti.mostra(tabellaDei(risultati_));
  if (!risultati_.empty() && !confronti.scelta()) confronti.scegli({risultati_.size() - 1});
  if (risultati_.empty()) lblFrase.Caption("Nessuna previsione conclusa in queste estrazioni.");
  mostraScelto();
}

std::optional<frmCaso::Richiesta> frmCaso::leggiRichiesta() {
  const auto intervallo = estrazioni.leggi();
  if (!intervallo) return std::nullopt;
  const auto prove = interoTra(txtprove.Text(), 1, kProveAlMassimo);
  if (!prove) {
    rifiuta("Le prove devono essere da 1 a " + std::to_string(kProveAlMassimo) + "!", txtprove);
    return std::nullopt;
  }
  const auto seme = interoTra(txtseme.Text(), 0, kSemeMassimo);
  if (!seme) {
    rifiuta("Il seme dev'essere un numero da 0 a " + std::to_string(kSemeMassimo) + "!", txtseme);
    return std::nullopt;
  }
  if (const auto scelta = metodo.scelta(); !scelta.tutti && !esisteMetodo(programma_.cartella, scelta.nome)) {
    programma_.servizi.mostra(
        {"Non esiste il file del metodo selezionato!", "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
    return std::nullopt;
  }
  return Richiesta{*intervallo, {.prove = *prove, .seme = static_cast<std::uint64_t>(*seme)}};
}

void frmCaso::rifiuta(const std::string& testo, CampoTesto& campo) {
  programma_.servizi.mostra({testo, "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
  campo.SetFocus();
}

std::vector<Confronto> frmCaso::esegui(const Richiesta& richiesta) {
  fermata_ = std::stop_source();
  const auto elenco = metodiDaGiudicare(programma_.cartella, metodo.scelta());
  std::atomic<int> fatte = 0;
  // In a thread of its own: also what comes before the runs may take long.
  auto lavoro = std::async(std::launch::async, [&] {
    const auto archivio = ApriArchivio(programma_.cartella);
    return confrontaColCaso(giudicaMetodi(programma_.cartella, archivio, elenco, richiesta.intervallo),
                            archivio, richiesta.opzioni, fermata_.get_token(),
                            [&](int quante) { fatte = quante; });
  });
  const Fermata allaFine(fermata_);
  const auto inizio = std::chrono::steady_clock::now();
  while (lavoro.wait_for(kRespiro) != std::future_status::ready) {
    const int ora = fatte;
    prgbar.Value(ora);
    lblRimasto.Caption(testoRimasto(
        ora, richiesta.opzioni.prove,
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - inizio)));
    programma_.servizi.eventiInAttesa();
  }
  return lavoro.get();
}

void frmCaso::inCorso(bool corre) {
  btnStop.Enabled(corre);  // with it the window is occupied, or is no more
  if (corre) {
    cornice().lavoro(true);
    prgbar.Max(interoTra(txtprove.Text(), 1, kProveAlMassimo).value_or(1));
    prgbar.Value(0);
    lblRimasto.Caption("");
  }
  prgbar.Visible(corre);
  btnElabora.Enabled(!corre);
  btnCancella.Enabled(!corre);
  if (!corre) cornice().lavoro(false);
}

void frmCaso::mostraScelto() {
  const auto scelta = confronti.scelta();
  if (!scelta || *scelta >= risultati_.size()) {
    grafico.mostra({});
    cifre.mostra({});
    return;
  }
  const auto& confronto = risultati_[*scelta];
  const auto archivio = ApriArchivio(programma_.cartella);
  lblFrase.Caption(confronto.nome + ": " + fraseDel(confronto));
  grafico.mostra(disegnoDel(confronto, figura_, archivio));
  cifre.Titolo(grafico.disegno().titolo);
  cifre.mostra(cifreDel(confronto, figura_, archivio));
}

}  // namespace vaticlo
