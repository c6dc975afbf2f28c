#include "platform/failure.h"

namespace vaticlo {

std::string descrizione(Errore errore) {
  switch (errore) {
    case Errore::ArgomentoNonValido:
      return "chiamata di routine o argomento non validi";
    case Errore::Overflow:
      return "il numero è fuori dall'intervallo ammesso";
    case Errore::Indice:
      return "indice non compreso nell'intervallo";
    case Errore::DivisionePerZero:
      return "divisione per zero";
    case Errore::TipoNonCorrispondente:
      return "il testo non è un numero o una data";
    case Errore::TestoTroppoLungo:
      return "il testo è più lungo di 64 MiB";
    case Errore::ErroreInterno:
      return "errore interno";
    case Errore::NomeFile:
      return "nome di file non valido";
    case Errore::FileNonTrovato:
      return "file non trovato";
    case Errore::DispositivoIO:
      return "errore di lettura o scrittura";
    case Errore::FileEsistente:
      return "il file esiste già";
    case Errore::DiscoPieno:
      return "disco pieno";
    case Errore::CartellaOccupata:
      return "un altro programma sta scrivendo nella cartella";
    case Errore::AccessoAlFile:
      return "accesso al file o alla cartella non riuscito";
    case Errore::PercorsoNonTrovato:
      return "percorso non trovato";
    case Errore::ElementoInesistente:
      return "l'elemento del controllo non esiste";
    case Errore::ValoreProprieta:
      return "valore della proprietà non valido";
  }
  return "errore sconosciuto";
}

RuntimeFailure::RuntimeFailure(Errore errore) : errore_(errore), testo_(descrizione(errore)) {}

RuntimeFailure::RuntimeFailure(Errore errore, const std::string& dettaglio)
    : errore_(errore), testo_(descrizione(errore) + ": " + dettaglio) {}

RuntimeFailure& RuntimeFailure::spiega(Spiegazione spiegazione) {
  if (spiegazione_.fatto.empty()) spiegazione_ = std::move(spiegazione);
  return *this;
}

RuntimeFailure& RuntimeFailure::nella(const std::string& finestra) {
  if (finestra_.empty()) finestra_ = finestra;
  return *this;
}

}  // namespace vaticlo
