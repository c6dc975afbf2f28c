#include "platform/file_intero.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "platform/descrittore.h"
#include "platform/percorso.h"

namespace vaticlo {

namespace {

// Where creating a missing file is refused, reading is enough; nothing when there is nothing to read either.
std::optional<Descrittore> apriGriglia(const std::filesystem::path& percorso, SeManca seManca) {
  if (seManca == SeManca::Crea) try {
      return std::optional<Descrittore>(std::in_place, percorso, Apertura::ModificaOCrea);
    } catch (const RuntimeFailure& failure) {
      if (failure.errore() != Errore::AccessoAlFile) throw;
    }
  try {
    return std::optional<Descrittore>(std::in_place, percorso, Apertura::Lettura);
  } catch (const RuntimeFailure& failure) {
    if (failure.errore() == Errore::FileNonTrovato) return std::nullopt;
    throw;
  }
}

// Only a plain file can be a grid: a pipe or a terminal would keep the reader waiting.
void richiediFileVero(const Descrittore& file, const std::filesystem::path& percorso) {
  if (!file.lunghezza(percorso)) throw RuntimeFailure(Errore::AccessoAlFile, nomeFile(percorso));
}

}  // namespace

void leggiFile(const std::filesystem::path& percorso, std::span<std::uint8_t> dati, SeManca seManca) {
  const auto file = apriGriglia(percorso, seManca);
  std::size_t letti = 0;
  if (file) {
    richiediFileVero(*file, percorso);
    letti = file->leggi(dati, percorso);
  }
  std::fill(dati.begin() + static_cast<std::ptrdiff_t>(letti), dati.end(), std::uint8_t{0});
}

std::string contenutoFile(const std::filesystem::path& percorso, std::size_t massimo) {
  const Descrittore file(percorso, Apertura::Lettura);
  const auto lunga = file.lunghezza(percorso);
  if (!lunga) file.attendiLeggendo();
  // One byte more than it may have shows that it is longer.
  const auto limite = (lunga ? massimo : std::min(massimo, kMassimoTesto)) + 1;
  std::string contenuto;
  std::size_t pieni = 0;
  for (;;) {
    if (pieni == limite) throw RuntimeFailure(Errore::TestoTroppoLungo, nomeFile(percorso));
    if (pieni == contenuto.size()) {
      const auto misura = lunga.value_or(0) + 1;
      contenuto.resize(std::min(limite, std::max(misura, contenuto.size() * 2 + 4096)));
    }
    const std::span resto(reinterpret_cast<std::uint8_t*>(contenuto.data()), contenuto.size());
    pieni += file.leggi(resto.subspan(pieni), percorso);
    if (pieni < contenuto.size()) break;
  }
  contenuto.resize(pieni);
  return contenuto;
}

std::string testoFornito(const std::filesystem::path& percorso) {
  std::error_code ignorato;
  if (!std::filesystem::is_fifo(percorso, ignorato)) return contenutoFile(percorso, kMassimoTesto);
  // Open until all is read, so that what is written meanwhile stays in the pipe.
  const Descrittore pipe(percorso, Apertura::Lettura);
  pipe.attendiChiScrive();
  return contenutoFile(percorso, kMassimoTesto);
}

}  // namespace vaticlo
