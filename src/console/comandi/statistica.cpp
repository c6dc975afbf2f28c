#include <iostream>

#include "console/barra.h"
#include "console/comandi/avvisi.h"
#include "console/comandi/comandi.h"
#include "console/cornice_vuota.h"
#include "console/ctrl_c.h"
#include "console/sessione.h"
#include "console/uscita.h"
#include "dialogs/frm_statistica.h"
#include "platform/conversione.h"

namespace vaticlo::comandi {

namespace {

/// While it lives, Ctrl-C asks the run for a stop.
class StopConCtrlC {
 public:
  StopConCtrlC(ServiziConsole& servizi, frmStatistica& frm) : servizi_(servizi) {
    servizi_.eventi([&frm] {
      if (CtrlC::premuto()) frm.btnStop_Click();
    });
  }
  StopConCtrlC(const StopConCtrlC&) = delete;
  StopConCtrlC& operator=(const StopConCtrlC&) = delete;
  ~StopConCtrlC() { servizi_.eventi({}); }

 private:
  ServiziConsole& servizi_;
  CtrlC ctrlC_;
};

Json totali(const Globals& g, const frmStatistica& frm) {
  return {{"inizio", inIntero16(frm.txtestr[0].Text())},
          {"fine", inIntero16(frm.txtestr[1].Text())},
          {"giocabili", g.ContaGiocabili},
          {"nonGiocabili", g.ContaNonGiocabili},
          {"vincenti", g.ContaVincenti},
          {"negative", g.ContaNegative()},
          {"inGioco", g.ContaInGioco},
          {"ambate", g.AmbateVincenti},
          {"ambiRuota", g.AmbiRuota},
          {"ambiTutte", g.AmbiTutte},
          {"ambiSorti", g.AmbiSorti},
          {"terniSorti", g.TerniSorti},
          {"quaterneSorti", g.QuaterneSorti},
          {"cinquineSorti", g.CinquineSorti},
          {"rapporto", frm.RichTextBox1.Text()}};
}

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
  frm.prgbar.osserva([&] { barra.mostra(frm.prgbar.Value(), frm.prgbar.Max()); });
  {
    const StopConCtrlC ctrlC(sessione.servizi, frm);
    globals.StopElaborazione = false;
    frm.btnElabora_Click();
  }
  barra.togli();
  if (globals.StopElaborazione) return kInterrotto;
  if (sessione.servizi.rifiutato()) return kFatto;
  stampa({.oggetto = totali(globals, frm), .testo = [&] { std::cout << frm.RichTextBox1.Text(); }},
         argomenti);
  return esitoDeiRapporti(programma);
}

}  // namespace vaticlo::comandi
