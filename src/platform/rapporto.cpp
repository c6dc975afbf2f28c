#include "platform/rapporto.h"

#include <utility>

#include <fcntl.h>

#include "platform/file_intero.h"

namespace vaticlo {

namespace {
constexpr std::size_t kAttesa = 65536;
}

std::string testoRapporto(const std::filesystem::path& percorso) {
  auto testo = daPagina(contenutoFile(percorso));
  std::erase(testo, '\r');
  return testo;
}

FileRapporto::FileRapporto(const std::filesystem::path& percorso)
    : percorso_(percorso), file_(percorso, O_WRONLY | O_CREAT | O_TRUNC) {}

FileRapporto::~FileRapporto() {
  try {
    chiudi();
  } catch (const RuntimeFailure&) {
    // Whoever wants to know of it calls chiudi().
  }
}

void FileRapporto::fineRiga() {
  attesa_ += "\r\n";
  if (attesa_.size() >= kAttesa) svuota();
}

void FileRapporto::chiudi() { svuota(); }

void FileRapporto::svuota() {
  const auto righe = std::exchange(attesa_, {});
  file_.scrivi(righe, percorso_);
}

}  // namespace vaticlo
