#include "controls/stato_opzione.h"

namespace vaticlo {

void StatoOpzione::setValue(bool value) {
  const bool cambiato = value != value_;
  value_ = value;
  Aggiorna();
  if (cambiato) ValueChanged(value);
}

void StatoOpzione::clicca() {
  Click();
  for (StatoOpzione* opzione : opzioniDellaFinestra()) opzione->setValue(false);
  setValue(true);
}

void StatoOpzione::MouseMove(bool dentro, bool sinistro) {
  if (dentro) StatoControllo::MouseMove(dentro, sinistro);
}

AspettoOpzione StatoOpzione::aspetto() const {
  if (!Enabled()) return value_ ? AspettoOpzione::AccesaDisabilitata : AspettoOpzione::SpentaDisabilitata;
  switch (fase()) {
    case Fase::Premuto:
      return value_ ? AspettoOpzione::AccesaPremuta : AspettoOpzione::SpentaPremuta;
    case Fase::Sorvolato:
      return value_ ? AspettoOpzione::AccesaSorvolata : AspettoOpzione::SpentaSorvolata;
    case Fase::Riposo:
      break;
  }
  return value_ ? AspettoOpzione::Accesa : AspettoOpzione::Spenta;
}

}  // namespace vaticlo
