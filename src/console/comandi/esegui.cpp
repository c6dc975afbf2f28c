#include <cstdio>
#include <iostream>
#include <sstream>

#include "console/comandi/comandi.h"
#include "console/parole.h"
#include "console/riga_di_comando.h"
#include "console/sessione.h"
#include "platform/failure.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"
#include "platform/testo.h"

namespace vaticlo::comandi {

namespace {

constexpr std::size_t kMassimoRiga = std::size_t{1} << 20;  // far longer than any command

/// The lines of a text that may have no end.
class Righe {
 public:
  explicit Righe(std::istream& testo) : testo_(testo) {}

  /// False at the end. UsoErrato for what can't be commands. Fails with Errore::DispositivoIO.
  bool prossima(std::string& riga) {
    riga.clear();
    ++numero_;
    char c = 0;
    while (testo_.get(c)) {
      if (++letti_ > kMassimoTesto) throw UsoErrato(davanti() + "il testo è più lungo di 64 MiB");
      if (c == '\n') break;
      if (riga.size() == kMassimoRiga) throw UsoErrato(davanti() + "più lunga di ogni comando");
      riga += c;
    }
    // The standard input keeps its errors in the C stream below.
    if (testo_.bad() || (&testo_ == &std::cin && std::ferror(stdin) != 0))
      throw RuntimeFailure(Errore::DispositivoIO, "standard input");
    if (numero_ == 1) {
      if (inUtf16(riga)) throw UsoErrato("il testo è in UTF-16: va salvato in UTF-8");
      riga = senzaMarca(riga);
    }
    return !riga.empty() || testo_.good();
  }
  /// What a message about the present line begins with.
  [[nodiscard]] std::string davanti() const { return "riga " + std::to_string(numero_) + ": "; }

 private:
  std::istream& testo_;
  int numero_ = 0;
  std::size_t letti_ = 0;
};

Esito eseguiRighe(Sessione& sessione, std::istream& comandi) {
  RigaDiComando lettore(RigaDiComando::Luogo::File);
  Righe righe(comandi);
  Esito esito = kFatto;
  for (std::string riga; righe.prossima(riga);) {
    const auto letta = paroleDellaRiga(riga);
    if (!letta.errore.empty()) throw UsoErrato(righe.davanti() + letta.errore);
    if (letta.parole.empty()) continue;
    esito = sessione.esegui(lettore, letta.parole, righe.davanti());
    if (esito != kFatto && esito != kRifiutato) break;
  }
  return esito;
}

std::string leggi(const std::string& file) {
  try {
    return testoFornito(percorsoDa(file));
  } catch (const RuntimeFailure& failure) {
    throw UsoErrato("non si può leggere \"" + file + "\": " + descrizione(failure.errore()));
  }
}

}  // namespace

Esito esegui(Sessione& sessione, const Argomenti& argomenti) {
  if (argomenti["FILE"] == "-") return eseguiRighe(sessione, std::cin);
  std::istringstream comandi(leggi(argomenti["FILE"]));
  return eseguiRighe(sessione, comandi);
}

}  // namespace vaticlo::comandi
