#include <csignal>
#include <iostream>

#include <unistd.h>

#include "console/comandi/avvisi.h"
#include "console/comandi/comandi.h"
#include "console/cornice_vuota.h"
#include "console/sessione.h"
#include "dialogs/frm_statistica.h"

namespace vaticlo::comandi {

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

}  // namespace

Esito statistica(Sessione& sessione, const Argomenti& argomenti) {
  const auto metodo = argomenti.seDato("--metodo");
  auto& programma = sessione.programma();
  auto& globals = programma.globals;
  const int scelto = argomenti.intero("--scelto");
  if (scelto < INT16_MIN || scelto > INT16_MAX)
    throw UsoErrato("--scelto è fuori misura: " + argomenti["--scelto"]);
  globals.MetodoScelto = static_cast<std::int16_t>(scelto);
  avvisaDeiMetodi(programma, metodo);
  CorniceVuota cornice;
  frmStatistica frm(programma, cornice);
  if (metodo) frm.metodo.scegliNome(*metodo);
  frm.Form_Load();
  frm.txtestr[0].Text(argomenti["INIZIO"]);
  frm.txtestr[1].Text(argomenti["FINE"]);

  BarraSuTerminale barra;
  frm.prgbar.osserva([&] { barra.mostra(frm.prgbar); });
  {
    const StopConCtrlC ctrlC(sessione.servizi, frm);
    globals.StopElaborazione = false;
    frm.btnElabora_Click();
  }
  barra.togli();
  if (globals.StopElaborazione) return kInterrotto;
  if (sessione.servizi.rifiutato()) return kFatto;
  std::cout << frm.RichTextBox1.Text();
  return esitoDeiRapporti(programma);
}

}  // namespace vaticlo::comandi
