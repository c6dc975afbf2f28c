#include "desktop/colori.h"

namespace vaticlo {

QColor coloreDi(Tono tono, const QColor& sfondo) {
  const bool chiari = scuro(sfondo);
  switch (tono) {
    case Tono::Vincita:
      return chiari ? QColor(0x7B, 0xD8, 0x8F) : QColor(0x0B, 0x6B, 0x2C);
    case Tono::Attesa:
      return chiari ? QColor(0x8A, 0xB8, 0xF0) : QColor(0x1B, 0x55, 0x9C);
    case Tono::Negativo:
      break;
  }
  return chiari ? QColor(0xA8, 0xA8, 0xA8) : QColor(0x66, 0x66, 0x66);
}

}  // namespace vaticlo
