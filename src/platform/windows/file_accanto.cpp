#include "platform/file_accanto.h"

#include "platform/spostamento.h"

namespace vaticlo {

// A new file has those of its folder.
void FileAccanto::prendiPermessi(const Descrittore& /*vecchio*/) const {}

bool FileAccanto::prendiIlPosto(std::optional<Descrittore>& vecchio,
                                const BloccoCartella& /*cartella*/) const {
  const bool cEra = vecchio.has_value();
  vecchio.reset();  // an open file keeps its place
  const auto codice = sposta(percorso_, destinazione_, Posto::Qualunque);
  if (!codice) return true;
  if (!cEra || codice != std::errc::permission_denied) throw failureDiSistema(codice, destinazione_);
  vecchio.emplace(destinazione_, Apertura::Modifica);
  return false;
}

}  // namespace vaticlo
