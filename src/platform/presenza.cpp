#include "platform/presenza.h"

#include <fcntl.h>

#include "platform/failure.h"

namespace vaticlo {

namespace {

// Of the open file and not of the process, over all bytes.
struct flock blocco(short genere) {
  struct flock blocco {};
  blocco.l_type = genere;
  blocco.l_whence = SEEK_SET;
  return blocco;
}

}  // namespace

Presenza::Presenza(const std::filesystem::path& cartella) {
  try {
    cartella_.emplace(cartella, O_RDONLY | O_DIRECTORY);
  } catch (const RuntimeFailure&) {
    return;  // whoever opens a file in it says why
  }
  auto condiviso = blocco(F_RDLCK);
  ::fcntl(cartella_->fd(), F_OFD_SETLK, &condiviso);
}

// A lock that no other could share is only asked about, never taken.
bool Presenza::altre() const {
  auto esclusivo = blocco(F_WRLCK);
  return cartella_ && ::fcntl(cartella_->fd(), F_OFD_GETLK, &esclusivo) == 0 && esclusivo.l_type != F_UNLCK;
}

}  // namespace vaticlo
