#include "dialogs/estremo_digitato.h"

#include "platform/conversione.h"

namespace vaticlo {

std::optional<int> estremoDigitato(const std::string& testo, Estremo estremo,
                                   const ArchivioEstrazioni& archivio, int ultima) {
  const auto data = dataDigitata(testo);
  if (!data) return interoTra(testo, 1, ultima);
  const auto sua = [&](int n) { return dataDaTesto(archivio.DataEstrazione(n)); };
  if (estremo == Estremo::Primo) {
    for (int n = 1; n <= ultima; ++n)
      if (const auto trovata = sua(n); trovata && *trovata >= *data) return n;
  } else {
    for (int n = ultima; n >= 1; --n)
      if (const auto trovata = sua(n); trovata && *trovata <= *data) return n;
  }
  return std::nullopt;
}

}  // namespace vaticlo
