#pragma once

#include <span>

#include "archive/clsgestione.h"
#include "desktop/legame.h"
#include "forms/controlli_estrazione.h"

class QHBoxLayout;
class QLayout;

namespace vaticlo {

/// The table of a draw: a row for each wheel with its name at the left, five fields each.
[[nodiscard]] QWidget* tavolaEstrazione(Legame& legame, std::span<CampoTesto, kCampiEstrazione> campi);

/// The headline of a draw window: "Estrazione n° 12 del 5/1/2004".
[[nodiscard]] QLayout* intestazione(Legame& legame, Etichetta& prima, Etichetta& numero, Etichetta& del,
                                    Etichetta& data);

/// The table with its scroll bar at the right.
[[nodiscard]] QWidget* tavolaConBarra(Legame& legame, ControlliEstrazione& estrazione);

/// Puts the scroll bar of a draw window at the right of a table laid out as a grid, as tall as its rows.
void aggiungiBarra(Legame& legame, QWidget& tavola, BarraScorrimento& VScroll1, int primaRiga = 0);

}  // namespace vaticlo
