#include "operations/importa_estrazioni.h"

#include <optional>
#include <utility>

#include "operations/copie.h"
#include "platform/blocco.h"
#include "platform/failure.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"
#include "platform/spacchettamento.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr const char* kTitolo = "Importa Estrazioni da File";
constexpr const char* kLavoro = "Lettura delle estrazioni in corso...";

// False when there are draws that nobody gave up.
bool scrivi(const Programma& programma, const ArchivioEstrazioni& nuovo, bool sostituire) {
  const BloccoCartella blocco(programma.cartella.radice());
  if (!sostituire && ApriArchivio(programma.cartella)(1, 0, 1) != 0) return false;
  sostituisciArchivio(programma, nuovo);
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

std::optional<ArchivioEstrazioni> leggiOSpiega(Servizi& servizi, const fs::path& file,
                                               const std::string& titolo) {
  std::string motivo;
  try {
    return leggiEstrazioni(file, [&servizi](int percento) { servizi.avanzamento(kLavoro, percento); });
  } catch (const ErroreImportazione& errore) {
    motivo = errore.what();
  } catch (const RuntimeFailure& failure) {
    motivo = failure.what();
  }
  servizi.avanzamento(kLavoro, 100);
  servizi.mostra({"Il file \"" + nomeFile(file) + "\" non si può usare!\n\n" + motivo +
                      "\n\nL'archivio è rimasto com'era.",
                  titolo, Genere::Rifiuto, Icona::Esclamazione});
  return std::nullopt;
}

void sostituisciArchivio(const Programma& programma, const ArchivioEstrazioni& nuovo) {
  const BloccoCartella blocco(programma.cartella.radice());
  faiCopia(programma, GenereCopia::Archivio);
  ScriviArchivio(programma.cartella, nuovo);
}

bool importaEstrazioniDaFile(Programma& programma) {
  auto& servizi = programma.servizi;
  const auto file = servizi.scegliFile(kTitolo);
  if (file.empty()) return false;
  const auto nuovo = leggiOSpiega(servizi, file, kTitolo);
  if (!nuovo) return false;
  if (!scrivi(programma, *nuovo, false)) {
    const auto risposta =
        servizi.mostra({"L'archivio contiene già delle estrazioni. Sostituirle tutte con quelle del file (" +
                            riassunto(*nuovo) + ")?\n\n" + kNumeriDelleEstrazioni,
                        kTitolo, Genere::Domanda, Icona::Esclamazione, Risposta::No});
    if (risposta != Risposta::Si) return false;
    scrivi(programma, *nuovo, true);
  }
  servizi.mostra({"Importate " + riassunto(*nuovo), kTitolo});
  return true;
}

}  // namespace vaticlo
