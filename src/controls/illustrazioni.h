#pragma once

#include <QColor>
#include <QImage>

#include "controls/stato_opzione.h"
#include "controls/stato_pulsante.h"

class QPalette;

namespace vaticlo {

/// The artwork of the self-drawn controls, painted as vectors for a device pixel ratio, in colours made from
/// the palette so that it fits light and dark desktops. Images are in device pixels.
[[nodiscard]] QImage dipingiPulsante(AspettoPulsante aspetto, const QPalette& palette, qreal rapporto);
[[nodiscard]] QImage dipingiOpzione(AspettoOpzione aspetto, const QPalette& palette, int lato,
                                    qreal rapporto);
[[nodiscard]] QImage dipingiRiquadro(const QPalette& palette, const QColor& fondo, qreal rapporto);

[[nodiscard]] QColor coloreDisabilitato();  ///< of the caption of a disabled control

}  // namespace vaticlo
