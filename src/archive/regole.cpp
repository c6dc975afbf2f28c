#include "archive/regole.h"

#include "archive/ruota.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {
constexpr unsigned kRigheRuote = 0xFFEU;  // rows 1 to 11, the date row left out
}

RegoleVincita::RegoleVincita(const ArchivioEstrazioni& archivio)
    : archivio_(archivio), righe_(ArchivioEstrazioni::MaxEstrazioni + 1) {}

const RegoleVincita::RigheDelNumero& RegoleVincita::righe(int estrazione) const {
  if (estrazione < 1 || estrazione > ArchivioEstrazioni::MaxEstrazioni) throw RuntimeFailure(Errore::Indice);
  auto& righe = righe_[static_cast<std::size_t>(estrazione)];
  if (!righe) {
    righe = std::make_unique<RigheDelNumero>();
    for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k)
      for (int j = 0; j < ArchivioEstrazioni::Righe; ++j)
        (*righe)[archivio_(estrazione, j, k)] |= static_cast<std::uint16_t>(1U << j);
  }
  return *righe;
}

bool RegoleVincita::ambata(int numero, int ruota, int estrazione) const {
  if (ruota < 0 || ruota >= ArchivioEstrazioni::Righe) throw RuntimeFailure(Errore::Indice);
  return (righe(estrazione)[static_cast<std::uint8_t>(numero)] >> ruota & 1U) != 0;
}

InsiemeRuote RegoleVincita::ambo(int a, int b, int estrazione) const {
  const auto& righeDi = righe(estrazione);
  return InsiemeRuote(righeDi[static_cast<std::uint8_t>(a)] & righeDi[static_cast<std::uint8_t>(b)] &
                      kRigheRuote);
}

std::vector<int> RegoleVincita::sorte(std::span<const std::int16_t> combinazione, int ruota,
                                      int estrazione) const {
  std::vector<int> usciti;
  if (ruota < 1 || ruota > kRuote) return usciti;
  const auto& righeDi = righe(estrazione);
  for (const int numero : combinazione)
    if (righeDi[static_cast<std::uint8_t>(numero)] >> ruota & 1U) usciti.push_back(numero);
  return usciti;
}

}  // namespace vaticlo
