#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vaticlo {

/// A prediction as the scans see it: one slot of a method, decoded.
struct Previsione {
  std::string Metodo;
  int NumeroPrevisione = 0;
  std::int16_t EstrazioneCalcolo = 0;  ///< the draw it was calculated on; the next one is its first colpo
  std::uint8_t GiornoCalcolo = 0, MeseCalcolo = 0, SecoloCalcolo = 0, AnnoCalcolo = 0;
  std::string NumeroTelefono;  ///< "899.12.34", or empty
  std::vector<int> Ruote;      ///< wheel codes in stored order, `Tutte` left out
  bool Tutte = false;          ///< played on all wheels; counts for the ambi alone
  std::uint8_t Colpi = 0;      ///< draws of the play period
  std::vector<std::uint8_t> Ambate;
  std::vector<std::pair<std::int16_t, std::int16_t>> Ambi;
  std::vector<std::vector<std::int16_t>> Sup;  ///< combinations of the sorti superiori, of any length

  /// Drops the bets, as every judge does when it is through with a prediction.
  void lasciaGiocate() {
    Ambate.clear();
    Ambi.clear();
    Sup.clear();
  }
};

}  // namespace vaticlo
