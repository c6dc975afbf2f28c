#include <csignal>
#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>
#include <unistd.h>

#include "console/cornice_vuota.h"
#include "console/sessione.h"
#include "dialogs/frm_statistica.h"

namespace vaticlo {

namespace {

volatile std::sig_atomic_t interruzione = 0;

/// While it lives, Ctrl-C asks the run for a stop instead of ending the process.
class StopConCtrlC {
 public:
  StopConCtrlC(ServiziConsole& servizi, frmStatistica& frm)
      : servizi_(servizi), prima_(std::signal(SIGINT, [](int) { interruzione = 1; })) {
    interruzione = 0;
    servizi_.eventi([&frm] {
      if (interruzione != 0) frm.btnStop_Click();
    });
  }
  StopConCtrlC(const StopConCtrlC&) = delete;
  StopConCtrlC& operator=(const StopConCtrlC&) = delete;
  ~StopConCtrlC() {
    servizi_.eventi({});
    std::signal(SIGINT, prima_);
  }

 private:
  ServiziConsole& servizi_;
  void (*prima_)(int);
};

/// A progress bar on standard error, drawn anew when the percentage changes and wiped out at the end.
class BarraSuTerminale {
 public:
  void mostra(const Avanzamento& avanzamento) {
    if (!terminale_ || avanzamento.Max() <= 0) return;
    const int percento = avanzamento.Value() * 100 / avanzamento.Max();
    if (percento == percento_) return;
    percento_ = percento;
    const int piene = percento * kLarghezza / 100;
    std::cerr << "\r[" << std::string(static_cast<std::size_t>(piene), '#')
              << std::string(static_cast<std::size_t>(kLarghezza - piene), ' ') << "] " << percento << "%"
              << std::flush;
  }
  void togli() const {
    if (percento_ >= 0) std::cerr << '\r' << std::string(kLarghezza + 8, ' ') << '\r' << std::flush;
  }

 private:
  static constexpr int kLarghezza = 50;
  bool terminale_ = ::isatty(STDERR_FILENO) != 0;
  int percento_ = -1;
};

struct Scelte {
  std::string inizio, fine, scelto = "1";
  std::optional<std::string> metodo;
};

void statistica(Sessione& sessione, const Scelte& scelte) {
  auto& globals = sessione.programma().globals;
  const int scelto = numeroIntero(scelte.scelto, "--scelto");
  if (scelto < INT16_MIN || scelto > INT16_MAX) throw UsoErrato("--scelto è fuori misura: " + scelte.scelto);
  globals.MetodoScelto = static_cast<std::int16_t>(scelto);
  CorniceVuota cornice;
  frmStatistica frm(sessione.programma(), cornice);
  if (scelte.metodo) frm.metodo.scegliNome(*scelte.metodo);
  frm.Form_Load();
  frm.txtestr[0].Text(scelte.inizio);
  frm.txtestr[1].Text(scelte.fine);

  BarraSuTerminale barra;
  frm.prgbar.osserva([&] { barra.mostra(frm.prgbar); });
  {
    const StopConCtrlC ctrlC(sessione.servizi, frm);
    globals.StopElaborazione = false;
    frm.btnElabora_Click();
  }
  barra.togli();
  if (globals.StopElaborazione)
    sessione.esito = kInterrotto;
  else if (!sessione.servizi.rifiutato())
    std::cout << frm.RichTextBox1.Text();
}

}  // namespace

void aggiungiStatistica(CLI::App& app, Sessione& sessione) {
  auto* comando = app.add_subcommand(
      "statistica",
      "Giudica le previsioni di un intervallo di estrazioni (Stat.txt, Vincite.txt, PrevGioco.txt)");
  auto scelte = std::make_shared<Scelte>();
  comando->add_option("INIZIO", scelte->inizio, "Numero della prima estrazione")->required();
  comando->add_option("FINE", scelte->fine, "Numero dell'ultima estrazione")->required();
  comando->add_option("--metodo", scelte->metodo, "Un solo metodo, invece di tutti")->type_name("NOME");
  comando->add_option("--scelto", scelte->scelto, "Metodo scelto dalla barra degli strumenti")
      ->type_name("K")
      ->capture_default_str();
  comando->callback([&sessione, scelte] { statistica(sessione, *scelte); });
}

}  // namespace vaticlo
