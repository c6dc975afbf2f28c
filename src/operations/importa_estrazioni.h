#pragma once

#include "program/programma.h"

namespace vaticlo {

/// Asks for a public text file of draws and builds the archive anew from it, after a question when draws are
/// there already. A file that can't be taken is told of, with the number of the line that is wrong, and the
/// archive is as it was. Failures of the archive's own file go on to the caller.
void importaEstrazioniDaFile(Programma& programma);

}  // namespace vaticlo
