#include "platform/descrittore.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace vaticlo {

Descrittore::Descrittore(const std::filesystem::path& percorso, int opzioni,
                         const std::filesystem::path& nominato)
    : fd_(::open(percorso.c_str(), opzioni | O_CLOEXEC | O_NONBLOCK, 0666)) {
  if (fd_ < 0) throw failureDiSistema(errno, nominato);
}

Descrittore::~Descrittore() {
  if (fd_ >= 0) ::close(fd_);
}

RuntimeFailure failureDiSistema(int codice, const std::filesystem::path& percorso) {
  const auto nome = percorso.filename().string();
  std::error_code ignorato;
  switch (codice) {
    case ENOENT:
      return {percorso.has_parent_path() && !std::filesystem::exists(percorso.parent_path(), ignorato)
                  ? Errore::PercorsoNonTrovato
                  : Errore::FileNonTrovato,
              nome};
    case ENOTDIR:
      return {Errore::PercorsoNonTrovato, nome};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return {Errore::DiscoPieno, nome};
    case EIO:
      return {Errore::DispositivoIO, nome};
    default:
      return {Errore::AccessoAlFile, nome};
  }
}

void Descrittore::scrivi(std::string_view dati, const std::filesystem::path& percorso) const {
  while (!dati.empty()) {
    const auto scritti = ::write(fd_, dati.data(), dati.size());
    if (scritti < 0 && errno == EINTR) continue;
    if (scritti <= 0) throw failureDiSistema(scritti < 0 ? errno : EIO, percorso);
    dati.remove_prefix(static_cast<std::size_t>(scritti));
  }
}

std::size_t Descrittore::leggi(std::span<std::uint8_t> dati, const std::filesystem::path& percorso) const {
  std::size_t pieni = 0;
  while (pieni < dati.size()) {
    const auto letti = ::read(fd_, dati.data() + pieni, dati.size() - pieni);
    if (letti < 0 && errno == EINTR) continue;
    if (letti < 0) throw RuntimeFailure(Errore::DispositivoIO, percorso.filename().string());
    if (letti == 0) break;
    pieni += static_cast<std::size_t>(letti);
  }
  return pieni;
}

void Descrittore::sincronizza(const std::filesystem::path& percorso) const {
  while (::fsync(fd_) != 0) {
    if (errno == EINTR) continue;
    if (errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP) return;
    throw failureDiSistema(errno, percorso);
  }
}

void Descrittore::chiudi(const std::filesystem::path& percorso) {
  // An interrupted close has closed.
  if (::close(std::exchange(fd_, -1)) != 0 && errno != EINTR) throw failureDiSistema(errno, percorso);
}

}  // namespace vaticlo
