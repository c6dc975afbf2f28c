#include "platform/cartella_intera.h"

#include <string_view>
#include <system_error>

#include "platform/descrittore.h"
#include "platform/failure.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"
#include "platform/spostamento.h"

namespace vaticlo {

namespace fs = std::filesystem;

void scriviCartella(const fs::path& cartella, const FilePerNome& file) {
  const auto accanto = cartella.parent_path() / ".nuova";
  fs::remove_all(accanto);
  fs::create_directories(accanto);
  try {
    for (const auto& [nome, ottetti] : file) {
      const auto percorso = accanto / percorsoDa(nome);
      Descrittore uno(percorso, Apertura::Nuova);
      uno.scrivi({reinterpret_cast<const char*>(ottetti.data()), ottetti.size()}, percorso);
      uno.chiudi(percorso);
    }
    sincronizzaTutti(accanto);
    rinominaFile(accanto, cartella);
  } catch (const RuntimeFailure&) {
    std::error_code ignorato;
    fs::remove_all(accanto, ignorato);
    throw;
  }
}

void eliminaCartella(const fs::path& cartella) {
  const auto nascosta = cartella.parent_path() / ".vecchia";
  std::error_code ignorato;
  fs::remove_all(nascosta, ignorato);
  rinominaFile(cartella, nascosta);
  fs::remove_all(nascosta, ignorato);
}

}  // namespace vaticlo
