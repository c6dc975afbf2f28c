#include "platform/percorso.h"

#include <windows.h>

namespace vaticlo {

// The library would read the bytes of a text in another page, and throws at what it can't turn into one.
std::filesystem::path percorsoDa(std::string_view testo) {
  const auto lungo = static_cast<int>(testo.size());
  std::wstring nome(testo.size(), L'\0');
  nome.resize(static_cast<std::size_t>(
      ::MultiByteToWideChar(CP_UTF8, 0, testo.data(), lungo, nome.data(), static_cast<int>(nome.size()))));
  return nome;
}

std::string testoDi(const std::filesystem::path& percorso) {
  const auto& nome = percorso.native();
  std::string testo(nome.size() * 3, '\0');
  testo.resize(static_cast<std::size_t>(
      ::WideCharToMultiByte(CP_UTF8, 0, nome.data(), static_cast<int>(nome.size()), testo.data(),
                            static_cast<int>(testo.size()), nullptr, nullptr)));
  return testo;
}

bool portaFuori(std::string_view nome) {
  return nome.find_first_of(std::string_view("/\\:\0", 4)) != nome.npos;
}

}  // namespace vaticlo
