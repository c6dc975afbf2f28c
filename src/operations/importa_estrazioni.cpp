#include "operations/importa_estrazioni.h"

#include <optional>

#include "archive/importazione.h"
#include "platform/failure.h"
#include "platform/file_intero.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kMassimoOttetti = std::uintmax_t{64} << 20;  // a full archive has some 5 MB of text
constexpr const char* kTitolo = "Importa Estrazioni da File";
constexpr const char* kLavoro = "Importazione delle estrazioni in corso...";

std::string leggi(const fs::path& file) {
  std::error_code codice;
  if (fs::file_size(file, codice) > kMassimoOttetti && !codice)
    throw ErroreImportazione("il file è troppo grande per contenere estrazioni");
  return contenutoFile(file);
}

std::optional<ArchivioEstrazioni> importa(Servizi& servizi, const fs::path& file) {
  std::string motivo;
  try {
    return importaEstrazioni(leggi(file),
                             [&servizi](int percento) { servizi.avanzamento(kLavoro, percento); });
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

}  // namespace

void importaEstrazioniDaFile(Programma& programma) {
  auto& servizi = programma.servizi;
  const auto file = servizi.scegliFile(kTitolo);
  if (file.empty()) return;
  const auto nuovo = importa(servizi, file);
  if (!nuovo) return;
  const bool vuoto = ApriArchivio(programma.cartella)(1, 0, 1) == 0;
  if (!vuoto && servizi.mostra({"L'archivio contiene già delle estrazioni. Sostituirle tutte con quelle del "
                                "file (" +
                                    riassunto(*nuovo) + ")?",
                                kTitolo, Genere::Domanda, Icona::Esclamazione, Risposta::No}) != Risposta::Si)
    return;
  ScriviArchivio(programma.cartella, *nuovo);
  servizi.mostra({"Importate " + riassunto(*nuovo), kTitolo});
}

}  // namespace vaticlo
