#include "dialogs/frm_quadro.h"

#include <algorithm>
#include <utility>

#include "analysis/elenco_previsioni.h"
#include "analysis/tabelle.h"
#include "dialogs/quanti.h"
#include "methods/cartella_metodi.h"
#include "methods/catalogo.h"
#include "platform/failure.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

constexpr std::size_t kMetodiPerVolta = 200;  // judged before the screen gets its turn
constexpr std::size_t kPassiRicordati = 50;

std::vector<std::string> nomiDei(const CartellaProgramma& cartella) {
  auto nomi = CaricaElencoMetodi(cartella, {}, NomeSenzaDat::VoceVuota);
  std::erase(nomi, "");  // a file without ".dat" is no method
  return nomi;
}

std::string tra(const std::string& nome) { return "\"" + nome + "\""; }

/// "spostata" one, "spostate" several.
std::string participio(const std::string& radice, const std::vector<int>& slot) {
  return radice + (slot.size() == 1 ? "a " : "e ");
}

/// "la previsione n. 3", "le previsioni n. 1, 3, 5".
std::string lePrevisioni(const std::vector<int>& slot) {
  std::string testo = slot.size() == 1 ? "la previsione n. " : "le previsioni n. ";
  for (std::size_t n = 0; n < slot.size(); ++n) testo += (n > 0 ? ", " : "") + std::to_string(slot[n]);
  return testo;
}

std::string maiuscoloInizio(const std::string& testo) {
  return maiuscolo(testo.substr(0, 1)) + testo.substr(1);
}

}  // namespace

frmQuadro::frmQuadro(Programma& programma, Cornice& cornice) : Finestra(cornice), programma_(programma) {
  Caption("Quadro dei Metodi");
  for (auto* campo : {&txtDal, &txtAl}) {
    campo->InvioComeTab = true;
    campo->esempio = "numero o data";
  }
  txtFiltro.esempio = "Filtra per nome o stato";
  txtDal.Validate = [this] { return txtDal_Validate(); };
  txtAl.Validate = [this] { return txtAl_Validate(); };
  txtFiltro.Change = [this] { txtFiltro_Change(); };
  metodi.Change = [this] { metodi_Change(); };
  metodi.Apri = [this] { metodi_Apri(); };
  previsioni.Change = [this] { previsioni_Change(); };
  previsioni.Apri = [this] { btnVerifica_Click(); };
  btnArchivio.Click = [this] { btnArchivio_Click(); };
  btnVerifica.Click = [this] { btnVerifica_Click(); };
  btnCaso.Click = [this] { btnCaso_Click(); };
  btnTogli.Click = [this] { btnTogli_Click(); };
  btnCopia.Click = [this] { btnCopia_Click(); };
  btnSposta.Click = [this] { btnSposta_Click(); };
  btnDuplica.Click = [this] { btnDuplica_Click(); };
  btnAnnulla.Click = [this] { btnAnnulla_Click(); };
  btnEsci.Click = [this] { btnEsci_Click(); };
  btnEsci.CausesValidation = false;
  prgbar.Visible(false);
}

void frmQuadro::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({9900, 15900, 100, 100});
  tuttoArchivio();
  mostraPulsanti();
}

void frmQuadro::Form_Activate() { aggiorna(); }

void frmQuadro::archivioNuovo() {
  tuttoArchivio();
  aggiorna();
}

void frmQuadro::tuttoArchivio() {
  archivio_ = ApriArchivio(programma_.cartella);
  ultima_ = archivio_.PrimoIndiceLibero() - 1;
  intervallo_ = {1, ultima_};
  mostraIntervallo();
}

void frmQuadro::aggiorna() {
  if (inCorso_) return;
  archivio_ = ApriArchivio(programma_.cartella);
  const int ultimaPrima = std::exchange(ultima_, archivio_.PrimoIndiceLibero() - 1);
  if (intervallo_.al == ultimaPrima && ultima_ != ultimaPrima) {
    intervallo_.al = ultima_;
    mostraIntervallo();
  }
  righe_ = giudica(nomiDei(programma_.cartella));
  mostraMetodi();
}

std::vector<RigaQuadro> frmQuadro::giudica(const std::vector<std::string>& nomi) {
  std::vector<RigaQuadro> righe;
  inCorso_ = true;
  const bool lungo = nomi.size() > kMetodiPerVolta;
  prgbar.Max(static_cast<int>(nomi.size()));
  prgbar.Value(0);
  prgbar.Visible(lungo);
  for (std::size_t da = 0; da < nomi.size(); da += kMetodiPerVolta) {
    const auto fine = std::min(nomi.size(), da + kMetodiPerVolta);
    const std::vector<std::string> parte(nomi.begin() + static_cast<std::ptrdiff_t>(da),
                                         nomi.begin() + static_cast<std::ptrdiff_t>(fine));
    for (auto& riga : quadroDei(giudicaMetodi(programma_.cartella, archivio_, parte, intervallo_), archivio_))
      righe.push_back(std::move(riga));
    if (!lungo) continue;
    prgbar.Value(static_cast<int>(fine));
    programma_.servizi.ridisegna();
  }
  prgbar.Visible(false);
  inCorso_ = false;
  return righe;
}

void frmQuadro::mostraMetodi() {
  metodi.Titolo("Quadro dei Metodi, estrazioni da " + std::to_string(intervallo_.dal) + " a " +
                std::to_string(intervallo_.al));
  metodi.mostra(tabellaDel(righe_));
  lblMetodi.Caption(riassunto());
  if (!metodi.scelta() && !metodi.mostrate().empty())
    metodi.scegli({metodi.mostrate().front()});
  else
    mostraPrevisioni();
}

std::string frmQuadro::riassunto() const {
  const auto mostrate = metodi.mostrate().size();
  auto testo = mostrate == righe_.size() ? quanti(static_cast<int>(mostrate), "metodo", "metodi")
                                         : std::to_string(mostrate) + " di " +
                                               quanti(static_cast<int>(righe_.size()), "metodo", "metodi");
  RigaQuadro somma;
  for (const auto riga : metodi.mostrate()) {
    somma.giocate += righe_[riga].giocate;
    somma.vincenti += righe_[riga].vincenti;
    somma.negative += righe_[riga].negative;
    somma.inGioco += righe_[riga].inGioco;
  }
  return testo + ". " + quanti(somma.giocate, "previsione giocata: ", "previsioni giocate: ") +
         quanti(somma.vincenti, "vincente, ", "vincenti, ") +
         quanti(somma.negative, "negativa, ", "negative, ") + std::to_string(somma.inGioco) + " in gioco.";
}

std::string frmQuadro::nota(const RigaQuadro& riga) const {
  switch (riga.stato) {
    case StatoMetodo::DieciPrevisioni:
      return "Con dieci previsioni nessuno giudica più questo metodo: toglietene una, o spostatela in un "
             "altro.";
    case StatoMetodo::Illeggibile:
      return "Il file di questo metodo non si lascia leggere.";
    case StatoMetodo::PrevisioniNonViste:
      return "Verifica, statistica ed elenchi ne vedono " + std::to_string(riga.previsioni) +
             ": li ferma un posto vuoto, o una previsione su un'estrazione il cui numero finisce per 00.";
    case StatoMetodo::Regolare:
      break;
  }
  return previsioni.tabella().righe.empty() ? "Questo metodo non ha previsioni." : "";
}

void frmQuadro::mostraPrevisioni() {
  const auto* riga = rigaScelta();
  const auto prima = std::exchange(griglia_, std::nullopt);
  std::vector<VocePrevisione> voci;
  try {
    if (riga != nullptr && esisteMetodo(programma_.cartella, riga->metodo)) {
      griglia_ = LeggiMetodo(programma_.cartella, riga->metodo, SeManca::Vuoto);
      voci = elencoPrevisioni(*griglia_, archivio_);
    }
  } catch (const RuntimeFailure&) {
    griglia_.reset();  // the note says so
  }
  // Another method, or other predictions in the slots: what was chosen is no longer there.
  if (!prima || !griglia_ || !std::ranges::equal(prima->ottetti(), griglia_->ottetti()))
    previsioni.scegli({});
  previsioni.Titolo(riga == nullptr ? "Previsioni" : "Previsioni del metodo " + riga->metodo);
  previsioni.mostra(tabellaDelle(voci));
  lblPrevisioni.Caption(riga == nullptr ? "Previsioni" : "Previsioni del metodo " + tra(riga->metodo));
  lblNota.Caption(riga == nullptr ? "" : nota(*riga));
  mostraPulsanti();
}

void frmQuadro::mostraPulsanti() {
  const bool scelte = !previsioni.scelte().empty();
  for (auto* pulsante : {&btnTogli, &btnCopia, &btnSposta, &btnDuplica}) pulsante->Enabled(scelte);
  btnVerifica.Enabled(previsioni.scelte().size() == 1);
  btnCaso.Enabled(rigaScelta() != nullptr);
  btnAnnulla.Enabled(!fatti_.empty());
  btnAnnulla.ToolTipText(fatti_.empty() ? "Non c'è niente da annullare"
                                        : "Annulla l'ultima modifica: " + fatti_.back().testo);
}

void frmQuadro::mostraIntervallo() {
  txtDal.Text(std::to_string(intervallo_.dal));
  txtAl.Text(std::to_string(intervallo_.al));
  const auto data = [this](int n) {
    return n >= 1 && n <= ultima_ ? "del " + archivio_.DataEstrazione(n) : std::string();
  };
  lblDal.Caption(data(intervallo_.dal));
  lblAl.Caption(data(intervallo_.al));
  btnArchivio.Enabled(intervallo_.dal != 1 || intervallo_.al != ultima_);
}

bool frmQuadro::txtDal_Validate() {
  if (!leggiEstremo(txtDal, intervallo_.dal, Estremo::Primo)) return true;
  if (intervallo_.dal > intervallo_.al) intervallo_.al = ultima_;  // the other end gives way
  mostraIntervallo();
  aggiorna();
  return false;
}

bool frmQuadro::txtAl_Validate() {
  if (!leggiEstremo(txtAl, intervallo_.al, Estremo::Ultimo)) return true;
  if (intervallo_.al < intervallo_.dal) intervallo_.dal = 1;
  mostraIntervallo();
  aggiorna();
  return false;
}

bool frmQuadro::leggiEstremo(CampoTesto& campo, int& estremo, Estremo quale) {
  if (campo.Text() == std::to_string(estremo)) return true;
  if (const auto letto = estremoDigitato(campo.Text(), quale, archivio_, ultima_)) {
    estremo = *letto;
    return true;
  }
  rifiuta(ultima_ < 1
              ? kSenzaEstrazioni
              : "\"" + citazione(campo.Text()) + "\" non è un'estrazione: scrivete un numero da 1 a " +
                    std::to_string(ultima_) + ", oppure una data, per esempio 28/02/2026.");
  campo.Text(std::to_string(estremo));
  return false;
}

void frmQuadro::btnArchivio_Click() {
  tuttoArchivio();
  aggiorna();
}

void frmQuadro::txtFiltro_Change() {
  metodi.filtra(txtFiltro.Text());
  lblMetodi.Caption(riassunto());
  if (!metodi.scelta() && !metodi.mostrate().empty()) metodi.scegli({metodi.mostrate().front()});
}

void frmQuadro::metodi_Change() { mostraPrevisioni(); }

void frmQuadro::metodi_Apri() {
  if (previsioni.scelte().empty() && !previsioni.mostrate().empty())
    previsioni.scegli({previsioni.mostrate().front()});
  previsioni.SetFocus();
}

void frmQuadro::previsioni_Change() { mostraPulsanti(); }

const RigaQuadro* frmQuadro::rigaScelta() const {
  const auto scelta = metodi.scelta();
  return scelta ? &righe_.at(*scelta) : nullptr;
}

std::optional<frmQuadro::Bersaglio> frmQuadro::bersaglio() const {
  const auto* riga = rigaScelta();
  if (riga == nullptr || !griglia_ || previsioni.scelte().empty()) return std::nullopt;
  Bersaglio scelto{riga->metodo, *griglia_, {}};
  for (const auto scelta : previsioni.scelte())
    scelto.slot.push_back(std::get<int>(previsioni.cella(scelta, 0)));
  std::sort(scelto.slot.begin(), scelto.slot.end());
  return scelto;
}

void frmQuadro::btnVerifica_Click() {
  const auto scelto = bersaglio();
  if (!scelto) return;
  const int estrazione = scelto->griglia.EstrazioneCalcolo(scelto->slot.front());
  if (estrazione < 1 || estrazione > ultima_)
    rifiuta("L'estrazione n. " + std::to_string(estrazione) + " non è nell'archivio!");
  else
    cornice().apriVerifica(*this, scelto->metodo, estrazione);
}

void frmQuadro::btnCaso_Click() {
  if (const auto* riga = rigaScelta()) cornice().apriConfronto(*this, riga->metodo);
}

void frmQuadro::btnTogli_Click() {
  const auto scelto = bersaglio();
  if (!scelto) return;
  const auto quali = lePrevisioni(scelto->slot), dal = " dal metodo " + tra(scelto->metodo);
  if (programma_.servizi.mostra({"Togliere " + quali + dal + "?", "Togli", Genere::Domanda, Icona::Nessuna,
                                 Risposta::No}) != Risposta::Si)
    return;
  passo(participio("tolt", scelto->slot) + quali + dal, *scelto,
        [&](PrevisioniMetodo& metodo) { return metodo.togli(scelto->metodo, scelto->slot); });
}

void frmQuadro::btnDuplica_Click() {
  const auto scelto = bersaglio();
  if (!scelto) return;
  passo(participio("duplicat", scelto->slot) + lePrevisioni(scelto->slot) + " del metodo " +
            tra(scelto->metodo),
        *scelto, [&](PrevisioniMetodo& metodo) { return metodo.duplica(scelto->metodo, scelto->slot); });
}

void frmQuadro::btnCopia_Click() {
  const auto scelto = bersaglio();
  if (!scelto) return;
  const auto quali = lePrevisioni(scelto->slot) + " del metodo " + tra(scelto->metodo);
  const auto verso = chiediMetodo("Copiare " + quali + " nel metodo:", "Copia in", scelto->metodo);
  if (verso.empty()) return;
  passo(participio("copiat", scelto->slot) + quali + " in " + tra(verso), *scelto,
        [&](PrevisioniMetodo& metodo) { return metodo.copia(scelto->metodo, scelto->slot, verso); });
}

void frmQuadro::btnSposta_Click() {
  const auto scelto = bersaglio();
  if (!scelto) return;
  const auto quali = lePrevisioni(scelto->slot) + " del metodo " + tra(scelto->metodo);
  const auto verso = chiediMetodo("Spostare " + quali + " nel metodo:", "Sposta in", scelto->metodo);
  if (verso.empty()) return;
  passo(participio("spostat", scelto->slot) + quali + " in " + tra(verso), *scelto,
        [&](PrevisioniMetodo& metodo) { return metodo.sposta(scelto->metodo, scelto->slot, verso); });
}

std::string frmQuadro::chiediMetodo(const std::string& domanda, const std::string& titolo,
                                    const std::string& tranne) const {
  auto nomi = nomiDei(programma_.cartella);
  std::erase(nomi, tranne);
  if (nomi.empty()) {
    rifiuta("Non c'è un altro metodo: createne uno con Gestione > Metodi > Crea Metodo.");
    return "";
  }
  return programma_.servizi.scegli(domanda, titolo, nomi);
}

void frmQuadro::passo(const std::string& testo, const Bersaglio& bersaglio,
                      const std::function<PassoPrevisioni(PrevisioniMetodo&)>& fai) {
  const bool fatto = prova([&] {
    PrevisioniMetodo metodo(programma_, bersaglio.griglia);
    auto passo = fai(metodo);
    if (passo.empty()) return false;
    fatti_.push_back({testo, std::move(passo)});
    if (fatti_.size() > kPassiRicordati) fatti_.erase(fatti_.begin());
    return true;
  });
  racconta(fatto ? maiuscoloInizio(testo) : "");
}

void frmQuadro::racconta(const std::string& fatto) {
  lblFatto.Caption(fatto.empty() ? "" : fatto + ".");
  if (!fatto.empty()) programma_.servizi.fatto(fatto);
}

void frmQuadro::btnAnnulla_Click() {
  if (fatti_.empty()) return;
  const auto ultimo = fatti_.back();
  const bool fatto = prova([&] {
    const bool annullato = PrevisioniMetodo(programma_).annulla(ultimo.passo);
    // One that is refused goes as well, or it would bar the way to those before it. After a failure it can be
    // tried again.
    fatti_.pop_back();
    return annullato;
  });
  racconta(fatto ? "Annullata la modifica: " + ultimo.testo : "");
}

bool frmQuadro::prova(const std::function<bool()>& fai) {
  bool fatto = false;
  try {
    fatto = fai();
  } catch (const RuntimeFailure& failure) {
    rifiuta("Non è stato possibile: " + std::string(failure.what()) + ".\nI metodi sono come prima.");
  }
  aggiorna();
  previsioni.SetFocus();  // the button may have no more use
  return fatto;
}

void frmQuadro::btnEsci_Click() { cornice().chiudi(*this); }

void frmQuadro::rifiuta(const std::string& testo) const {
  programma_.servizi.mostra({testo, "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
}

}  // namespace vaticlo
