#include "platform/cartella_intera.h"

#include <cerrno>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#include "platform/descrittore.h"
#include "platform/failure.h"
#include "platform/file_intero.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

// One file after the other would wait for the disk as often as there are files.
void sincronizzaTutti(const fs::path& cartella) {
  const Descrittore dentro(cartella, O_RDONLY | O_DIRECTORY);
  while (::syncfs(dentro.fd()) != 0)
    if (errno != EINTR) throw failureDiSistema(errno, cartella);
}

}  // namespace

void scriviCartella(const fs::path& cartella, const FilePerNome& file) {
  const auto accanto = cartella.parent_path() / ".nuova";
  fs::remove_all(accanto);
  fs::create_directories(accanto);
  try {
    for (const auto& [nome, ottetti] : file) {
      Descrittore uno(accanto / nome, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
      uno.scrivi({reinterpret_cast<const char*>(ottetti.data()), ottetti.size()}, accanto / nome);
      uno.chiudi(accanto / nome);
    }
    sincronizzaTutti(accanto);
    rinominaFile(accanto, cartella);
  } catch (const RuntimeFailure&) {
    std::error_code ignorato;
    fs::remove_all(accanto, ignorato);
    throw;
  }
}

}  // namespace vaticlo
