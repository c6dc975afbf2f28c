#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/controlli.h"
#include "platform/tabella.h"

namespace vaticlo {

/// A table on a window: its rows put in order by a column, narrowed by a text that the user types, and
/// chosen. A row is named by its place in the table, from 0, in whatever order it is shown.
class Prospetto : public Controllo {
 public:
  using Riga = std::size_t;
  enum class Scelta { Una, Diverse };
  /// Which column the rows follow; none: the table's own order. Fields with nothing in them come last.
  struct Ordine {
    std::optional<std::size_t> colonna;
    bool crescente = true;
    bool operator==(const Ordine&) const = default;
  };

  explicit Prospetto(Scelta quante = Scelta::Una) : quante_(quante) {}

  Proprieta<std::string> Titolo{*this, ""};  ///< what it shows: a title on paper, a name for who can't see it

  /// Shows another table. Order and filter stay; of the rows chosen those stay chosen whose first field is
  /// there again. No event follows.
  void mostra(Tabella tabella);
  void ordina(Ordine ordine);
  /// Shows only rows with that text, in small or capital letters, in their first field or in one that is a
  /// text. Change follows when that hides a row that was chosen.
  void filtra(const std::string& testo);
  /// Chooses these rows of those shown, one at most where only one can be. Change follows when the choice
  /// changes.
  void scegli(const std::vector<Riga>& righe);
  /// The user opens a row of those shown: it is chosen and Apri follows.
  void apri(Riga riga);

  [[nodiscard]] const Tabella& tabella() const { return tabella_; }
  [[nodiscard]] Scelta quante() const { return quante_; }
  [[nodiscard]] const Ordine& ordine() const { return ordine_; }
  [[nodiscard]] const std::vector<Riga>& mostrate() const { return mostrate_; }  ///< in the order shown
  [[nodiscard]] const std::vector<Riga>& scelte() const { return scelte_; }      ///< in the order shown
  /// The first row chosen.
  [[nodiscard]] std::optional<Riga> scelta() const;
  [[nodiscard]] const Cella& cella(Riga riga, std::size_t colonna) const {
    return tabella_.righe.at(riga).at(colonna);
  }
  /// Another number for each other table, and for each other set or order of the rows shown.
  [[nodiscard]] int edizione() const { return edizione_; }

  /// The rows shown, and the rows chosen (all of those shown when none is), as they leave the window.
  [[nodiscard]] Tabella tabellaMostrata() const { return con(mostrate_); }
  [[nodiscard]] Tabella tabellaScelta() const { return con(scelte_.empty() ? mostrate_ : scelte_); }

  std::function<void()> Change;  ///< other rows are chosen
  std::function<void()> Apri;    ///< a row was pressed twice, or Enter on it

 private:
  void disponi();
  [[nodiscard]] bool passa(const std::vector<Cella>& celle) const;
  [[nodiscard]] std::vector<Riga> traLeMostrate(const std::vector<Riga>& righe) const;
  [[nodiscard]] Tabella con(const std::vector<Riga>& righe) const;

  Scelta quante_;
  Tabella tabella_;
  Ordine ordine_;
  std::string filtro_;  ///< in the form of comparison
  std::vector<Riga> mostrate_, scelte_;
  int edizione_ = 0;
};

}  // namespace vaticlo
