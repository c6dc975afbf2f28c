#include "platform/file_intero.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/descrittore.h"

namespace vaticlo {

namespace {

// What is read of a device or a pipe at most: it may have no end.
constexpr std::size_t kMassimoSenzaFine = std::size_t{64} << 20;

// Only a plain file can be a grid: a pipe or a terminal would keep the reader waiting.
Descrittore apriGriglia(const std::filesystem::path& percorso) {
  Descrittore file(percorso, O_RDWR | O_CREAT);
  struct stat stato {};
  if (::fstat(file.fd(), &stato) != 0 || !S_ISREG(stato.st_mode))
    throw RuntimeFailure(Errore::AccessoAlFile, percorso.filename().string());
  return file;
}

void prendiPosto(int fd, std::size_t ottetti, const std::filesystem::path& percorso) {
  struct stat stato {};
  if (::fstat(fd, &stato) != 0) throw failureDiSistema(errno, percorso);
  const int codice = ::posix_fallocate(fd, 0, static_cast<off_t>(ottetti));
  if (codice == 0) return;
  if (static_cast<std::size_t>(stato.st_size) < ottetti && ::ftruncate(fd, stato.st_size) != 0)
    throw failureDiSistema(errno, percorso);
  throw failureDiSistema(codice, percorso);
}

}  // namespace

void leggiFile(const std::filesystem::path& percorso, std::span<std::uint8_t> dati) {
  const auto file = apriGriglia(percorso);
  while (!dati.empty()) {
    const auto letti = ::read(file.fd(), dati.data(), dati.size());
    if (letti < 0 && errno == EINTR) continue;
    if (letti < 0) throw RuntimeFailure(Errore::DispositivoIO, percorso.filename().string());
    if (letti == 0) break;
    dati = dati.subspan(static_cast<std::size_t>(letti));
  }
  std::fill(dati.begin(), dati.end(), std::uint8_t{0});
}

void scriviFile(const std::filesystem::path& percorso, std::span<const std::uint8_t> dati) {
  const auto file = apriGriglia(percorso);
  prendiPosto(file.fd(), dati.size(), percorso);
  file.scrivi({reinterpret_cast<const char*>(dati.data()), dati.size()}, percorso);
}

std::string contenutoFile(const std::filesystem::path& percorso) {
  const Descrittore file(percorso, O_RDONLY);
  struct stat stato {};
  if (::fstat(file.fd(), &stato) != 0) throw failureDiSistema(errno, percorso);
  const bool fileVero = S_ISREG(stato.st_mode);
  if (!fileVero)
    static_cast<void>(::fcntl(file.fd(), F_SETFL, 0));  // what comes through a pipe is waited for
  std::string contenuto;
  std::size_t pieni = 0;
  for (;;) {
    if (pieni == contenuto.size())
      contenuto.resize(std::max(static_cast<std::size_t>(stato.st_size) + 1, contenuto.size() * 2 + 4096));
    const auto letti = ::read(file.fd(), contenuto.data() + pieni, contenuto.size() - pieni);
    if (letti < 0 && errno == EINTR) continue;
    if (letti < 0) throw RuntimeFailure(Errore::DispositivoIO, percorso.filename().string());
    if (letti == 0) break;
    pieni += static_cast<std::size_t>(letti);
    if (!fileVero && pieni > kMassimoSenzaFine)
      throw RuntimeFailure(Errore::DispositivoIO, percorso.filename().string());
  }
  contenuto.resize(pieni);
  return contenuto;
}

}  // namespace vaticlo
