#include "platform/file_accanto.h"

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/file_intero.h"
#include "platform/percorso.h"
#include "platform/spostamento.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMassimoNome = 240;  // of the 255 bytes of a name
constexpr std::string_view kFine = ".nuovo";

Descrittore nuovoFile(const fs::path& percorso, const fs::path& destinazione) {
  togliFile(percorso);
  return {percorso, Apertura::Nuova, destinazione};
}

}  // namespace

fs::path FileAccanto::nomeAccanto(const fs::path& destinazione) {
  return destinazione.parent_path() /
         percorsoDa("." + nomeFile(destinazione).substr(0, kMassimoNome) + std::string(kFine));
}

void togliResti(const fs::path& cartella) {
  std::error_code codice;
  std::vector<fs::path> resti;
  for (fs::directory_iterator voce(cartella, codice), fine; voce != fine; voce.increment(codice))
    if (const auto nome = nomeFile(voce->path()); nome.starts_with('.') && nome.ends_with(kFine))
      resti.push_back(voce->path());
  for (const auto& resto : resti) togliFile(resto);
}

FileAccanto::FileAccanto(const fs::path& destinazione)
    : percorso_(nomeAccanto(destinazione)),
      destinazione_(destinazione),
      file_(nuovoFile(percorso_, destinazione)) {}

FileAccanto::~FileAccanto() { togliFile(percorso_); }

void FileAccanto::finisci() {
  file_.sincronizza(destinazione_);
  file_.chiudi(destinazione_);
}

void FileAccanto::prendiPostoLibero() const { rinominaFile(percorso_, destinazione_); }

}  // namespace vaticlo
