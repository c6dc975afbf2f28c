#include "platform/file_intero.h"

#include <algorithm>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/descrittore.h"

namespace vaticlo {

namespace {

// What is read of a device or a pipe at most: it may have no end.
constexpr std::size_t kMassimoSenzaFine = std::size_t{64} << 20;

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
