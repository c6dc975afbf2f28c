#include "platform/testo.h"

#include <array>
#include <cstdlib>
#include <memory>

#include <utf8proc.h>

namespace vaticlo {

namespace {

constexpr int kMassimoCitato = 60;  // characters

// Takes the next character away from the front of `testo`. Nothing, and one byte gone, when it is no UTF-8.
std::optional<utf8proc_int32_t> prossimo(std::string_view& testo) {
  utf8proc_int32_t carattere = 0;
  const auto letti = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(testo.data()),
                                      static_cast<utf8proc_ssize_t>(testo.size()), &carattere);
  testo.remove_prefix(letti > 0 ? static_cast<std::size_t>(letti) : 1);
  return letti > 0 ? std::optional(carattere) : std::nullopt;
}

}  // namespace

std::string_view senzaBlanchi(std::string_view testo) {
  const auto primo = testo.find_first_not_of(' ');
  if (primo == std::string_view::npos) return {};
  return testo.substr(primo, testo.find_last_not_of(' ') - primo + 1);
}

std::vector<std::string_view> dividi(std::string_view testo, char separatore) {
  std::vector<std::string_view> elementi;
  if (testo.empty()) return elementi;
  for (std::size_t inizio = 0;;) {
    const auto fine = testo.find(separatore, inizio);
    elementi.push_back(testo.substr(inizio, fine - inizio));
    if (fine == std::string_view::npos) return elementi;
    inizio = fine + 1;
  }
}

std::string maiuscolo(std::string_view testo) {
  std::string risultato;
  risultato.reserve(testo.size());
  while (!testo.empty()) {
    const auto primo = testo.front();
    if (static_cast<unsigned char>(primo) < 0x80) {
      risultato += static_cast<char>(primo >= 'a' && primo <= 'z' ? primo - 'a' + 'A' : primo);
      testo.remove_prefix(1);
    } else if (const auto carattere = prossimo(testo)) {
      std::array<utf8proc_uint8_t, 4> codificato{};
      const auto scritti = utf8proc_encode_char(utf8proc_toupper(*carattere), codificato.data());
      risultato.append(reinterpret_cast<const char*>(codificato.data()), static_cast<std::size_t>(scritti));
    } else {
      risultato += primo;
    }
  }
  return risultato;
}

std::optional<std::string> formaDiConfronto(std::string_view testo) {
  utf8proc_uint8_t* forma = nullptr;
  const auto ottetti = utf8proc_map(
      reinterpret_cast<const utf8proc_uint8_t*>(testo.data()), static_cast<utf8proc_ssize_t>(testo.size()),
      &forma, static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD));
  const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> tenuta(forma, &std::free);
  if (ottetti < 0) return std::nullopt;
  return std::string(reinterpret_cast<const char*>(forma), static_cast<std::size_t>(ottetti));
}

std::string_view senzaMarca(std::string_view testo) {
  constexpr std::string_view kMarca = "\xEF\xBB\xBF";
  return testo.starts_with(kMarca) ? testo.substr(kMarca.size()) : testo;
}

bool inUtf16(std::string_view testo) {
  if (testo.size() < 2) return false;
  return testo.starts_with("\xFF\xFE") || testo.starts_with("\xFE\xFF") ||
         (testo[0] == '\0') != (testo[1] == '\0');
}

std::string citazione(std::string_view testo) {
  std::string citata;
  for (int n = 0; !testo.empty(); ++n) {
    if (n == kMassimoCitato) return citata + "…";
    const auto prima = testo;
    const auto carattere = prossimo(testo);
    const bool visibile = carattere && utf8proc_category(*carattere) != UTF8PROC_CATEGORY_CC &&
                          utf8proc_category(*carattere) != UTF8PROC_CATEGORY_CF;
    citata += visibile ? prima.substr(0, prima.size() - testo.size()) : "?";
  }
  return citata;
}

}  // namespace vaticlo
