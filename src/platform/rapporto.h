#pragma once

#include <charconv>
#include <concepts>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/descrittore.h"
#include "platform/pagina_codici.h"
#include "platform/percorso.h"

namespace vaticlo {

/// The text of a report as a person reads it: UTF-8, lines ended by "\n". Fails with
/// Errore::FileNonTrovato when there is no such file.
[[nodiscard]] std::string testoRapporto(const std::filesystem::path& percorso);

/// A report file: text lines in the 8-bit code page, each ended by carriage return and line feed. Opening
/// creates or empties it. Whole lines reach the disk: when some are waiting, on concludi(), and at the end of
/// its life whatever happens, so that a failure of the run leaves every line written before it. A disk that
/// does not take them stops no run: nothing more is written then.
class FileRapporto {
 public:
  /// Fails with Errore::AccessoAlFile or PercorsoNonTrovato when the file can't be opened for writing.
  explicit FileRapporto(const std::filesystem::path& percorso);
  FileRapporto(FileRapporto&&) = delete;
  FileRapporto& operator=(FileRapporto&&) = delete;
  ~FileRapporto();

  /// Writes one line made of texts (UTF-8) and whole numbers. Fails with Errore::NomeFile when the report is
  /// closed.
  template <class... Pezzi>
  void riga(const Pezzi&... pezzi) {
    (aggiungi(pezzi), ...);
    fineRiga();
  }

  /// Brings the last lines to the disk and closes the file: whether every line, from the first one on, has
  /// reached it.
  bool concludi();
  /// The name of the file.
  [[nodiscard]] std::string nome() const { return nomeFile(percorso_); }

 private:
  void aggiungi(std::string_view testo) { aggiungiInPagina(attesa_, testo); }
  void aggiungi(std::integral auto numero) {
    char cifre[24];
    attesa_.append(cifre, std::to_chars(cifre, cifre + sizeof cifre, numero).ptr);
  }
  void fineRiga();
  void svuota();
  void prova(const std::function<void()>& passo);

  std::filesystem::path percorso_;
  std::optional<Descrittore> file_;  ///< none once it is closed
  std::string attesa_;
  bool intero_ = true;
};

}  // namespace vaticlo
