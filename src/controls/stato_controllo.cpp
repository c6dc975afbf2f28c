#include "controls/stato_controllo.h"

namespace vaticlo {

void StatoControllo::setEnabled(bool enabled) {
  enabled_ = enabled;
  Aggiorna();
}

void StatoControllo::MouseMove(bool dentro, bool sinistro) {
  if (!enabled_) return;
  timer1_ = true;
  if (dentro) fase_ = sinistro ? Fase::Premuto : Fase::Sorvolato;
}

void StatoControllo::Timer1_Timer(bool dentro) {
  if (!timer1_ || dentro) return;
  timer1_ = false;
  MouseOut();
  Aggiorna();
}

}  // namespace vaticlo
