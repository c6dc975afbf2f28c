#include "platform/pagina_codici.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <utf8proc.h>

namespace vaticlo {

namespace {

// What stands at 0x80 to 0x9F, where Windows-1252 differs from Latin-1; 0 where nothing stands.
constexpr std::array<std::int32_t, 32> kAlta = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char nellaPagina(std::int32_t carattere) {
  if (carattere < 0x80 || (carattere >= 0xA0 && carattere <= 0xFF)) return static_cast<char>(carattere);
  const auto posto = std::find(kAlta.begin(), kAlta.end(), carattere);
  return posto == kAlta.end() ? '?' : static_cast<char>(0x80 + (posto - kAlta.begin()));
}

}  // namespace

void aggiungiInPagina(std::string& pagina, std::string_view testo) {
  while (!testo.empty()) {
    const auto ascii = std::find_if(testo.begin(), testo.end(), [](char c) { return (c & 0x80) != 0; });
    const auto semplici = static_cast<std::size_t>(ascii - testo.begin());
    pagina.append(testo.substr(0, semplici));
    testo.remove_prefix(semplici);
    if (testo.empty()) return;

    utf8proc_int32_t carattere = 0;
    const auto letti = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(testo.data()),
                                        static_cast<utf8proc_ssize_t>(testo.size()), &carattere);
    pagina += letti > 0 ? nellaPagina(carattere) : '?';
    testo.remove_prefix(letti > 0 ? static_cast<std::size_t>(letti) : 1);
  }
}

std::string daPagina(std::string_view pagina) {
  std::string testo;
  testo.reserve(pagina.size() + pagina.size() / 16);
  for (const char c : pagina) {
    const auto ottetto = static_cast<unsigned char>(c);
    std::int32_t carattere = ottetto;
    if (ottetto >= 0x80 && ottetto < 0xA0) carattere = kAlta[ottetto - 0x80U];
    if (carattere == 0 && ottetto != 0) carattere = '?';
    std::array<utf8proc_uint8_t, 4> codificato{};
    const auto scritti = utf8proc_encode_char(carattere, codificato.data());
    testo.append(reinterpret_cast<const char*>(codificato.data()), static_cast<std::size_t>(scritti));
  }
  return testo;
}

}  // namespace vaticlo
