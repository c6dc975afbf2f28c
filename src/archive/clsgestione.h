#pragma once

#include <optional>
#include <string>

#include "archive/archivio.h"
#include "archive/data.h"
#include "archive/somdif.h"
#include "platform/servizi.h"

namespace vaticlo {

inline constexpr int kCampiEstrazione = 55;  ///< field f: wheel 1 + f div 5, position 1 + f mod 5

/// The controls of a dialog that the draw store reaches, each under its name. A dialog that lacks one fails
/// as a missing control does.
class FinestraEstrazione {
 public:
  virtual ~FinestraEstrazione() = default;

  [[nodiscard]] virtual std::string txtestr_Text(int f) const = 0;
  /// Takes the mask away, then sets the text. Failure 340 for a field that the dialog has not.
  virtual void txtestr_Mostra(int f, const std::string& testo) = 0;
  [[nodiscard]] virtual std::optional<Data> mcdatecombo1_Value() const = 0;
  [[nodiscard]] virtual std::string lbldataestr_Caption() const = 0;
  virtual void lbldataestr_Caption(const std::string& testo) = 0;
  virtual void lblnestr_Caption(const std::string& testo) = 0;
  virtual void VScroll1_Max(int massimo) = 0;
  /// Failure 380 for a value outside the bar; a change runs the dialog's own handler before it returns.
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

/// The draw store: what dialogs do to the archive. One object for each use. The four store operations read
/// the file afresh; the sum and distance view computes from the grid read at creation.
class clsGestione {
 public:
  clsGestione(const CartellaProgramma& cartella, Servizi& servizi);

  /// Writes the numbers of the dialog into slot n, or into the first free slot. Nothing is validated, and the
  /// century is 20 on every save. Failure 13 or 6 (a text that is no byte, a caption that is no date), 9
  /// (archive full): the file is then unchanged.
  int salva(FinestraEstrazione& frm, std::optional<int> n = std::nullopt);

  /// Shows slot n, a free one too (0/0/000 and zeros). Failure 9 outside the grid.
  void Visualizza(FinestraEstrazione& frm, int n);

  /// Removes draw n and closes the gap; the Nazionale row stays where it is. Then shows what has the number n
  /// now.
  void cancella(FinestraEstrazione& frm, std::int16_t n);

  /// Finds a draw by four walks that never go back, shows it and moves the scroll bar. A walk off the grid
  /// gives the message; any other failure is swallowed.
  void Trova(FinestraEstrazione& frm, int giorno, int mese, int secolo, int anno);

  /// Shows the values of draw n for the option that is on, and marks equal values of a column in yellow.
  void VisualizzaSomDif(SchedaSomDif& frm, int n);

 private:
  const CartellaProgramma& cartella_;
  Servizi& servizi_;
  ArchivioEstrazioni archivio_;
};

}  // namespace vaticlo
