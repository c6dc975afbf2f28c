#pragma once

#include <exception>
#include <string>

namespace vaticlo {

/// The numbers of the run-time failures, as the user sees them in the closing message.
enum class Errore {
  ArgomentoNonValido = 5,
  Overflow = 6,
  Indice = 9,
  DivisionePerZero = 11,
  TipoNonCorrispondente = 13,
  TestoTroppoLungo = 14,
  ErroreInterno = 51,
  NomeFile = 52,
  FileNonTrovato = 53,
  DispositivoIO = 57,
  FileEsistente = 58,
  DiscoPieno = 61,
  CartellaOccupata = 70,
  AccessoAlFile = 75,
  PercorsoNonTrovato = 76,
  ElementoInesistente = 340,
  ValoreProprieta = 380,
};

/// The Italian text of a failure.
[[nodiscard]] std::string descrizione(Errore errore);

/// What a failure means to the user: what happened, what to do about it, and the heading of the guide under
/// which more is said. Each may be empty.
struct Spiegazione {
  std::string fatto, rimedio, capitolo;
};

/// A run-time failure. It is caught only where the behaviour asks for it; anywhere else it ends the program
/// with its number and its text.
class RuntimeFailure : public std::exception {
 public:
  explicit RuntimeFailure(Errore errore);
  /// `dettaglio` (a file's name, say) is shown after the text of the failure.
  RuntimeFailure(Errore errore, const std::string& dettaglio);

  /// Adds what is known on the way up. The first call counts: later ones change nothing.
  RuntimeFailure& spiega(Spiegazione spiegazione);
  RuntimeFailure& nella(const std::string& finestra);
  [[nodiscard]] const Spiegazione& spiegazione() const { return spiegazione_; }
  [[nodiscard]] const std::string& finestra() const { return finestra_; }  ///< the caption of a window

  [[nodiscard]] Errore errore() const { return errore_; }
  [[nodiscard]] int numero() const { return static_cast<int>(errore_); }
  [[nodiscard]] const char* what() const noexcept override { return testo_.c_str(); }

 private:
  Errore errore_;
  std::string testo_, finestra_;
  Spiegazione spiegazione_;
};

}  // namespace vaticlo
