#include "platform/file_intero.h"

#include <algorithm>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/descrittore.h"

namespace vaticlo {

namespace {

// Opening in this way creates a missing file. Where that is refused, reading is enough; nothing when there is
// nothing to read either.
std::optional<Descrittore> apriGriglia(const std::filesystem::path& percorso) {
  try {
    return std::optional<Descrittore>(std::in_place, percorso, O_RDWR | O_CREAT);
  } catch (const RuntimeFailure& failure) {
    if (failure.errore() != Errore::AccessoAlFile) throw;
  }
  try {
    return std::optional<Descrittore>(std::in_place, percorso, O_RDONLY);
  } catch (const RuntimeFailure& failure) {
    if (failure.errore() == Errore::FileNonTrovato) return std::nullopt;
    throw;
  }
}

// Only a plain file can be a grid: a pipe or a terminal would keep the reader waiting.
void richiediFileVero(const Descrittore& file, const std::filesystem::path& percorso) {
  struct stat stato {};
  if (::fstat(file.fd(), &stato) != 0 || !S_ISREG(stato.st_mode))
    throw RuntimeFailure(Errore::AccessoAlFile, percorso.filename().string());
}

}  // namespace

void leggiFile(const std::filesystem::path& percorso, std::span<std::uint8_t> dati) {
  const auto file = apriGriglia(percorso);
  std::size_t letti = 0;
  if (file) {
    richiediFileVero(*file, percorso);
    letti = file->leggi(dati, percorso);
  }
  std::fill(dati.begin() + static_cast<std::ptrdiff_t>(letti), dati.end(), std::uint8_t{0});
}

std::string contenutoFile(const std::filesystem::path& percorso, std::size_t massimo) {
  const Descrittore file(percorso, O_RDONLY);
  struct stat stato {};
  if (::fstat(file.fd(), &stato) != 0) throw failureDiSistema(errno, percorso);
  const bool fileVero = S_ISREG(stato.st_mode);
  if (!fileVero)
    static_cast<void>(::fcntl(file.fd(), F_SETFL, 0));  // what comes through a pipe is waited for
  // One byte more than it may have shows that it is longer.
  const auto limite = (fileVero ? massimo : std::min(massimo, kMassimoTesto)) + 1;
  std::string contenuto;
  std::size_t pieni = 0;
  for (;;) {
    if (pieni == limite) throw RuntimeFailure(Errore::TestoTroppoLungo, percorso.filename().string());
    if (pieni == contenuto.size()) {
      const auto misura = static_cast<std::size_t>(stato.st_size) + 1;
      contenuto.resize(std::min(limite, std::max(misura, contenuto.size() * 2 + 4096)));
    }
    const auto letti = ::read(file.fd(), contenuto.data() + pieni, contenuto.size() - pieni);
    if (letti < 0 && errno == EINTR) continue;
    if (letti < 0) throw RuntimeFailure(Errore::DispositivoIO, percorso.filename().string());
    if (letti == 0) break;
    pieni += static_cast<std::size_t>(letti);
  }
  contenuto.resize(pieni);
  return contenuto;
}

std::string testoFornito(const std::filesystem::path& percorso) {
  std::error_code ignorato;
  if (!std::filesystem::is_fifo(percorso, ignorato)) return contenutoFile(percorso, kMassimoTesto);
  // Open until all is read, so that what is written meanwhile stays in the pipe.
  const Descrittore pipe(percorso, O_RDONLY);
  pollfd attesa{pipe.fd(), POLLIN, 0};
  while (::poll(&attesa, 1, -1) < 0 && errno == EINTR) {
  }
  return contenutoFile(percorso, kMassimoTesto);
}

}  // namespace vaticlo
