#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vaticlo {

/// The path that a text (UTF-8) names. Where names are no bytes, what is no UTF-8 names a file that is not
/// there.
[[nodiscard]] std::filesystem::path percorsoDa(std::string_view testo);
/// A path as a text: UTF-8, as far as the name in the file system is.
[[nodiscard]] std::string testoDi(const std::filesystem::path& percorso);
/// The last name of a path as a text.
[[nodiscard]] inline std::string nomeFile(const std::filesystem::path& percorso) {
  return testoDi(percorso.filename());
}

/// Whether a text that stands for the name of a file would, behind a folder, lead to another place.
[[nodiscard]] bool portaFuori(std::string_view nome);

/// The characters, besides control characters, that some system takes in no name of a file.
inline constexpr std::string_view kVietatiNeiNomi = "<>:\"/\\|?*";

}  // namespace vaticlo
