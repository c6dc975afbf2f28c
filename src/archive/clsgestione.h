#pragma once

#include <optional>
#include <string>

#include "archive/archivio.h"
#include "archive/data.h"
#include "archive/somdif.h"

namespace vaticlo {

class CartellaProgramma;
class Servizi;

inline constexpr int kCampiEstrazione = 55;  ///< field f: wheel 1 + f div 5, position 1 + f mod 5

/// What a save reads of its dialog: the 55 texts and the date, each under the name of its control.
class ModuloEstrazione {
 public:
  virtual ~ModuloEstrazione() = default;

  [[nodiscard]] virtual std::string txtestr_Text(int f) const = 0;
  /// The date of a new draw.
  [[nodiscard]] virtual std::optional<Data> mcdatecombo1_Value() const = 0;
  /// The date of a stored draw, as its label shows it.
  [[nodiscard]] virtual std::string lbldataestr_Caption() const = 0;
};

/// What shows a draw on a dialog: its controls as the draw store reaches them, each under its name.
class SchedaEstrazione {
 public:
  virtual ~SchedaEstrazione() = default;

  /// Takes the mask away, then sets the text. Fails with Errore::ElementoInesistente for a field that the
  /// dialog does not have.
  virtual void txtestr_Mostra(int f, const std::string& testo) = 0;
  virtual void lbldataestr_Caption(const std::string& testo) = 0;
  virtual void lblnestr_Caption(const std::string& testo) = 0;
  virtual void VScroll1_Max(int massimo) = 0;
  /// Fails with Errore::ValoreProprieta for a value outside the bar; a change runs the dialog's own handler
  /// before it returns.
  virtual void VScroll1_Value(int valore) = 0;
};

/// The further controls of the sum and distance view. Column 0 to 9, field 0 to 9 (wheel - 1).
class SchedaSomDif {
 public:
  virtual ~SchedaSomDif() = default;

  /// The first option that is on, in the order of the screen; nothing when none is.
  [[nodiscard]] virtual std::optional<TipoSomDif> opzione() const = 0;
  virtual void lbldataestr_Caption(const std::string& testo) = 0;
  virtual void lblnestr_Caption(const std::string& testo) = 0;
  virtual void txtestr_Mostra(int colonna, int i, const std::string& testo) = 0;
  virtual void txtestr_Giallo(int colonna, int i) = 0;
};

/// The draw store: what dialogs do to the archive. One object for each use; every operation reads the file
/// afresh. An archive that can't be opened is a failure of leggiFile() in each of them.
class clsGestione {
 public:
  clsGestione(const CartellaProgramma& cartella, Servizi& servizi) : cartella_(cartella), servizi_(servizi) {}

  /// Writes the numbers of the dialog into slot n, or into the first free slot. Nothing is validated, and the
  /// century is 20 on every save. Fails with Errore::TipoNonCorrispondente or Overflow (a text that is no
  /// byte, a caption that is no date) or Indice (archive full): the file is then unchanged.
  int salva(const ModuloEstrazione& frm, std::optional<int> n = std::nullopt);

  /// Shows slot n, a free one too (0/0/000 and zeros). Fails with Errore::Indice outside the grid.
  void Visualizza(SchedaEstrazione& frm, int n);

  /// Removes draw n and closes the gap; the Nazionale row stays where it is. Then shows what has the number n
  /// now.
  void cancella(SchedaEstrazione& frm, std::int16_t n);

  /// Finds a draw by four walks that never go back, shows it and moves the scroll bar. A walk off the grid
  /// gives the message; any other failure is swallowed.
  void Trova(SchedaEstrazione& frm, int giorno, int mese, int secolo, int anno);

  /// Shows the values of draw n for the option that is on, and marks equal values of a column in yellow.
  void VisualizzaSomDif(SchedaSomDif& frm, int n);

 private:
  const CartellaProgramma& cartella_;
  Servizi& servizi_;
};

}  // namespace vaticlo
