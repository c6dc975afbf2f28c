#include "platform/rapporto.h"

#include <utility>

#include "platform/file_intero.h"

namespace vaticlo {

namespace {
constexpr std::size_t kAttesa = 65536;
}

std::string testoRapporto(const std::filesystem::path& percorso) {
  // A device in the place of a report keeps nothing, or has no end.
  std::error_code ignorato;
  if (std::filesystem::is_other(percorso, ignorato)) return "";
  auto testo = daPagina(contenutoFile(percorso));
  std::erase(testo, '\r');
  return testo;
}

FileRapporto::FileRapporto(const std::filesystem::path& percorso)
    : percorso_(percorso), file_(std::in_place, percorso, Apertura::DaCapo) {}

FileRapporto::~FileRapporto() { concludi(); }

void FileRapporto::fineRiga() {
  if (!file_) throw RuntimeFailure(Errore::NomeFile, nome());
  attesa_ += "\r\n";
  if (attesa_.size() >= kAttesa) svuota();
}

bool FileRapporto::concludi() {
  if (!file_) return intero_;
  svuota();
  prova([&] { file_->chiudi(percorso_); });
  file_.reset();
  return intero_;
}

void FileRapporto::svuota() {
  const auto righe = std::exchange(attesa_, {});
  if (intero_) prova([&] { file_->scrivi(righe, percorso_); });
}

void FileRapporto::prova(const std::function<void()>& passo) {
  try {
    passo();
  } catch (const RuntimeFailure&) {
    intero_ = false;
  }
}

}  // namespace vaticlo
