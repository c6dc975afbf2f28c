#include "dialogs/messaggio_fatale.h"

namespace vaticlo {

namespace {

constexpr const char* kCapitolo = "Se il programma si chiude con un errore";

// What a number means where no explanation was added.
Spiegazione inGenerale(Errore errore) {
  switch (errore) {
    case Errore::DiscoPieno:
      return {.fatto = "Sul disco non c'è più posto.",
              .rimedio = "Liberate dello spazio e riaprite il programma.",
              .capitolo = kCapitolo};
    case Errore::NomeFile:
    case Errore::FileNonTrovato:
    case Errore::DispositivoIO:
    case Errore::AccessoAlFile:
    case Errore::PercorsoNonTrovato:
      return {.fatto = "Un file della cartella del programma non si lascia aprire, leggere o scrivere.",
              .rimedio = "Guardate se c'è e se avete il permesso di scriverlo, poi riaprite il programma.",
              .capitolo = "I file e le copie"};
    default:
      return {.fatto = "Il programma ha incontrato qualcosa che non sa leggere.",
              .rimedio = "Riaprite il programma e riprendete da dove eravate.",
              .capitolo = kCapitolo};
  }
}

}  // namespace

std::string messaggioFatale(const RuntimeFailure& failure) {
  const auto spiegazione =
      failure.spiegazione().fatto.empty() ? inGenerale(failure.errore()) : failure.spiegazione();
  auto testo = spiegazione.fatto + "\n\n";
  if (!failure.finestra().empty()) testo += "È successo nella finestra \"" + failure.finestra() + "\". ";
  testo += "Il programma termina; archivio e metodi restano com'erano all'ultimo salvataggio.\n\n";
  testo +=
      "Che cosa fare: " + spiegazione.rimedio + "\nLa guida ne parla in «" + spiegazione.capitolo + "».\n\n";
  return testo + "Errore di run-time " + std::to_string(failure.numero()) + ": " + failure.what() + ".";
}

}  // namespace vaticlo
