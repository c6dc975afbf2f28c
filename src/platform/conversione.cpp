#include "platform/conversione.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

#include "platform/failure.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

bool cifra(char c) { return c >= '0' && c <= '9'; }

// nearbyint() follows the default rounding mode: to nearest, halves to even.
template <class Intero>
Intero inIntero(std::string_view testo) {
  const auto numero = numeroDaTesto(testo);
  if (!numero) throw RuntimeFailure(Errore::TipoNonCorrispondente);
  const double intero = std::nearbyint(*numero);
  if (intero < std::numeric_limits<Intero>::min() || intero > std::numeric_limits<Intero>::max())
    throw RuntimeFailure(Errore::Overflow);
  return static_cast<Intero>(intero);
}

}  // namespace

std::optional<int> cifre(std::string_view testo) {
  if (testo.empty() || testo.size() > 4 || !std::all_of(testo.begin(), testo.end(), cifra))
    return std::nullopt;
  int valore = 0;
  for (const char c : testo) valore = valore * 10 + (c - '0');
  return valore;
}

std::optional<double> numeroDaTesto(std::string_view testo) {
  auto resto = senzaBlanchi(testo);
  const bool negativo = resto.starts_with('-');
  if (negativo || resto.starts_with('+')) resto.remove_prefix(1);
  const auto virgola = std::min(resto.find(','), resto.size());
  const auto interi = resto.substr(0, virgola);
  const auto decimali = resto.substr(std::min(virgola + 1, resto.size()));
  if (interi.empty() || !std::ranges::all_of(interi, cifra) || !std::ranges::all_of(decimali, cifra))
    return std::nullopt;

  double valore = 0;
  const auto comune = std::string(interi).append(".").append(decimali);
  const auto letto =
      std::from_chars(comune.data(), comune.data() + comune.size(), valore, std::chars_format::fixed);
  if (letto.ec == std::errc::result_out_of_range && interi.find_first_not_of('0') != std::string_view::npos)
    valore = std::numeric_limits<double>::infinity();
  return negativo ? -valore : valore;
}

std::optional<int> interoTra(std::string_view testo, int min, int max) {
  const auto valore = numeroDaTesto(testo);
  if (!valore || *valore < min || *valore > max || *valore != std::trunc(*valore)) return std::nullopt;
  return static_cast<int>(*valore);
}

std::uint8_t inByte(std::string_view testo) { return inIntero<std::uint8_t>(testo); }

std::int16_t inIntero16(std::string_view testo) { return inIntero<std::int16_t>(testo); }

double arrotonda(double valore, int decimali) {
  const double scala = std::pow(10, decimali);
  return std::nearbyint(valore * scala) / scala;
}

std::string testoDiNumero(double valore) {
  std::array<char, 32> cifre{};
  const auto fine =
      std::to_chars(cifre.data(), cifre.data() + cifre.size(), valore, std::chars_format::general, 15).ptr;
  std::string testo(cifre.data(), fine);
  std::replace(testo.begin(), testo.end(), '.', ',');
  return testo;
}

}  // namespace vaticlo
