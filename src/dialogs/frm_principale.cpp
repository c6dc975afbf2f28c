#include "dialogs/frm_principale.h"

#include <algorithm>
#include <filesystem>
#include <type_traits>

#include "check/clsmetodo.h"
#include "dialogs/frm_gestione_metodi.h"
#include "dialogs/frm_info.h"
#include "dialogs/frm_inserisci.h"
#include "dialogs/frm_insprev.h"
#include "dialogs/frm_metodo.h"
#include "dialogs/frm_migliore.h"
#include "dialogs/frm_modifica.h"
#include "dialogs/frm_prev.h"
#include "dialogs/frm_somdif.h"
#include "dialogs/frm_statistica.h"
#include "dialogs/frm_vinc.h"
#include "operations/aggiornamento.h"
#include "operations/gestione_metodi.h"
#include "operations/importa_estrazioni.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

constexpr const char* kPaginaEstrazioni = "https://www.lotto-italia.it/lotto/estrazioni-ultime";
constexpr const char* kPaginaRegole = "https://www.adm.gov.it/portale/lotto";

// A statement of a toolbar handler, which runs on past any failure.
template <class Istruzione>
void oltreOgniFailure(Istruzione istruzione) {
  try {
    istruzione();
  } catch (const RuntimeFailure&) {
    // The next statement runs all the same.
  }
}

}  // namespace

template <class F>
std::shared_ptr<Finestra> frmPrincipale::nuova() {
  if constexpr (std::is_constructible_v<F, Programma&, Cornice&>)
    return std::make_shared<F>(programma_, *this);
  else
    return std::make_shared<F>(*this);
}

template <class F>
void frmPrincipale::apri() {
  if (auto* finestra = aperta<F>()) {
    if (vista_ != nullptr) vista_->portaSu(*finestra);
    attivata(*finestra);
  } else {
    apriNuova(nuova<F>());
  }
}

void frmPrincipale::apriNuova(const std::shared_ptr<Finestra>& finestra) {
  // It counts as open while it loads: a load may be long work that yields to events.
  finestre_.push_back(finestra);
  try {
    finestra->Form_Load();
  } catch (RuntimeFailure& failure) {
    std::erase(finestre_, finestra);
    failure.nella(finestra->Caption());
    throw;
  }
  if (vista_ != nullptr) vista_->mostra(finestra);
  attivata(*finestra);
}

void frmPrincipale::comando(Comando comando) {
  if (occupata()) return;
  chiuse_.clear();
  auto& g = programma_.globals;
  switch (comando) {
    case Comando::Sottomenu:
      break;
    case Comando::InserisciEstrazione:
      apri<frmInserisci>();
      break;
    case Comando::ModificaEstrazione:
      apri<frmModifica>();
      break;
    case Comando::Aggiorna:
      // Meant: unlike an import, an update leaves the open windows with what they show.
      aggiornaArchivio(programma_);
      break;
    case Comando::Vaticla:
      apri<frmMetodo>();
      break;
    case Comando::Statistica:
      g.MetodoScelto = 1;
      apri<frmStatistica>();
      break;
    case Comando::CreaMetodo:
      creaMetodo();
      break;
    case Comando::ModificaMetodo:
      apri<frmGestioneMetodi>();
      break;
    case Comando::CreaPrevisione:
      apriEditor(false);
      break;
    case Comando::ModificaPrevisione:
      apriEditor(true);
      break;
    case Comando::InGioco:
      apri<frmPrev>();
      break;
    case Comando::Vincenti:
      apri<frmVinc>();
      break;
    case Comando::Somdif:
      apri<frmSomdif>();
      break;
    case Comando::Importa:
      if (importaEstrazioniDaFile(programma_)) archivioNuovo();
      break;
    case Comando::PaginaEstrazioni:
      programma_.servizi.apriPagina(kPaginaEstrazioni);
      break;
    case Comando::PaginaRegole:
      programma_.servizi.apriPagina(kPaginaRegole);
      break;
    case Comando::Guida:
      apriGuida();
      break;
    case Comando::Informazioni:
      if (auto* info = aperta<frmInfo>()) chiudiAltre(*info);
      apri<frmInfo>();
      break;
  }
}

void frmPrincipale::apriEditor(bool modifica) {
  programma_.globals.PrevisioneInModifica = modifica;
  if (auto* editor = aperta<frmInsPrev>(); editor != nullptr && editor->modifica() != modifica)
    chiudi(*editor);
  apri<frmInsPrev>();
}

void frmPrincipale::Toolbar1_ButtonClick(std::string_view chiave) {
  if (occupata()) return;
  chiuse_.clear();
  oltreOgniFailure([&] {
    if (chiave == "Insert") apri<frmInserisci>();
    if (chiave == "Modify") apri<frmModifica>();
    // MetodoScelto stays as it was, unlike with the menu's "Statistica".
    if (chiave == "Sirvan") apri<frmMetodo>();
    if (chiave == "Sirvan1") apri<frmStatistica>();
    if (chiave == "Exit" && vista_ != nullptr) vista_->chiudiPrincipale();
  });
  if (chiave == "Info") {
    oltreOgniFailure([&] { chiudiTutte(); });
    oltreOgniFailure([&] { apri<frmInfo>(); });
  }
}

void frmPrincipale::Toolbar1_ButtonMenuClick(std::string_view chiave) {
  const bool previsione = chiave.starts_with("NumPrev");
  if (occupata() || (!previsione && !chiave.starts_with("NumStat"))) return;
  const auto cifra = chiave.substr(7);
  if (cifra.size() > 1 || (cifra.size() == 1 && (cifra[0] < '1' || cifra[0] > '9'))) return;

  chiuse_.clear();
  oltreOgniFailure([&] { chiudiTutte(); });
  // The key counts from 0, the method from 1: "NumPrev2" is "Metodo 3".
  programma_.globals.MetodoScelto = static_cast<std::int16_t>(cifra.empty() ? 1 : cifra[0] - '0' + 1);
  oltreOgniFailure([&] {
    if (previsione)
      apri<frmMetodo>();
    else
      apri<frmStatistica>();
  });
}

void frmPrincipale::attivata(Finestra& finestra) {
  if (attiva_ == &finestra) return;
  attiva_ = &finestra;
  finestra.Form_Activate();
}

void frmPrincipale::Form_Unload() {
  std::error_code codice;
  if (std::filesystem::is_directory(programma_.cartella.file(kFileEsiti), codice)) return;
  std::filesystem::remove(programma_.cartella.file(kFileEsiti), codice);
  if (codice)
    throw RuntimeFailure(Errore::AccessoAlFile, "Esiti.txt")
        .spiega({.fatto = "Il rapporto dell'ultima verifica, Esiti.txt, non si lascia cancellare.",
                 .rimedio = "Cancellatelo a mano dalla cartella del programma.",
                 .capitolo = "I file e le copie"});
}

bool frmPrincipale::occupata() const {
  return std::any_of(finestre_.begin(), finestre_.end(), [](const auto& f) { return f->occupata(); });
}

bool frmPrincipale::Form_QueryUnload() {
  if (!occupata()) return true;
  for (const auto& finestra : finestre_) finestra->interrompi();
  return false;
}

void frmPrincipale::lavoro(bool inCorso) {
  if (vista_ != nullptr) vista_->abilitaComandi(!inCorso);
}

void frmPrincipale::chiudi(Finestra& finestra) {
  const auto posto =
      std::find_if(finestre_.begin(), finestre_.end(), [&](const auto& f) { return f.get() == &finestra; });
  if (posto == finestre_.end() || finestra.occupata()) return;
  chiuse_.push_back(*posto);
  finestre_.erase(posto);
  if (attiva_ == &finestra) attiva_ = nullptr;
  if (vista_ != nullptr) vista_->togli(finestra);
}

void frmPrincipale::riapri(Finestra& finestra) {
  const auto rifai = [this, &finestra]() -> std::shared_ptr<Finestra> {
    if (dynamic_cast<frmInserisci*>(&finestra) != nullptr) return nuova<frmInserisci>();
    if (dynamic_cast<frmModifica*>(&finestra) != nullptr) return nuova<frmModifica>();
    if (const auto* editor = dynamic_cast<frmInsPrev*>(&finestra)) {
      programma_.globals.PrevisioneInModifica = editor->modifica();
      return nuova<frmInsPrev>();
    }
    return nullptr;
  };
  const auto nuovaFinestra = rifai();
  chiudi(finestra);
  if (nuovaFinestra) apriNuova(nuovaFinestra);
}

void frmPrincipale::apriRisultati() { apri<frmMigliore>(); }

void frmPrincipale::chiudiTutte(const Finestra* tranne) {
  const auto aperte = finestre_;
  for (const auto& finestra : aperte)
    if (finestra.get() != tranne) chiudi(*finestra);
}

void frmPrincipale::archivioNuovo() {
  const auto aperte = finestre_;
  for (const auto& finestra : aperte) finestra->archivioNuovo();
}

void frmPrincipale::creaMetodo() {
  const auto nome = programma_.servizi.chiedi("Nome del nuovo metodo:", "Crea Metodo");
  if (nome.empty()) return;
  if (GestioneMetodi(programma_).crea(nome)) programma_.servizi.mostra({"Il metodo è stato creato!"});
}

void frmPrincipale::apriGuida() {
  const auto pagina = programma_.cartella.file(kFileGuida);
  std::error_code codice;
  if (std::filesystem::is_regular_file(pagina, codice)) {
    if (vista_ != nullptr) vista_->mostraGuida(pagina);
    return;
  }
  programma_.servizi.mostra({"La guida non è nella cartella del programma (guida/guida.html)!"});
}

}  // namespace vaticlo
