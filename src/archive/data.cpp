#include "archive/data.h"

#include <array>
#include <string>

#include "platform/conversione.h"
#include "platform/testo.h"

namespace vaticlo {

std::optional<Data> dataDiCalendario(int giorno, int mese, int anno) {
  if (giorno < 1 || mese < 1) return std::nullopt;
  const Data data{std::chrono::year{anno}, std::chrono::month{static_cast<unsigned>(mese)},
                  std::chrono::day{static_cast<unsigned>(giorno)}};
  if (!data.ok()) return std::nullopt;
  return data;
}

std::optional<Data> dataDaTesto(std::string_view testo) {
  testo = senzaBlanchi(testo);
  std::array<std::string_view, 3> parti;
  for (std::size_t n = 0; n < 2; ++n) {
    const auto fine = testo.find_first_of("/-.");
    if (fine == std::string_view::npos) return std::nullopt;
    parti[n] = testo.substr(0, fine);
    testo.remove_prefix(fine + 1);
  }
  parti[2] = testo;

  const auto g = cifre(parti[0]), m = cifre(parti[1]), a = cifre(parti[2]);
  if (!g || !m || !a || parti[0].size() > 2 || parti[1].size() > 2) return std::nullopt;
  if (parti[2].size() != 2 && parti[2].size() != 4) return std::nullopt;
  const int annoIntero = parti[2].size() == 4 ? *a : *a < 30 ? 2000 + *a : 1900 + *a;
  return dataDiCalendario(*g, *m, annoIntero);
}

std::optional<Data> dataDigitata(std::string_view testo) {
  testo = senzaBlanchi(testo);
  if ((testo.size() != 6 && testo.size() != 8) || testo.find_first_of("/-.") != std::string_view::npos)
    return dataDaTesto(testo);
  const std::string intera(testo);
  return dataDaTesto(intera.substr(0, 2) + '/' + intera.substr(2, 2) + '/' + intera.substr(4));
}

int giorno(const Data& data) { return static_cast<int>(static_cast<unsigned>(data.day())); }
int mese(const Data& data) { return static_cast<int>(static_cast<unsigned>(data.month())); }
int anno(const Data& data) { return static_cast<int>(data.year()); }
int annoDueCifre(const Data& data) { return anno(data) % 100; }

int secoloDiRicerca(int annoDueCifre) { return annoDueCifre < 45 ? 20 : 19; }

}  // namespace vaticlo
