#include "platform/cartella.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "platform/failure.h"
#include "platform/percorso.h"
#include "platform/testo.h"

namespace vaticlo {

namespace fs = std::filesystem;

std::vector<std::string> elencaFile(const fs::path& cartella) {
  std::error_code codice;
  fs::directory_iterator voce(cartella, codice);
  if (codice == std::errc::no_such_file_or_directory) return {};

  std::vector<std::pair<std::string, std::string>> chiavi;
  for (const fs::directory_iterator fine; voce != fine; voce.increment(codice)) {
    std::error_code ignorato;
    auto nome = nomeFile(voce->path());
    if (!nome.starts_with('.') && voce->is_regular_file(ignorato)) {
      auto chiave = maiuscolo(nome);
      chiavi.emplace_back(std::move(chiave), std::move(nome));
    }
  }
  // A failure ends the walk as the last entry does.
  if (codice) throw RuntimeFailure(Errore::AccessoAlFile, nomeFile(cartella));
  std::sort(chiavi.begin(), chiavi.end());

  std::vector<std::string> nomi;
  nomi.reserve(chiavi.size());
  for (auto& chiave : chiavi) nomi.push_back(std::move(chiave.second));
  return nomi;
}

}  // namespace vaticlo
