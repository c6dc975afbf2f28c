#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "console/cornice_vuota.h"
#include "console/sessione.h"
#include "dialogs/frm_prev.h"
#include "dialogs/frm_vinc.h"

namespace vaticlo {

namespace {

struct Scelte {
  std::optional<std::string> metodo;
  std::string ultime = "1";
};

void cerca(ElencoScansione& frm, const Scelte& scelte) {
  if (scelte.metodo) frm.metodo.scegliNome(*scelte.metodo);
  frm.Form_Load();
  if (frm.lblPrev.Visible())
    std::cout << frm.lblPrev.Caption() << '\n';
  else
    std::cout << frm.RichTextBox1.Text();
}

void inGioco(Sessione& sessione, const Scelte& scelte) {
  CorniceVuota cornice;
  frmPrev frm(sessione.programma(), cornice);
  cerca(frm, scelte);
}

void vincenti(Sessione& sessione, const Scelte& scelte) {
  const int ultime = numeroIntero(scelte.ultime, "--ultime");
  if (ultime < frmVinc::kMinimoUltime || ultime > frmVinc::kMassimoUltime)
    throw UsoErrato("--ultime va da " + std::to_string(frmVinc::kMinimoUltime) + " a " +
                    std::to_string(frmVinc::kMassimoUltime) + ", non " + scelte.ultime);
  CorniceVuota cornice;
  frmVinc frm(sessione.programma(), cornice);
  frm.txtColpi.Text(std::to_string(ultime));
  cerca(frm, scelte);
}

}  // namespace

void aggiungiComandiRapporti(CLI::App& app, Sessione& sessione) {
  auto scelte = std::make_shared<Scelte>();
  const auto comando = [&](const char* nome, const char* aiuto, auto fai) {
    auto* sub = app.add_subcommand(nome, aiuto);
    sub->add_option("--metodo", scelte->metodo, "Un solo metodo, invece di tutti")->type_name("NOME");
    sub->callback([&sessione, scelte, fai] { fai(sessione, *scelte); });
    return sub;
  };
  comando("in-gioco", "Elenca le previsioni ancora in gioco (PrevGioco.txt)", inGioco);
  comando("vincenti", "Elenca le previsioni vincenti alle ultime estrazioni (Vincenti.txt)", vincenti)
      ->add_option("--ultime", scelte->ultime, "Quante ultime estrazioni considerare, da 1 a 5")
      ->type_name("K")
      ->capture_default_str();
}

}  // namespace vaticlo
