#pragma once

#include <span>

#include "desktop/legame.h"
#include "dialogs/campi_intervallo.h"
#include "forms/controlli_metodo.h"

class QLayout;

namespace vaticlo {

/// The frame that chooses between all methods and one.
[[nodiscard]] QGroupBox* sceltaMetodo(Legame& legame, ControlliMetodo& metodo);

/// A frame around one widget, which is called by the frame's caption.
[[nodiscard]] QGroupBox* riquadroCon(Legame& legame, Riquadro& riquadro, const QString& nome,
                                     QWidget* dentro);

/// The frame that chooses a range of draws.
[[nodiscard]] QGroupBox* intervalloEstrazioni(Legame& legame, CampiIntervallo& campi);

/// Options side by side of which one is on; their names end in _0, _1 and so on.
[[nodiscard]] QWidget* opzioniInRiga(Legame& legame, std::span<Opzione> opzioni, const QString& nome);

/// Gives frames side by side the height of the tallest.
void stessaAltezza(QLayout& riga);

/// Lets a label stand out.
void inGrassetto(QWidget& widget);

}  // namespace vaticlo
