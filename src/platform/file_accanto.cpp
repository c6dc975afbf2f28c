#include "platform/file_accanto.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/file_intero.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMassimoNome = 240;  // of the 255 bytes of a name

Descrittore nuovoFile(const fs::path& percorso, const fs::path& destinazione) {
  ::unlink(percorso.c_str());
  return {percorso, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, destinazione};
}

bool nonSaScambiare(int codice) { return codice == EINVAL || codice == ENOSYS || codice == EOPNOTSUPP; }

bool nonSiMuove(int codice) {
  return codice == EACCES || codice == EPERM || codice == EBUSY || codice == EXDEV;
}

}  // namespace

fs::path FileAccanto::nomeAccanto(const fs::path& destinazione) {
  return destinazione.parent_path() /
         ("." + destinazione.filename().string().substr(0, kMassimoNome) + ".nuovo");
}

FileAccanto::FileAccanto(const fs::path& destinazione)
    : percorso_(nomeAccanto(destinazione)),
      destinazione_(destinazione),
      file_(nuovoFile(percorso_, destinazione)) {}

FileAccanto::~FileAccanto() { ::unlink(percorso_.c_str()); }

void FileAccanto::prendiPermessi(const Descrittore& vecchio) const {
  struct stat suo {
  }, mio{};
  if (::fstat(vecchio.fd(), &suo) != 0 || ::fstat(file_.fd(), &mio) != 0)
    throw failureDiSistema(errno, destinazione_);
  // Who may not give the file away may still give it to the group.
  if ((suo.st_uid != mio.st_uid || suo.st_gid != mio.st_gid) &&
      ::fchown(file_.fd(), suo.st_uid, suo.st_gid) != 0)
    static_cast<void>(::fchown(file_.fd(), static_cast<uid_t>(-1), suo.st_gid) == 0);
  static_cast<void>(::fchmod(file_.fd(), suo.st_mode & 0777));
}

void FileAccanto::finisci() {
  file_.sincronizza(destinazione_);
  file_.chiudi(destinazione_);
}

bool FileAccanto::prendiIlPosto(bool vecchio, const BloccoCartella& cartella) const {
  // The two change places, so that the old one can come back.
  int codice = vecchio ? muovi(RENAME_EXCHANGE) : ENOSYS;
  const bool scambiati = codice == 0;
  if (nonSaScambiare(codice)) codice = muovi(0);
  if (vecchio && nonSiMuove(codice)) return false;
  if (codice != 0) throw failureDiSistema(codice, destinazione_);
  try {
    cartella.sincronizza();
  } catch (const RuntimeFailure&) {
    if (scambiati) static_cast<void>(muovi(RENAME_EXCHANGE));
    if (!vecchio) ::unlink(destinazione_.c_str());
    throw;
  }
  return true;
}

void FileAccanto::prendiPostoLibero() const { rinominaFile(percorso_, destinazione_); }

int FileAccanto::muovi(unsigned modo) const {
  return ::renameat2(AT_FDCWD, percorso_.c_str(), AT_FDCWD, destinazione_.c_str(), modo) == 0 ? 0 : errno;
}

}  // namespace vaticlo
