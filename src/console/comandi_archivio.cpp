#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>

#include "archive/ruota.h"
#include "console/cornice_vuota.h"
#include "console/sessione.h"
#include "dialogs/frm_modifica.h"
#include "operations/aggiornamento.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

/// A draw typed in on the command line: the entry form's fields and its date picker.
class EstrazioneNuova : public ControlliEstrazione {
 public:
  std::optional<Data> data;
  [[nodiscard]] std::optional<Data> mcdatecombo1_Value() const override { return data; }
};

void riempi(ControlliEstrazione& controlli, const std::vector<std::string>& numeri) {
  for (std::size_t f = 0; f < controlli.txtestr.size(); ++f) controlli.txtestr[f].Text(numeri.at(f));
}

void stampaEstrazione(const ControlliEstrazione& estrazione) {
  std::cout << "Estrazione n° " << estrazione.lblnestr.Caption() << " del "
            << estrazione.lbldataestr.Caption() << '\n';
  for (std::size_t ruota = 0; ruota < kTavolaRuote.size(); ++ruota) {
    std::cout << kTavolaRuote[ruota].sigla;
    for (std::size_t k = 0; k < 5; ++k) std::cout << ' ' << estrazione.txtestr[ruota * 5 + k].Text();
    std::cout << '\n';
  }
}

void estrazione(Sessione& sessione, int n) {
  ControlliEstrazione controlli;
  clsGestione(sessione.programma().cartella, sessione.servizi).Visualizza(controlli, n);
  stampaEstrazione(controlli);
}

void trova(Sessione& sessione, const std::string& testo) {
  CorniceVuota cornice;
  frmModifica frm(sessione.programma(), cornice);
  frm.Form_Load();
  frm.Form_Activate();
  sessione.servizi.preparaRisposta(testo);
  frm.btnTrova_Click();
  if (!testo.empty() && !sessione.servizi.rifiutato()) stampaEstrazione(frm.estrazione);
}

void inserisci(Sessione& sessione, const std::string& data, const std::vector<std::string>& numeri) {
  EstrazioneNuova nuova;
  nuova.data = dataDaTesto(data);
  if (!nuova.data) throw UsoErrato("DATA deve avere la forma gg/mm/aaaa, non \"" + data + "\"");
  riempi(nuova, numeri);
  const int n = clsGestione(sessione.programma().cartella, sessione.servizi).salva(nuova);
  std::cout << "Salvata l'estrazione n° " << n << '\n';
}

void modifica(Sessione& sessione, int n, const std::vector<std::string>& numeri) {
  ControlliEstrazione controlli;
  clsGestione gestione(sessione.programma().cartella, sessione.servizi);
  gestione.Visualizza(controlli, n);
  riempi(controlli, numeri);
  gestione.salva(controlli, n);
  std::cout << "Salvata l'estrazione n° " << n << '\n';
}

void cancella(Sessione& sessione, int n) {
  if (n < INT16_MIN || n > INT16_MAX) throw RuntimeFailure(Errore::Overflow);
  ControlliEstrazione controlli;
  clsGestione(sessione.programma().cartella, sessione.servizi)
      .cancella(controlli, static_cast<std::int16_t>(n));
  std::cout << "Cancellata l'estrazione n° " << n << '\n';
}

struct Argomenti {
  std::string primo;
  std::vector<std::string> numeri;
};

void aggiungiNumeri(CLI::App& comando, Argomenti& argomenti) {
  comando.add_option("NUMERI", argomenti.numeri, "I 55 numeri: cinque per ruota, da Bari a Nazionale")
      ->expected(kCampiEstrazione)
      ->required();
}

}  // namespace

void aggiungiComandiArchivio(CLI::App& app, Sessione& sessione) {
  const auto conNumero = [&](const char* nome, const char* aiuto, auto fai) {
    auto n = std::make_shared<std::string>();
    auto* comando = app.add_subcommand(nome, aiuto);
    comando->add_option("N", *n, "Numero dell'estrazione")->required();
    comando->callback([&sessione, n, fai] { fai(sessione, numeroIntero(*n, "N")); });
  };
  conNumero("estrazione", "Mostra un'estrazione", estrazione);
  conNumero("cancella", "Cancella un'estrazione", cancella);

  auto argomenti = std::make_shared<Argomenti>();
  auto* comando = app.add_subcommand("trova", "Cerca un'estrazione per numero o per data");
  comando->add_option("TESTO", argomenti->primo, "Numero o data (gg/mm/aaaa, gg-mm-aaaa, gg.mm.aaaa)")
      ->required();
  comando->callback([&sessione, argomenti] { trova(sessione, argomenti->primo); });

  comando = app.add_subcommand("inserisci", "Aggiunge un'estrazione in fondo all'archivio");
  comando->add_option("DATA", argomenti->primo, "Data dell'estrazione, gg/mm/aaaa")->required();
  aggiungiNumeri(*comando, *argomenti);
  comando->callback([&sessione, argomenti] { inserisci(sessione, argomenti->primo, argomenti->numeri); });

  comando = app.add_subcommand("modifica", "Riscrive i numeri di un'estrazione");
  comando->add_option("N", argomenti->primo, "Numero dell'estrazione")->required();
  aggiungiNumeri(*comando, *argomenti);
  comando->callback(
      [&sessione, argomenti] { modifica(sessione, numeroIntero(argomenti->primo, "N"), argomenti->numeri); });

  comando = app.add_subcommand("aggiorna", "Sostituisce l'archivio con quello di un server");
  auto da = std::make_shared<std::string>(indirizzoArchivio());
  comando->add_option("--da", *da, "Indirizzo da usare al posto di quello del programma")
      ->type_name("INDIRIZZO")
      ->capture_default_str();
  comando->callback([&sessione, da] { aggiornaArchivio(sessione.programma(), *da); });
}

}  // namespace vaticlo
