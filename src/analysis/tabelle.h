#pragma once

#include "analysis/confronto.h"
#include "analysis/elenco_previsioni.h"
#include "analysis/quadro.h"
#include "analysis/ritardi.h"
#include "platform/tabella.h"

namespace vaticlo {

/// What the analysis found as tables: shares rounded half to even to one decimal, expectations to two.
[[nodiscard]] Tabella tabellaDel(const std::vector<RigaQuadro>& quadro);
[[nodiscard]] Tabella tabellaDelle(const std::vector<VocePrevisione>& previsioni);
[[nodiscard]] Tabella tabellaDei(const std::vector<Confronto>& confronti);
[[nodiscard]] Tabella tabellaDei(const Ritardi& ritardi, Sorte sorte);

}  // namespace vaticlo
