#include "operations/importa_estrazioni.h"

#include <optional>
#include <utility>

#include "platform/blocco.h"
#include "platform/failure.h"
#include "platform/file_intero.h"
#include "platform/spacchettamento.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr const char* kTitolo = "Importa Estrazioni da File";
constexpr const char* kNumeri =
    "Le previsioni indicano le estrazioni con il loro numero: dove i numeri cambiano, varranno per altre "
    "estrazioni.";
constexpr const char* kLavoro = "Importazione delle estrazioni in corso...";

std::optional<ArchivioEstrazioni> importa(Servizi& servizi, const fs::path& file) {
  std::string motivo;
  try {
    return leggiEstrazioni(file, [&servizi](int percento) { servizi.avanzamento(kLavoro, percento); });
  } catch (const ErroreImportazione& errore) {
    motivo = errore.what();
  } catch (const RuntimeFailure& failure) {
    motivo = failure.what();
  }
  servizi.avanzamento(kLavoro, 100);
  servizi.mostra({"Il file \"" + file.filename().string() + "\" non è stato importato!\n\n" + motivo +
                      "\n\nL'archivio è rimasto com'era.",
                  kTitolo, Genere::Rifiuto, Icona::Esclamazione});
  return std::nullopt;
}

// False when there are draws that nobody gave up.
bool scrivi(const CartellaProgramma& cartella, const ArchivioEstrazioni& nuovo, bool sostituire) {
  const BloccoCartella blocco(cartella.radice());
  if (!sostituire && ApriArchivio(cartella)(1, 0, 1) != 0) return false;
  ScriviArchivio(cartella, nuovo);
  return true;
}

}  // namespace

ArchivioEstrazioni leggiEstrazioni(const fs::path& file, const std::function<void(int)>& avanzamento) {
  return estrazioniDa(testoFornito(file), avanzamento);
}

ArchivioEstrazioni estrazioniDa(std::string ottetti, const std::function<void(int)>& avanzamento) {
  try {
    return importaEstrazioni(spacchetta(std::move(ottetti)), avanzamento);
  } catch (const ErrorePacchetto& errore) {
    throw ErroreImportazione(errore.what());
  }
}

bool importaEstrazioniDaFile(Programma& programma) {
  auto& servizi = programma.servizi;
  const auto file = servizi.scegliFile(kTitolo);
  if (file.empty()) return false;
  const auto nuovo = importa(servizi, file);
  if (!nuovo) return false;
  if (!scrivi(programma.cartella, *nuovo, false)) {
    const auto risposta =
        servizi.mostra({"L'archivio contiene già delle estrazioni. Sostituirle tutte con quelle del file (" +
                            riassunto(*nuovo) + ")?\n\n" + kNumeri,
                        kTitolo, Genere::Domanda, Icona::Esclamazione, Risposta::No});
    if (risposta != Risposta::Si) return false;
    scrivi(programma.cartella, *nuovo, true);
  }
  servizi.mostra({"Importate " + riassunto(*nuovo), kTitolo});
  return true;
}

}  // namespace vaticlo
