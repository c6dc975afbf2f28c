#include "console/suggerimento.h"

#include <algorithm>

namespace vaticlo {

namespace {

// How many slips of the hand lead from one word to the other: a letter left out, added, replaced, or two
// neighbours swapped.
std::size_t errori(std::string_view a, std::string_view b) {
  std::vector<std::vector<std::size_t>> passi(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = 0; i <= a.size(); ++i)
    for (std::size_t j = 0; j <= b.size(); ++j) {
      auto& qui = passi[i][j];
      if (i == 0 || j == 0) {
        qui = i + j;
        continue;
      }
      const std::size_t cambio = a[i - 1] == b[j - 1] ? 0 : 1;
      qui = std::min({passi[i - 1][j] + 1, passi[i][j - 1] + 1, passi[i - 1][j - 1] + cambio});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        qui = std::min(qui, passi[i - 2][j - 2] + 1);
    }
  return passi[a.size()][b.size()];
}

}  // namespace

std::string forse(std::string_view parola, const std::vector<std::string>& nomi) {
  constexpr std::size_t kMassimo = 40;  // no name is as long
  if (parola.size() > kMassimo) return "";
  std::string_view trovato;
  std::size_t meno = parola.size() / 3 + 1;
  for (const auto& nome : nomi)
    if (const auto quanti = errori(parola, nome); quanti < meno) {
      meno = quanti;
      trovato = nome;
    }
  return trovato.empty() ? "" : " (forse " + std::string(trovato) + "?)";
}

}  // namespace vaticlo
