#pragma once

#include <iosfwd>

#include "program/programma.h"

namespace vaticlo {

/// Fills a program folder that has no draws yet with invented draws, on the days of the week
/// on which the game is drawn today, and with predictions in "Metodo 1" and "Metodo 2": some have won, some
/// have lost, some are in play. The same numbers each time (a fixed seed). A folder that already holds draws,
/// or predictions of somebody in the two methods, is refused with a message.
void creaDimostrazione(Programma& programma, std::ostream& uscita);

}  // namespace vaticlo
