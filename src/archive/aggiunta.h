#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "archive/archivio.h"
#include "platform/tabella.h"

namespace vaticlo {

using Cinquina = std::array<std::uint8_t, ArchivioEstrazioni::Colonne>;

/// A wheel of a draw on which archive and text differ. All zeros where it was not drawn.
struct RuotaDiversa {
  std::string data;  ///< of the draw, as DataEstrazione() gives it
  int ruota;         ///< 1 to 11
  Cinquina archivio, testo;
};

/// What a text of draws adds to an archive, and what there is to say about the two of them.
struct Aggiunta {
  ArchivioEstrazioni archivio;  ///< with the new draws at its end; all others are as they were
  int dal = 1, al = 0;          ///< the new draws in it; al < dal when there are none
  int confrontate = 0;          ///< the draws that both have
  std::vector<RuotaDiversa> differenze;
  std::vector<std::string> avvertenze;  ///< what the text lacks (Italian sentences)

  [[nodiscard]] int nuove() const { return al - dal + 1; }
};

/// The draws of the text with a date after that of the archive's last draw go to its end, so that no draw
/// gets another number; those that both have are compared. ErroreImportazione when the dates of the archive
/// do not tell which draws are new, or there is no room for them.
[[nodiscard]] Aggiunta preparaAggiunta(const ArchivioEstrazioni& archivio, const ArchivioEstrazioni& testo);

/// How many draws, from which date to which (Italian). There is one at least.
[[nodiscard]] std::string riassunto(const Aggiunta& aggiunta);

/// A difference in one line (Italian).
[[nodiscard]] std::string inParole(const RuotaDiversa& differenza);

/// The same as rows: date, wheel, both rows.
[[nodiscard]] Tabella tabellaDelle(const std::vector<RuotaDiversa>& differenze);

}  // namespace vaticlo
