#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_accanto.h"
#include "platform/file_intero.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMassimaCoda = std::size_t{64} << 20;
constexpr int kMassimiLink = 40;

// Where the file is or is to be, so that a link stays one.
fs::path dietroILink(fs::path percorso) {
  std::error_code codice;
  for (int n = 0; n < kMassimiLink && fs::is_symlink(fs::symlink_status(percorso, codice)); ++n)
    percorso = percorso.parent_path() / fs::read_symlink(percorso, codice);
  return percorso;
}

fs::path cartellaDi(const fs::path& file) { return file.has_parent_path() ? file.parent_path() : "."; }

// Nothing when there is none. One that may not be written is not replaced either.
std::optional<Descrittore> apriVecchio(const fs::path& percorso) {
  try {
    return std::optional<Descrittore>(std::in_place, percorso, O_RDWR);
  } catch (const RuntimeFailure& failure) {
    if (failure.errore() == Errore::FileNonTrovato) return std::nullopt;
    throw;
  }
}

std::size_t lunghezza(const Descrittore& file, const fs::path& percorso) {
  struct stat stato {};
  if (::fstat(file.fd(), &stato) != 0) throw failureDiSistema(errno, percorso);
  if (!S_ISREG(stato.st_mode)) throw RuntimeFailure(Errore::AccessoAlFile, percorso.filename().string());
  return static_cast<std::size_t>(stato.st_size);
}

void vaiA(const Descrittore& file, std::size_t posto, const fs::path& percorso) {
  if (::lseek(file.fd(), static_cast<off_t>(posto), SEEK_SET) < 0) throw failureDiSistema(errno, percorso);
}

std::string leggiPezzo(const Descrittore& file, std::size_t posto, std::size_t quanti,
                       const fs::path& percorso) {
  std::string pezzo(quanti, '\0');
  vaiA(file, posto, percorso);
  pezzo.resize(file.leggi({reinterpret_cast<std::uint8_t*>(pezzo.data()), quanti}, percorso));
  return pezzo;
}

void tagliaA(const Descrittore& file, std::size_t quanti, const fs::path& percorso) {
  if (::ftruncate(file.fd(), static_cast<off_t>(quanti)) != 0) throw failureDiSistema(errno, percorso);
}

// What frees the blocks of the old file lasts longer than writing the new one. Nobody waits for it.
void chiudiAParte(Descrittore vecchio) {
  try {
    std::thread([tenuto = std::move(vecchio)] {}).detach();
  } catch (const std::system_error&) {
    // Closed here instead.
  }
}

/// Holds the signals off that would end the program half-way.
class SegnaliFermi {
 public:
  SegnaliFermi() {
    sigset_t tutti;
    ::sigfillset(&tutti);
    ::pthread_sigmask(SIG_BLOCK, &tutti, &prima_);
  }
  SegnaliFermi(SegnaliFermi&&) = delete;
  SegnaliFermi& operator=(SegnaliFermi&&) = delete;
  ~SegnaliFermi() { ::pthread_sigmask(SIG_SETMASK, &prima_, nullptr); }

 private:
  sigset_t prima_{};
};

void scriviSulPosto(const Descrittore& file, std::string_view dati, bool intera, const fs::path& percorso) {
  const SegnaliFermi fermi;
  const auto lungo = lunghezza(file, percorso);
  const auto vecchi = leggiPezzo(file, 0, std::min(lungo, dati.size()), percorso);
  try {
    vaiA(file, 0, percorso);
    file.scrivi(dati, percorso);
    file.sincronizza(percorso);
    if (intera && lungo > dati.size()) tagliaA(file, dati.size(), percorso);
  } catch (const RuntimeFailure&) {
    vaiA(file, 0, percorso);
    file.scrivi(vecchi, percorso);
    tagliaA(file, lungo, percorso);
    throw;
  }
}

}  // namespace

void scriviFile(const fs::path& percorso, std::span<const std::uint8_t> ottetti, Scrittura come) {
  const std::string_view dati(reinterpret_cast<const char*>(ottetti.data()), ottetti.size());
  const auto file = dietroILink(percorso);
  const auto cartella = cartellaDi(file);
  const BloccoCartella blocco(cartella);
  auto vecchio = apriVecchio(file);
  if (vecchio && come == Scrittura::Nuova)
    throw RuntimeFailure(Errore::FileEsistente, file.filename().string());
  const auto lungo = vecchio ? lunghezza(*vecchio, file) : 0;
  const auto coda = come == Scrittura::Griglia && lungo > dati.size() ? lungo - dati.size() : 0;
  const bool accantoSiPuo = !vecchio || (coda <= kMassimaCoda && ::faccessat(AT_FDCWD, cartella.c_str(),
                                                                             W_OK | X_OK, AT_EACCESS) == 0);
  bool preso = false;
  if (accantoSiPuo) {
    FileAccanto accanto(file);
    if (vecchio) accanto.prendiPermessi(*vecchio);
    accanto.scrivi(dati);
    if (coda > 0) accanto.scrivi(leggiPezzo(*vecchio, dati.size(), coda, file));
    accanto.finisci();
    if (come == Scrittura::Nuova) return accanto.prendiPostoLibero();
    preso = accanto.prendiIlPosto(vecchio.has_value(), blocco);
  }
  if (!preso) return scriviSulPosto(*vecchio, dati, come == Scrittura::Intera, file);
  if (vecchio) chiudiAParte(std::move(*vecchio));
}

void rinominaFile(const fs::path& percorso, const fs::path& nuovo) {
  const BloccoCartella blocco(cartellaDi(nuovo));
  const auto muovi = [&](unsigned modo) {
    return ::renameat2(AT_FDCWD, percorso.c_str(), AT_FDCWD, nuovo.c_str(), modo) == 0 ? 0 : errno;
  };
  std::error_code ignorato;
  int codice = muovi(RENAME_NOREPLACE);
  // A system that knows no such step: no other program makes the file while this one holds the folder.
  if (codice == EINVAL || codice == ENOSYS) codice = fs::exists(nuovo, ignorato) ? EEXIST : muovi(0);
  if (codice == EEXIST && fs::equivalent(percorso, nuovo, ignorato)) codice = muovi(0);
  if (codice == EEXIST) throw RuntimeFailure(Errore::FileEsistente, nuovo.filename().string());
  if (codice != 0) throw failureDiSistema(codice, percorso);
  try {
    blocco.sincronizza();
  } catch (const RuntimeFailure&) {
    ::rename(nuovo.c_str(), percorso.c_str());
    throw;
  }
}

void eliminaFile(const fs::path& percorso) {
  const BloccoCartella blocco(cartellaDi(percorso));
  // Under a hidden name it can come back until the folder is on the disk.
  const auto nascosto = FileAccanto::nomeAccanto(percorso);
  ::unlink(nascosto.c_str());
  rinominaFile(percorso, nascosto);
  ::unlink(nascosto.c_str());
}

}  // namespace vaticlo
