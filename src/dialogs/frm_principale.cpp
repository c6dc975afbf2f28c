#include "dialogs/frm_principale.h"

#include <algorithm>
#include <filesystem>

#include "check/clsmetodo.h"
#include "dialogs/frm_caso.h"
#include "dialogs/frm_metodo.h"
#include "dialogs/frm_migliore.h"
#include "dialogs/frm_principale_tavole.h"
#include "dialogs/frm_statistica.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

// A statement of a toolbar handler, which runs on past any failure.
template <class Istruzione>
void oltreOgniFailure(Istruzione istruzione) {
  try {
    istruzione();
  } catch (const RuntimeFailure&) {
    // The next statement runs nevertheless.
  }
}

}  // namespace

void frmPrincipale::portaSu(Finestra& finestra) {
  if (vista_ != nullptr) vista_->portaSu(finestra);
  attivata(finestra);
}

void frmPrincipale::apriNuova(Fabbrica fabbrica) {
  const auto finestra = fabbrica(programma_, *this);
  // It counts as open while it loads: a load may be long work that yields to events.
  finestre_.push_back({finestra, fabbrica});
  try {
    finestra->Form_Load();
  } catch (RuntimeFailure& failure) {
    std::erase_if(finestre_, [&](const auto& aperta) { return aperta.finestra == finestra; });
    failure.nella(finestra->Caption());
    throw;
  }
  if (vista_ != nullptr) vista_->mostra(finestra);
  attivata(*finestra);
}

void frmPrincipale::comando(std::string_view voce) {
  if (occupata()) return;
  chiuse_.clear();
  const auto menu = tavolaMenu();
  const auto trovata = std::find_if(menu.begin(), menu.end(), [&](const auto& v) { return v.nome == voce; });
  if (trovata != menu.end() && trovata->azione != nullptr) trovata->azione(*this);
}

void frmPrincipale::Toolbar1_ButtonClick(std::string_view chiave) {
  if (occupata()) return;
  chiuse_.clear();
  const auto barra = tavolaBarra();
  const auto trovato =
      std::find_if(barra.begin(), barra.end(), [&](const auto& p) { return p.chiave == chiave; });
  if (trovato != barra.end() && trovato->azione != nullptr) oltreOgniFailure([&] { trovato->azione(*this); });
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
  return std::any_of(finestre_.begin(), finestre_.end(),
                     [](const auto& aperta) { return aperta.finestra->occupata(); });
}

bool frmPrincipale::Form_QueryUnload() {
  if (!occupata()) return true;
  for (const auto& aperta : finestre_) aperta.finestra->interrompi();
  return false;
}

void frmPrincipale::lavoro(bool inCorso) {
  if (vista_ != nullptr) vista_->abilitaComandi(!inCorso);
}

std::vector<frmPrincipale::Aperta>::const_iterator frmPrincipale::postoDi(const Finestra& finestra) const {
  return std::find_if(finestre_.begin(), finestre_.end(),
                      [&](const auto& aperta) { return aperta.finestra.get() == &finestra; });
}

void frmPrincipale::chiudi(Finestra& finestra) {
  const auto posto = postoDi(finestra);
  if (posto == finestre_.end() || finestra.occupata()) return;
  chiuse_.push_back(posto->finestra);
  finestre_.erase(posto);
  if (attiva_ == &finestra) attiva_ = nullptr;
  if (vista_ != nullptr) vista_->togli(finestra);
}

void frmPrincipale::riapri(Finestra& finestra) {
  const auto posto = postoDi(finestra);
  if (posto == finestre_.end()) return;
  const auto fabbrica = posto->fabbrica;
  chiudi(finestra);
  apriNuova(fabbrica);
}

void frmPrincipale::apriRisultati() { apri<frmMigliore>(); }

template <class F>
F& frmPrincipale::apriAccanto(const Finestra& chiede) {
  resta_ = &chiede;
  try {
    apri<F>();
  } catch (const RuntimeFailure&) {
    resta_ = nullptr;
    throw;
  }
  resta_ = nullptr;
  return *aperta<F>();
}

void frmPrincipale::apriVerifica(const Finestra& chiede, const std::string& metodo, int estrazione) {
  if (!occupata()) apriAccanto<frmMetodo>(chiede).mostra(metodo, estrazione);
}

void frmPrincipale::apriConfronto(const Finestra& chiede, const std::string& metodo) {
  if (!occupata()) apriAccanto<frmCaso>(chiede).metodo.scegliNome(metodo);
}

void frmPrincipale::chiudiTutte(const Finestra* tranne) {
  const auto aperte = finestre_;
  for (const auto& aperta : aperte)
    if (aperta.finestra.get() != tranne && aperta.finestra.get() != resta_) chiudi(*aperta.finestra);
}

void frmPrincipale::archivioNuovo() {
  const auto aperte = finestre_;
  for (const auto& aperta : aperte) aperta.finestra->archivioNuovo();
}

void frmPrincipale::estrazioniAggiunte() {
  const auto aperte = finestre_;
  for (const auto& aperta : aperte) aperta.finestra->estrazioniAggiunte();
}

void frmPrincipale::esci() {
  if (vista_ != nullptr) vista_->chiudiPrincipale();
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
