#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/scaricato.h"

namespace vaticlo {

/// What a message is to whoever reads it. A question has the buttons Sì and No, the others OK.
enum class Genere {
  Notizia,
  Rifiuto,  ///< what was asked for is not done; archive and methods are as they were
  Domanda,
};
enum class Icona { Nessuna, Esclamazione };
enum class Risposta { Ok, Si, No };

/// A message box: what the user reads, and under which title.
struct Messaggio {
  std::string testo;
  std::string titolo = "Vaticlo";  ///< a box without a title of its own bears the program's name
  Genere genere = Genere::Notizia;
  Icona icona = Icona::Nessuna;
  Risposta predefinita = Risposta::Si;  ///< of a question; No for one that deletes or replaces
};

/// What the logic asks of a person or a device. The windows, the console and each test give their own.
class Servizi {
 public:
  virtual ~Servizi() = default;

  virtual Risposta mostra(const Messaggio& messaggio) = 0;
  /// The text typed into an input box; empty when it was cancelled.
  virtual std::string chiedi(const std::string& testo, const std::string& titolo) = 0;
  /// One of the items, picked from a list; empty when none was. Where there are no lists the item is asked
  /// for.
  virtual std::string scegli(const std::string& testo, const std::string& titolo,
                             const std::vector<std::string>& /*voci*/) {
    return chiedi(testo, titolo);
  }
  /// The file that the user picks to be read; an empty path when none.
  virtual std::filesystem::path scegliFile(const std::string& titolo) = 0;
  /// `lavoro` has got that far, in percent; 100 ends it.
  virtual void avanzamento(const std::string& lavoro, int percento) = 0;
  /// Prints the text (UTF-8) on the default printer; without one it does nothing.
  virtual void stampa(const std::string& testo) = 0;
  /// Fetches an address into a file and waits for the end. The file is written only when the transfer was
  /// complete and good. False on any failure.
  virtual bool scarica(const std::string& indirizzo, const std::filesystem::path& destinazione) = 0;
  /// Fetches what an address holds into memory and waits for the end; if it has changed since a time, when
  /// one is given (seconds since 1970).
  virtual Scaricato preleva(const std::string& indirizzo, std::int64_t seModificatoDopo) = 0;
  /// Says something in passing that nobody has to answer: what follows goes on all the same.
  virtual void segnala(const std::string& testo) = 0;
  /// Says what an action that has ended well did ("Estrazione 12 salvata"), where there is a place for that.
  /// What was shown as a notice need not be said again.
  virtual void fatto(const std::string& /*testo*/) {}
  virtual void apriPagina(const std::string& indirizzo) = 0;
  [[nodiscard]] virtual std::chrono::year_month_day oggi() const = 0;
  /// Gives pending events their turn, those of the user among them.
  virtual void eventiInAttesa() = 0;
  /// Gives the screen its turn; what the user does meanwhile waits.
  virtual void ridisegna() = 0;
};

}  // namespace vaticlo
