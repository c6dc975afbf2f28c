#include "platform/presenza.h"

#include <fcntl.h>

#include "platform/descrittore.h"
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

struct Presenza::Segno {
  explicit Segno(const std::filesystem::path& quale) : cartella(quale, Apertura::Lettura) {}
  [[nodiscard]] int fd() const { return static_cast<int>(cartella.aperto()); }

  Descrittore cartella;
};

Presenza::Presenza(const std::filesystem::path& cartella) {
  try {
    segno_ = std::make_unique<const Segno>(cartella);
  } catch (const RuntimeFailure&) {
    return;  // whoever opens a file in it says why
  }
  auto condiviso = blocco(F_RDLCK);
  ::fcntl(segno_->fd(), F_OFD_SETLK, &condiviso);
}

Presenza::~Presenza() = default;

// A lock that no other could share is only asked about, never taken.
bool Presenza::altre() const {
  auto esclusivo = blocco(F_WRLCK);
  return segno_ && ::fcntl(segno_->fd(), F_OFD_GETLK, &esclusivo) == 0 && esclusivo.l_type != F_UNLCK;
}

}  // namespace vaticlo
