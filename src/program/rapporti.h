#pragma once

#include "platform/rapporto.h"
#include "program/programma.h"

namespace vaticlo {

/// Ends a report of a run. One that the disk did not take whole is noted in Globals and named in passing: the
/// run has its outcome all the same.
void concludi(FileRapporto& rapporto, Programma& programma);

}  // namespace vaticlo
