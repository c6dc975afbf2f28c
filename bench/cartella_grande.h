#pragma once

#include "platform/cartella.h"

namespace vaticlo {

/// Fills a folder with `estrazioni` made draws and `metodi` methods of nine predictions each, spread over all
/// the draws, with bets of every kind. The same each time.
void creaCartellaGrande(const CartellaProgramma& cartella, int estrazioni, int metodi);

}  // namespace vaticlo
