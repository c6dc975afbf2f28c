#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "console/cornice_vuota.h"
#include "console/sessione.h"
#include "dialogs/frm_insprev.h"

namespace vaticlo {

namespace {

/// The fields of the editor as options of a command; one left out has no value.
struct Campi {
  std::string metodo, slot;
  std::optional<std::string> estrazione, numero, ruote, colpi, ambate, ambi, sup;
};

void scrivi(CampoTesto& campo, const std::optional<std::string>& testo) {
  if (testo) campo.Text(*testo);
}

void compila(Sessione& sessione, frmInsPrev& frm, const Campi& campi) {
  if (campi.estrazione)
    clsGestione(sessione.programma().cartella, sessione.servizi)
        .Visualizza(frm.estrazione, numeroIntero(*campi.estrazione, "--estrazione"));
  if (campi.colpi) frm.cmbColpi.Text(*campi.colpi);
  scrivi(frm.txtNum, campi.numero);
  scrivi(frm.txtRuote, campi.ruote);
  scrivi(frm.txtAmbate, campi.ambate);
  scrivi(frm.txtAmbi, campi.ambi);
  scrivi(frm.txtSup, campi.sup);
}

void inserisci(Sessione& sessione, const Campi& campi) {
  CorniceVuota cornice;
  sessione.programma().globals.PrevisioneInModifica = false;
  frmInsPrev frm(sessione.programma(), cornice);
  frm.Form_Load();
  frm.cmbMetodo.Text(campi.metodo);
  compila(sessione, frm, campi);
  frm.btnElabora_Click();
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
bool scegli(frmInsPrev& frm, const std::string& testo) {
  const int slot = numeroIntero(testo, "SLOT");
  const auto& voci = frm.cmbPrevisione.voci();
  for (std::size_t n = 0; n < voci.size(); ++n)
    if (voci[n].ItemData == slot) {
      frm.cmbPrevisione.scegli(static_cast<int>(n));
      return true;
    }
  return false;
}

void elenco(Sessione& sessione, const Campi& campi) {
  CorniceVuota cornice;
  if (const auto frm = apri(sessione, cornice, campi.metodo))
    for (const auto& voce : frm->cmbPrevisione.voci()) std::cout << voce.testo << '\n';
}

void mostra(Sessione& sessione, const Campi& campi) {
  CorniceVuota cornice;
  const auto frm = apri(sessione, cornice, campi.metodo);
  if (!frm) return;
  if (!scegli(*frm, campi.slot))
    throw UsoErrato("il metodo \"" + campi.metodo + "\" non ha la previsione " + campi.slot +
                    "; quelle che ha: vaticlo-cli previsione elenco \"" + campi.metodo + "\"");
  std::cout << "Estrazione: " << frm->estrazione.lblnestr.Caption() << '\n'
            << "Numero 899: " << frm->txtNum.Text() << '\n'
            << "Ruote: " << frm->txtRuote.Text() << '\n'
            << "Colpi: " << frm->cmbColpi.Text() << '\n'
            << "Ambate: " << frm->txtAmbate.Text() << '\n'
            << "Ambi: " << frm->txtAmbi.Text() << '\n'
            << "Sorti: " << frm->txtSup.Text() << '\n';
}

// A slot that the list does not offer stays unchosen, and the editor says what it says of that.
void modifica(Sessione& sessione, const Campi& campi) {
  CorniceVuota cornice;
  const auto frm = apri(sessione, cornice, campi.metodo);
  if (!frm) return;
  scegli(*frm, campi.slot);
  compila(sessione, *frm, campi);
  frm->btnElabora_Click();
}

void elimina(Sessione& sessione, const Campi& campi) {
  CorniceVuota cornice;
  const auto frm = apri(sessione, cornice, campi.metodo);
  if (!frm) return;
  scegli(*frm, campi.slot);
  frm->btnElimina_Click();
}

void aggiungiCampi(CLI::App& comando, Campi& campi, bool nuova) {
  const auto opzione = [&comando](const char* nome, std::optional<std::string>& campo, const char* aiuto) {
    return comando.add_option(nome, campo, aiuto)->type_name("TESTO");
  };
  opzione("--estrazione", campi.estrazione, "Numero dell'estrazione di calcolo")
      ->type_name("N")
      ->required(nuova);
  opzione("--numero", campi.numero, "Numero 899, es. 899.11.22.33");
  opzione("--ruote", campi.ruote, "Ruote di gioco, es. Ba-Ca-Tutte")->required(nuova);
  opzione("--colpi", campi.colpi, nuova ? "Colpi di gioco (10 se non indicati)" : "Colpi di gioco");
  opzione("--ambate", campi.ambate, "Ambate, es. 21;36");
  opzione("--ambi", campi.ambi, "Ambi secchi, es. 15-50;25-12;66-10");
  opzione("--sup", campi.sup, "Sorti superiori, es. 15-50-66-71;25-12-10");
}

}  // namespace

void aggiungiComandiPrevisioni(CLI::App& app, Sessione& sessione) {
  auto* previsione = app.add_subcommand("previsione", "Inserisce, modifica, mostra ed elimina le previsioni");
  previsione->require_subcommand(1);
  auto campi = std::make_shared<Campi>();
  const auto comando = [&](const char* nome, const char* aiuto, bool conSlot, auto fai) {
    auto* sub = previsione->add_subcommand(nome, aiuto);
    sub->add_option("METODO", campi->metodo, "Nome del metodo")->required();
    if (conSlot) sub->add_option("SLOT", campi->slot, "Numero della previsione nel metodo")->required();
    sub->callback([&sessione, campi, fai] { fai(sessione, *campi); });
    return sub;
  };
  comando("elenco", "Elenca le previsioni di un metodo", false, elenco);
  comando("mostra", "Mostra una previsione", true, mostra);
  aggiungiCampi(*comando("inserisci", "Inserisce una previsione", false, inserisci), *campi, true);
  aggiungiCampi(*comando("modifica", "Riscrive una previsione", true, modifica), *campi, false);
  comando("elimina", "Elimina una previsione", true, elimina);
}

}  // namespace vaticlo
