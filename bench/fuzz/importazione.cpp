// A text taken as a public file of draws: what is accepted keeps the rules of the game, and the same text
// written again from the archive gives the same archive.
#include "archive/importazione.h"

#include <array>
#include <bitset>
#include <optional>

#include "archive/ruota.h"
#include "ingresso.h"

namespace vaticlo::fuzz {
namespace {

constexpr std::array<const char*, kRuote> kSigle = {"BA", "CA", "FI", "GE", "MI", "NA",
                                                    "PA", "RM", "TO", "VE", "RN"};

std::optional<ArchivioEstrazioni> importa(std::string_view testo) {
  try {
    return importaEstrazioni(testo);
  } catch (const ErroreImportazione& errore) {
    richiedi(std::string_view(errore.what()).size() < 600, "what is quoted of a file is cut");
    return std::nullopt;
  }
}

std::string testoPubblico(const ArchivioEstrazioni& a, int estrazioni) {
  std::string testo;
  std::array<char, 16> data{};
  for (int i = 1; i <= estrazioni; ++i) {
    std::snprintf(data.data(), data.size(), "%02d%02d/%02d/%02d", a(i, 0, 4), a(i, 0, 3), a(i, 0, 2),
                  a(i, 0, 1));
    for (int ruota = 1; ruota <= kRuote; ++ruota) {
      if (a(i, ruota, 1) == 0) continue;
      testo.append(data.data()).append("\t").append(kSigle.at(static_cast<std::size_t>(ruota - 1)));
      std::bitset<kNumeri + 1> usciti;
      for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k) {
        const int numero = a(i, ruota, k);
        richiedi(numero >= 1 && numero <= kNumeri && !usciti.test(static_cast<std::size_t>(numero)),
                 "five different numbers from 1 to 90");
        usciti.set(static_cast<std::size_t>(numero));
        testo += "\t" + std::to_string(numero);
      }
      testo += '\n';
    }
  }
  return testo;
}

}  // namespace
}  // namespace vaticlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t ottetti) {
  using namespace vaticlo::fuzz;
  const auto archivio = importa(Ingresso(dati, ottetti).tutto());
  if (!archivio) return 0;
  const int estrazioni = archivio->PrimoIndiceLibero() - 1;
  richiedi(estrazioni > 0, "an archive with draws");
  const auto ancora = importa(testoPubblico(*archivio, estrazioni));
  richiedi(ancora && std::ranges::equal(archivio->ottetti(), ancora->ottetti()), "the same archive");
  return 0;
}
