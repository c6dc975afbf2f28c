#include "platform/spostamento.h"

#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include "platform/descrittore.h"
#include "platform/posix/ultimo_errore.h"

namespace vaticlo {

namespace fs = std::filesystem;

std::error_code sposta(const fs::path& da, const fs::path& a, Posto posto) {
  const auto muovi = [&](unsigned modo) {
    return ::renameat2(AT_FDCWD, da.c_str(), AT_FDCWD, a.c_str(), modo) == 0 ? std::error_code()
                                                                             : ultimoErrore();
  };
  if (posto == Posto::Qualunque) return muovi(0);
  const auto codice = muovi(RENAME_NOREPLACE);
  if (codice.value() != EINVAL && codice.value() != ENOSYS) return codice;
  // A system that knows no such step: no other program makes the file while this one holds the folder.
  std::error_code ignorato;
  return fs::exists(a, ignorato) ? make_error_code(std::errc::file_exists) : muovi(0);
}

void togliFile(const fs::path& percorso) { ::unlink(percorso.c_str()); }

void sincronizzaTutti(const fs::path& cartella) {
  const Descrittore dentro(cartella, Apertura::Lettura);
  while (::syncfs(static_cast<int>(dentro.aperto())) != 0)
    if (errno != EINTR) throw failureDiSistema(ultimoErrore(), cartella);
}

bool siPuoAggiungere(const fs::path& cartella) {
  return ::faccessat(AT_FDCWD, cartella.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool siPuoModificare(const fs::path& file) {
  return ::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) == 0;
}

struct SegnaliFermi::Prima {
  sigset_t maschera{};
};

SegnaliFermi::SegnaliFermi() : prima_(std::make_unique<Prima>()) {
  sigset_t tutti;
  ::sigfillset(&tutti);
  ::pthread_sigmask(SIG_BLOCK, &tutti, &prima_->maschera);
}

SegnaliFermi::~SegnaliFermi() { ::pthread_sigmask(SIG_SETMASK, &prima_->maschera, nullptr); }

}  // namespace vaticlo
