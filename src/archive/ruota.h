#pragma once

#include <array>
#include <string_view>

namespace vaticlo {

/// A wheel of the game as the program shows it.
struct Ruota {
  std::string_view nome;
  std::string_view sigla;
};

inline constexpr int kNumeri = 90;  ///< the numbers of the game: 1 to 90
inline constexpr int kRuote = 11;
inline constexpr int kTutte = 12;  ///< the wheel code of predictions for "all wheels"

/// The wheels 1 to 11 in their order; index 0 is Bari.
inline constexpr std::array<Ruota, kRuote> kTavolaRuote = {{{"Bari", "Ba"},
                                                            {"Cagliari", "Ca"},
                                                            {"Firenze", "Fi"},
                                                            {"Genova", "Ge"},
                                                            {"Milano", "Mi"},
                                                            {"Napoli", "Na"},
                                                            {"Palermo", "Pa"},
                                                            {"Roma", "Ro"},
                                                            {"Torino", "To"},
                                                            {"Venezia", "Ve"},
                                                            {"Nazionale", "Naz"}}};

/// The abbreviation of wheel 1 to 11; empty for any other index.
[[nodiscard]] std::string_view SiglaRuota(int ruota);

/// The same, and "Tutte" for the code 12.
[[nodiscard]] std::string_view SiglaRuotaTutte(int codice);

}  // namespace vaticlo
