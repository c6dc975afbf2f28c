#pragma once

#include "archive/archivio.h"
#include "methods/metodo.h"
#include "sostegno/cartella_prova.h"

namespace vaticlo::prova {

/// An archive built draw by draw. Cells that nothing sets are 0.
class ArchivioProva {
 public:
  /// Draws 1 to `ultima`, all of 12/3/2005.
  explicit ArchivioProva(int ultima);

  ArchivioProva& data(int estrazione, int giorno, int mese, int anno);
  /// The first numbers of a wheel (1 to 11) of a draw.
  ArchivioProva& ruota(int estrazione, int ruota, const std::vector<int>& numeri);
  void scrivi(const ProgrammaProva& p) const { ScriviArchivio(p.cartella(), griglia); }

  ArchivioEstrazioni griglia;
};

/// The archive up to draw `ultima`, with what came out as "5434 Ba 12, 5436 Naz 3 1 2".
[[nodiscard]] ArchivioProva archivioDi(int ultima, const std::string& uscite = "");

/// One slot, given cell by cell: what stands in each list, closing cells included.
struct SlotProva {
  int estrazione = 0;
  std::vector<int> telefono = {};  ///< the cells from position 3 on
  std::vector<int> ruote = {};
  int colpi = 10;
  std::vector<int> ambate = {}, ambi = {}, sup = {};
};

/// A method file made of its slots, from the first one on.
[[nodiscard]] FileMetodo metodoProva(const std::vector<SlotProva>& slot);
void scriviMetodoProva(const ProgrammaProva& p, std::string_view nome, const std::vector<SlotProva>& slot);

/// The bytes of a report in its code page, its lines separated by "|" and ended by CR LF.
[[nodiscard]] std::string rapportoDi(const std::string& testo);

}  // namespace vaticlo::prova
