#include "platform/blocco.h"

#include <cerrno>
#include <map>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace vaticlo {

namespace {

// A folder whatever path leads to it.
using Identita = std::pair<dev_t, ino_t>;

// Who waits looks often: the one that holds the folder may take it again at once.
constexpr std::chrono::milliseconds kPausa{1};

void aspetta(int fd, const std::filesystem::path& cartella, std::chrono::milliseconds attesa) {
  const auto fine = std::chrono::steady_clock::now() + attesa;
  while (::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (std::chrono::steady_clock::now() >= fine)
      throw RuntimeFailure(Errore::CartellaOccupata, cartella.filename().string());
    std::this_thread::sleep_for(kPausa);
  }
}

}  // namespace

BloccoCartella::BloccoCartella(const std::filesystem::path& cartella, std::chrono::milliseconds attesa)
    : cartella_(cartella.empty() ? "." : cartella) {
  // A second lock of this program on the folder would wait for the first one.
  static thread_local std::map<Identita, std::weak_ptr<const Descrittore>> tenute;
  std::shared_ptr<const Descrittore> aperta;
  try {
    aperta = std::make_shared<const Descrittore>(cartella_, O_RDONLY | O_DIRECTORY);
  } catch (const RuntimeFailure&) {
    return;  // whoever opens a file in it says why
  }
  struct stat stato {};
  if (::fstat(aperta->fd(), &stato) != 0) throw failureDiSistema(errno, cartella_);
  auto& tenuta = tenute[{stato.st_dev, stato.st_ino}];
  tenuta_ = tenuta.lock();
  if (tenuta_) return;
  aspetta(aperta->fd(), cartella_, attesa);
  tenuta = tenuta_ = std::move(aperta);
}

void BloccoCartella::sincronizza() const {
  if (tenuta_) tenuta_->sincronizza(cartella_);
}

}  // namespace vaticlo
