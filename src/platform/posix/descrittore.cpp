#include "platform/descrittore.h"

#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/percorso.h"
#include "platform/posix/ultimo_errore.h"

namespace vaticlo {

namespace {

int opzioni(Apertura come) {
  switch (come) {
    case Apertura::Lettura:
      return O_RDONLY;
    case Apertura::Modifica:
      return O_RDWR;
    case Apertura::ModificaOCrea:
      return O_RDWR | O_CREAT;
    case Apertura::Nuova:
      return O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
    case Apertura::DaCapo:
      return O_WRONLY | O_CREAT | O_TRUNC;
  }
  return O_RDONLY;
}

int fd(std::intptr_t aperto) { return static_cast<int>(aperto); }

}  // namespace

Descrittore::Descrittore(const std::filesystem::path& percorso, Apertura come,
                         const std::filesystem::path& nominato)
    : aperto_(::open(percorso.c_str(), opzioni(come) | O_CLOEXEC | O_NONBLOCK, 0666)) {
  if (aperto_ == kNessuno) throw failureDiSistema(ultimoErrore(), nominato);
}

Descrittore::~Descrittore() {
  if (aperto_ != kNessuno) ::close(fd(aperto_));
}

std::optional<std::size_t> Descrittore::lunghezza(const std::filesystem::path& percorso) const {
  struct stat stato {};
  if (::fstat(fd(aperto_), &stato) != 0) throw failureDiSistema(ultimoErrore(), percorso);
  if (!S_ISREG(stato.st_mode)) return std::nullopt;
  return static_cast<std::size_t>(stato.st_size);
}

void Descrittore::vaiA(std::size_t posto, const std::filesystem::path& percorso) const {
  if (::lseek(fd(aperto_), static_cast<off_t>(posto), SEEK_SET) < 0)
    throw failureDiSistema(ultimoErrore(), percorso);
}

void Descrittore::tagliaA(std::size_t quanti, const std::filesystem::path& percorso) const {
  if (::ftruncate(fd(aperto_), static_cast<off_t>(quanti)) != 0)
    throw failureDiSistema(ultimoErrore(), percorso);
}

void Descrittore::scrivi(std::string_view dati, const std::filesystem::path& percorso) const {
  while (!dati.empty()) {
    const auto scritti = ::write(fd(aperto_), dati.data(), dati.size());
    if (scritti < 0 && errno == EINTR) continue;
    if (scritti < 0) throw failureDiSistema(ultimoErrore(), percorso);
    if (scritti == 0) throw RuntimeFailure(Errore::DispositivoIO, nomeFile(percorso));
    dati.remove_prefix(static_cast<std::size_t>(scritti));
  }
}

std::size_t Descrittore::leggi(std::span<std::uint8_t> dati, const std::filesystem::path& percorso) const {
  std::size_t pieni = 0;
  while (pieni < dati.size()) {
    const auto letti = ::read(fd(aperto_), dati.data() + pieni, dati.size() - pieni);
    if (letti < 0 && errno == EINTR) continue;
    if (letti < 0) throw RuntimeFailure(Errore::DispositivoIO, nomeFile(percorso));
    if (letti == 0) break;
    pieni += static_cast<std::size_t>(letti);
  }
  return pieni;
}

void Descrittore::attendiLeggendo() const { static_cast<void>(::fcntl(fd(aperto_), F_SETFL, 0)); }

void Descrittore::attendiChiScrive() const {
  pollfd attesa{fd(aperto_), POLLIN, 0};
  while (::poll(&attesa, 1, -1) < 0 && errno == EINTR) {
  }
}

void Descrittore::sincronizza(const std::filesystem::path& percorso) const {
  while (::fsync(fd(aperto_)) != 0) {
    if (errno == EINTR) continue;
    if (errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP) return;
    throw failureDiSistema(ultimoErrore(), percorso);
  }
}

void Descrittore::chiudi(const std::filesystem::path& percorso) {
  // An interrupted close has closed.
  if (::close(fd(std::exchange(aperto_, kNessuno))) != 0 && errno != EINTR)
    throw failureDiSistema(ultimoErrore(), percorso);
}

bool senzaPosto(std::error_code codice) {
  return codice == std::errc::no_space_on_device || codice == std::errc::file_too_large ||
         codice.value() == EDQUOT;
}

}  // namespace vaticlo
