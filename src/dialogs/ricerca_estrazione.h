#pragma once

#include <functional>

#include "archive/clsgestione.h"
#include "forms/controlli.h"
#include "program/programma.h"

namespace vaticlo {

/// The key that presses the button which begins it.
inline constexpr const char* kTastoCerca = "F3";

/// The search for a draw that three dialogs share: asks for a number or a date, moves the scroll bar to the
/// draw. After a search by number `mostra` shows that draw; a search by date goes through clsGestione::Trova
/// on `frm`. Fails with Errore::Overflow for a number beyond 16 bits. Meant: draw 1 can't be reached by
/// number, though prompt and message offer it (guide: "La ricerca di un'estrazione").
void cercaEstrazione(Programma& programma, BarraScorrimento& VScroll1, SchedaEstrazione& frm,
                     const std::function<void(int)>& mostra);

}  // namespace vaticlo
