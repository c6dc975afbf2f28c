#include "platform/file_accanto.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/ultimo_errore.h"
#include "platform/spostamento.h"

namespace vaticlo {

namespace {

bool nonSaScambiare(std::error_code codice) {
  return codice.value() == EINVAL || codice.value() == ENOSYS || codice.value() == EOPNOTSUPP;
}

bool nonSiMuove(std::error_code codice) {
  return codice.value() == EACCES || codice.value() == EPERM || codice.value() == EBUSY ||
         codice.value() == EXDEV;
}

std::error_code scambia(const std::filesystem::path& uno, const std::filesystem::path& altro) {
  return ::renameat2(AT_FDCWD, uno.c_str(), AT_FDCWD, altro.c_str(), RENAME_EXCHANGE) == 0 ? std::error_code()
                                                                                           : ultimoErrore();
}

}  // namespace

void FileAccanto::prendiPermessi(const Descrittore& vecchio) const {
  const int da = static_cast<int>(vecchio.aperto()), a = static_cast<int>(file_.aperto());
  struct stat suo {
  }, mio{};
  if (::fstat(da, &suo) != 0 || ::fstat(a, &mio) != 0) throw failureDiSistema(ultimoErrore(), destinazione_);
  // Who may not give the file away may still give it to the group.
  if ((suo.st_uid != mio.st_uid || suo.st_gid != mio.st_gid) && ::fchown(a, suo.st_uid, suo.st_gid) != 0)
    static_cast<void>(::fchown(a, static_cast<uid_t>(-1), suo.st_gid) == 0);
  static_cast<void>(::fchmod(a, suo.st_mode & 0777));
}

bool FileAccanto::prendiIlPosto(std::optional<Descrittore>& vecchio, const BloccoCartella& cartella) const {
  // The two change places, so that the old one can come back.
  auto codice =
      vecchio ? scambia(percorso_, destinazione_) : make_error_code(std::errc::function_not_supported);
  const bool scambiati = !codice;
  if (nonSaScambiare(codice)) codice = sposta(percorso_, destinazione_, Posto::Qualunque);
  if (vecchio && nonSiMuove(codice)) return false;
  if (codice) throw failureDiSistema(codice, destinazione_);
  try {
    cartella.sincronizza();
  } catch (const RuntimeFailure&) {
    if (scambiati) codice = scambia(percorso_, destinazione_);
    if (!vecchio) togliFile(destinazione_);
    throw;
  }
  return true;
}

}  // namespace vaticlo
