#include "platform/testo.h"

#include <array>

#include <utf8proc.h>

namespace vaticlo {

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
  for (std::size_t i = 0; i < testo.size();) {
    const auto ottetto = static_cast<unsigned char>(testo[i]);
    if (ottetto < 0x80) {
      risultato += static_cast<char>(ottetto >= 'a' && ottetto <= 'z' ? ottetto - 'a' + 'A' : ottetto);
      ++i;
      continue;
    }
    utf8proc_int32_t carattere = 0;
    const auto letti = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(testo.data() + i),
                                        static_cast<utf8proc_ssize_t>(testo.size() - i), &carattere);
    if (letti <= 0) {
      risultato += testo[i++];
      continue;
    }
    std::array<utf8proc_uint8_t, 4> codificato{};
    const auto scritti = utf8proc_encode_char(utf8proc_toupper(carattere), codificato.data());
    risultato.append(reinterpret_cast<const char*>(codificato.data()), static_cast<std::size_t>(scritti));
    i += static_cast<std::size_t>(letti);
  }
  return risultato;
}

}  // namespace vaticlo
