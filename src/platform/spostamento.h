#pragma once

#include <filesystem>
#include <memory>
#include <system_error>

namespace vaticlo {

/// The place that a file moves to.
enum class Posto {
  Libero,     ///< there must be no file: std::errc::file_exists
  Qualunque,  ///< a file that is there goes
};

/// Gives a file or a folder another name in the same file system, in one step. Whoever asks for a free place
/// holds the folder.
[[nodiscard]] std::error_code sposta(const std::filesystem::path& da, const std::filesystem::path& a,
                                     Posto posto);

/// Takes a file away, if there is one.
void togliFile(const std::filesystem::path& percorso);

/// Brings the files of a folder to the disk, at once where the system can: one after the other would wait for
/// the disk as often as there are files. Fails as failureDiSistema() says.
void sincronizzaTutti(const std::filesystem::path& cartella);

/// Whether a file can be put into the folder, whether one can be written, as far as the system tells.
[[nodiscard]] bool siPuoAggiungere(const std::filesystem::path& cartella);
[[nodiscard]] bool siPuoModificare(const std::filesystem::path& file);

/// Holds the signals off that would end the program half-way.
class SegnaliFermi {
 public:
  SegnaliFermi();
  SegnaliFermi(const SegnaliFermi&) = delete;
  SegnaliFermi& operator=(const SegnaliFermi&) = delete;
  ~SegnaliFermi();

 private:
  struct Prima;
  std::unique_ptr<Prima> prima_;
};

}  // namespace vaticlo
