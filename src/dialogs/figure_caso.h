#pragma once

#include <array>

#include "analysis/confronto.h"
#include "archive/archivio.h"
#include "forms/grafico.h"
#include "platform/tabella.h"

namespace vaticlo {

/// What a method against chance is looked at by.
enum class FiguraCaso {
  Vincenti,  ///< how many winners the runs of chance gave
  Colpi,     ///< the wins by colpo
  Tempo,     ///< the winners up to a draw
};
inline constexpr std::array kFigureCaso = {FiguraCaso::Vincenti, FiguraCaso::Colpi, FiguraCaso::Tempo};

/// The picture, and the same figures as a table. `archivio` gives the draws their dates.
[[nodiscard]] Disegno disegnoDel(const Confronto& confronto, FiguraCaso figura,
                                 const ArchivioEstrazioni& archivio);
[[nodiscard]] Tabella cifreDel(const Confronto& confronto, FiguraCaso figura,
                               const ArchivioEstrazioni& archivio);

}  // namespace vaticlo
