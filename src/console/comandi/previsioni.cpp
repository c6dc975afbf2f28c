#include <iostream>
#include <memory>

#include "console/comandi/comandi.h"
#include "console/cornice_vuota.h"
#include "console/passo_muto.h"
#include "console/sessione.h"
#include "console/uscita.h"
#include "dialogs/frm_insprev.h"
#include "operations/previsioni_metodo.h"

namespace vaticlo::comandi {

namespace {

void compila(Sessione& sessione, frmInsPrev& frm, const Argomenti& argomenti) {
  if (argomenti.seDato("--estrazione"))
    clsGestione(sessione.programma().cartella, sessione.servizi)
        .Visualizza(frm.estrazione, argomenti.intero("--estrazione"));
  if (const auto colpi = argomenti.seDato("--colpi")) frm.cmbColpi.Text(*colpi);
  const auto scrivi = [&argomenti](CampoTesto& campo, const char* opzione) {
    if (const auto testo = argomenti.seDato(opzione)) campo.Text(*testo);
  };
  scrivi(frm.txtNum, "--numero");
  scrivi(frm.txtRuote, "--ruote");
  scrivi(frm.txtAmbate, "--ambate");
  scrivi(frm.txtAmbi, "--ambi");
  scrivi(frm.txtSup, "--sup");
}

/// The modify variant with a method chosen. Nothing when the editor refused it.
std::unique_ptr<frmInsPrev> apri(Sessione& sessione, CorniceVuota& cornice, const std::string& metodo) {
  sessione.programma().globals.PrevisioneInModifica = true;
  auto frm = std::make_unique<frmInsPrev>(sessione.programma(), cornice);
  frm->Form_Load();
  frm->cmbMetodo.Text(metodo);
  frm->cmbMetodo_Click();
  if (sessione.servizi.rifiutato()) return nullptr;
  return frm;
}

/// Chooses the prediction of a slot. False when the list does not offer it.
bool scegli(frmInsPrev& frm, int slot) {
  const auto& voci = frm.cmbPrevisione.voci();
  for (std::size_t n = 0; n < voci.size(); ++n)
    if (voci[n].ItemData == slot) {
      frm.cmbPrevisione.scegli(static_cast<int>(n));
      return true;
    }
  return false;
}

}  // namespace

Esito elencoPrevisioni(Sessione& sessione, const Argomenti& argomenti) {
  CorniceVuota cornice;
  const auto frm = apri(sessione, cornice, argomenti["METODO"]);
  if (!frm) return kFatto;
  Tabella tabella{{{"Slot", Colonna::Tipo::Numero}, {"Voce"}}, {}};
  for (const auto& voce : frm->cmbPrevisione.voci()) tabella.righe.push_back({voce.ItemData, voce.testo});
  stampa({.oggetto = {{"metodo", argomenti["METODO"]}, {"previsioni", righe(tabella)}},
          .tabella = tabella,
          .testo =
              [&] {
                for (const auto& voce : frm->cmbPrevisione.voci()) std::cout << voce.testo << '\n';
              }},
         argomenti);
  return kFatto;
}

Esito mostraPrevisione(Sessione& sessione, const Argomenti& argomenti) {
  const auto& metodo = argomenti["METODO"];
  CorniceVuota cornice;
  const auto frm = apri(sessione, cornice, metodo);
  if (!frm) return kFatto;
  if (!scegli(*frm, argomenti.intero("SLOT")))
    throw UsoErrato("il metodo \"" + metodo + "\" non ha la previsione " + argomenti["SLOT"] +
                    "; quelle che ha: vaticlo-cli previsione elenco \"" + metodo + "\"");
  const Tabella tabella{
      {{"Estrazione", Colonna::Tipo::Numero},
       {"Numero 899"},
       {"Ruote"},
       {"Colpi", Colonna::Tipo::Numero},
       {"Ambate"},
       {"Ambi"},
       {"Sorti"}},
      {{numeroOTesto(frm->estrazione.lblnestr.Caption()), frm->txtNum.Text(), frm->txtRuote.Text(),
        numeroOTesto(frm->cmbColpi.Text()), frm->txtAmbate.Text(), frm->txtAmbi.Text(), frm->txtSup.Text()}}};
  stampa({.oggetto = righe(tabella).front(),
          .tabella = tabella,
          .testo =
              [&] {
                for (std::size_t n = 0; n < tabella.colonne.size(); ++n)
                  std::cout << tabella.colonne[n].nome << ": " << testoCella(tabella.righe[0][n]) << '\n';
              }},
         argomenti);
  return kFatto;
}

Esito inserisciPrevisione(Sessione& sessione, const Argomenti& argomenti) {
  CorniceVuota cornice;
  sessione.programma().globals.PrevisioneInModifica = false;
  frmInsPrev frm(sessione.programma(), cornice);
  frm.Form_Load();
  frm.cmbMetodo.Text(argomenti["METODO"]);
  compila(sessione, frm, argomenti);
  frm.btnElabora_Click();
  return kFatto;
}

// A slot that the list does not offer stays unchosen, and the editor refuses.
Esito modificaPrevisione(Sessione& sessione, const Argomenti& argomenti) {
  const PassoMuto passo(sessione.programma().cartella);
  CorniceVuota cornice;
  const auto frm = apri(sessione, cornice, argomenti["METODO"]);
  if (!frm) return kFatto;
  scegli(*frm, argomenti.intero("SLOT"));
  compila(sessione, *frm, argomenti);
  frm->btnElabora_Click();
  return kFatto;
}

Esito eliminaPrevisione(Sessione& sessione, const Argomenti& argomenti) {
  CorniceVuota cornice;
  const auto frm = apri(sessione, cornice, argomenti["METODO"]);
  if (!frm) return kFatto;
  scegli(*frm, argomenti.intero("SLOT"));
  frm->btnElimina_Click();
  return kFatto;
}

Esito togliPrevisione(Sessione& sessione, const Argomenti& argomenti) {
  const auto& metodo = argomenti["METODO"];
  if (!PrevisioniMetodo(sessione.programma()).togli(metodo, {argomenti.intero("SLOT")}).empty())
    std::cout << "Tolta la previsione n." << argomenti["SLOT"] << " dal metodo " << metodo << '\n';
  return kFatto;
}

Esito duplicaPrevisione(Sessione& sessione, const Argomenti& argomenti) {
  const auto& metodo = argomenti["METODO"];
  if (!PrevisioniMetodo(sessione.programma()).duplica(metodo, {argomenti.intero("SLOT")}).empty())
    std::cout << "Duplicata la previsione n." << argomenti["SLOT"] << " del metodo " << metodo << '\n';
  return kFatto;
}

Esito copiaPrevisione(Sessione& sessione, const Argomenti& argomenti) {
  const auto &metodo = argomenti["METODO"], &verso = argomenti["VERSO"];
  if (!PrevisioniMetodo(sessione.programma()).copia(metodo, {argomenti.intero("SLOT")}, verso).empty())
    std::cout << "Copiata la previsione n." << argomenti["SLOT"] << " del metodo " << metodo << " nel metodo "
              << verso << '\n';
  return kFatto;
}

Esito spostaPrevisione(Sessione& sessione, const Argomenti& argomenti) {
  const auto &metodo = argomenti["METODO"], &verso = argomenti["VERSO"];
  if (!PrevisioniMetodo(sessione.programma()).sposta(metodo, {argomenti.intero("SLOT")}, verso).empty())
    std::cout << "Spostata la previsione n." << argomenti["SLOT"] << " dal metodo " << metodo << " al metodo "
              << verso << '\n';
  return kFatto;
}

}  // namespace vaticlo::comandi
