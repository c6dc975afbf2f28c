#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "program/previsione.h"

namespace vaticlo {

/// The public values that pass between dialogs and engines. They live as long as the program; whoever writes
/// last wins, and an operation resets only what its behaviour says.
struct Globals {
  // The choice that the main window passes to a dialog.
  std::int16_t MetodoScelto = 0;
  bool PrevisioneInModifica = false;

  // Draws on the screen and under judgement.
  int EstrazioneCorrente = 0;
  int EstrazioneBase = 0;
  int UltimaEstrazione = 0;
  std::int16_t UltimaEstrazione16 = 0;
  int EstrazioneSomdif = 0;

  // The methods of the run, and the prediction decoded last.
  std::vector<std::string> ElencoMetodi;
  Previsione previsione;

  // The outcome of the last run.
  int ContaGiocabili = 0;
  int ContaVincenti = 0;
  int ContaInGioco = 0;
  std::int16_t ContaNonGiocabili = 0;  ///< Meant: reset and printed, never raised.
  int AmbateVincenti = 0;
  int AmbiRuota = 0;
  int AmbiTutte = 0;  ///< Meant: never reset while the program runs.
  int AmbiSorti = 0;
  int TerniSorti = 0;
  int QuaterneSorti = 0;
  int CinquineSorti = 0;

  bool RapportiInteri = true;  ///< whether the disk took the reports whole

  bool SoloVincenti = false;
  std::string TestoEsito;
  bool StopElaborazione = false;
  bool VistaVincite = false;

  /// A window opens on the archive: its last draw becomes the one on the screen. `primoLibero`: the first
  /// free slot, which the windows take for the draw on the screen until their scroll bar moves.
  void apriSullUltima(int primoLibero) {
    EstrazioneCorrente = primoLibero;
    UltimaEstrazione = primoLibero - 1;
  }
  /// Draw n is on the screen, and what is judged was calculated on it.
  void mostra(int n) { EstrazioneCorrente = EstrazioneBase = n; }

  /// The predictions judged to their end without a win.
  [[nodiscard]] int ContaNegative() const { return ContaGiocabili - (ContaVincenti + ContaInGioco); }
  [[nodiscard]] int NumeroMetodi() const { return static_cast<int>(ElencoMetodi.size()); }
};

}  // namespace vaticlo
