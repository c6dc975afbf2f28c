#include "platform/descrittore.h"

#include "platform/percorso.h"

namespace vaticlo {

RuntimeFailure failureDiSistema(std::error_code codice, const std::filesystem::path& percorso) {
  const auto nome = nomeFile(percorso);
  std::error_code ignorato;
  if (codice == std::errc::no_such_file_or_directory)
    return {percorso.has_parent_path() && !std::filesystem::is_directory(percorso.parent_path(), ignorato)
                ? Errore::PercorsoNonTrovato
                : Errore::FileNonTrovato,
            nome};
  if (codice == std::errc::not_a_directory) return {Errore::PercorsoNonTrovato, nome};
  if (senzaPosto(codice)) return {Errore::DiscoPieno, nome};
  if (codice == std::errc::io_error) return {Errore::DispositivoIO, nome};
  return {Errore::AccessoAlFile, nome};
}

}  // namespace vaticlo
