#include <iostream>
#include <map>
#include <memory>

#include <CLI/CLI.hpp>

#include "archive/ruota.h"
#include "console/cornice_vuota.h"
#include "console/sessione.h"
#include "dialogs/frm_somdif.h"

namespace vaticlo {

namespace {

void somdif(Sessione& sessione, int n, TipoSomDif tipo) {
  CorniceVuota cornice;
  frmSomdif frm(sessione.programma(), cornice);
  sessione.programma().globals.EstrazioneSomdif = n;
  frm.opzione_Click(tipo);
  for (std::size_t i = 0; i < kRuoteSomDif; ++i) {
    std::cout << kTavolaRuote[i].sigla;
    for (const auto& colonna : frm.colonne)
      std::cout << ' ' << colonna[i].Text() << (colonna[i].BackColor() == kGiallo ? "*" : "");
    std::cout << '\n';
  }
}

}  // namespace

void aggiungiSomdif(CLI::App& app, Sessione& sessione) {
  static const std::map<std::string, TipoSomDif> kTipi = {{"ciclometrica", TipoSomDif::Ciclometrica},
                                                          {"matematica", TipoSomDif::Matematica},
                                                          {"somma", TipoSomDif::Somma}};
  auto* comando = app.add_subcommand("somdif", "Distanze o somme dei numeri di un'estrazione");
  auto n = std::make_shared<std::string>();
  auto tipo = std::make_shared<std::string>("ciclometrica");
  comando->add_option("N", *n, "Numero dell'estrazione")->required();
  comando->add_option("--tipo", *tipo, "ciclometrica, matematica o somma")
      ->type_name("TIPO")
      ->capture_default_str();
  comando->callback([&sessione, n, tipo] {
    const auto scelto = kTipi.find(*tipo);
    if (scelto == kTipi.end())
      throw UsoErrato("--tipo deve essere ciclometrica, matematica o somma, non \"" + *tipo + "\"");
    somdif(sessione, numeroIntero(*n, "N"), scelto->second);
  });
}

}  // namespace vaticlo
