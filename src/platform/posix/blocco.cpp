#include "platform/blocco.h"

#include <cerrno>
#include <map>
#include <thread>
#include <utility>

#include <sys/file.h>
#include <sys/stat.h>

#include "platform/descrittore.h"
#include "platform/percorso.h"
#include "platform/posix/ultimo_errore.h"

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
      throw RuntimeFailure(Errore::CartellaOccupata, nomeFile(cartella));
    std::this_thread::sleep_for(kPausa);
  }
}

}  // namespace

struct BloccoCartella::Tenuta {
  explicit Tenuta(const std::filesystem::path& cartella) : aperta(cartella, Apertura::Lettura) {}
  [[nodiscard]] int fd() const { return static_cast<int>(aperta.aperto()); }

  Descrittore aperta;
};

BloccoCartella::BloccoCartella(const std::filesystem::path& cartella, std::chrono::milliseconds attesa)
    : cartella_(cartella.empty() ? "." : cartella) {
  // A second lock of this program on the folder would wait for the first one.
  static thread_local std::map<Identita, std::weak_ptr<const Tenuta>> tenute;
  std::shared_ptr<const Tenuta> aperta;
  try {
    aperta = std::make_shared<const Tenuta>(cartella_);
  } catch (const RuntimeFailure& failure) {
    // One that is not there or may not be read; whoever opens a file in it says why.
    if (failure.errore() == Errore::DispositivoIO) throw;
    return;
  }
  struct stat stato {};
  if (::fstat(aperta->fd(), &stato) != 0) throw failureDiSistema(ultimoErrore(), cartella_);
  auto& tenuta = tenute[{stato.st_dev, stato.st_ino}];
  tenuta_ = tenuta.lock();
  if (tenuta_) return;
  aspetta(aperta->fd(), cartella_, attesa);
  tenuta = tenuta_ = std::move(aperta);
}

void BloccoCartella::sincronizza() const {
  if (tenuta_) tenuta_->aperta.sincronizza(cartella_);
}

}  // namespace vaticlo
