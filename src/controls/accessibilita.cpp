#include "controls/accessibilita.h"

#include <QAccessibleWidget>

#include "controls/xpgroupbox.h"
#include "controls/xpradiobutton.h"

namespace vaticlo {
namespace {

class OpzioneAccessibile : public QAccessibleWidget {
 public:
  explicit OpzioneAccessibile(xpradiobutton* opzione)
      : QAccessibleWidget(opzione, QAccessible::RadioButton) {}

  [[nodiscard]] QString text(QAccessible::Text quale) const override {
    if (quale == QAccessible::Accelerator && !opzione().shortcut().isEmpty()) {
      return opzione().shortcut().toString(QKeySequence::NativeText);
    }
    const QString testo = QAccessibleWidget::text(quale);
    return quale == QAccessible::Name && testo.isEmpty() ? didascalia() : testo;
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State stato = QAccessibleWidget::state();
    stato.checkable = true;
    stato.checked = opzione().Value();
    stato.pressed = opzione().isDown();
    return stato;
  }

  [[nodiscard]] QStringList actionNames() const override {
    QStringList azioni = QAccessibleWidget::actionNames();
    if (opzione().isEnabled()) azioni.prepend(toggleAction());
    return azioni;
  }

  void doAction(const QString& azione) override {
    if (azione == toggleAction()) {
      opzione().click();
    } else {
      QAccessibleWidget::doAction(azione);
    }
  }

 private:
  [[nodiscard]] xpradiobutton& opzione() const { return *static_cast<xpradiobutton*>(widget()); }

  /// The caption as it is read: a single ampersand marks the access key, a double one is an ampersand.
  [[nodiscard]] QString didascalia() const {
    QString letto;
    const QString scritto = opzione().Caption();
    for (qsizetype i = 0; i < scritto.size(); ++i) {
      if (scritto[i] == u'&' && i + 1 < scritto.size()) ++i;
      letto += scritto[i];
    }
    return letto;
  }
};

QAccessibleInterface* crea(const QString&, QObject* oggetto) {
  if (auto* opzione = qobject_cast<xpradiobutton*>(oggetto)) return new OpzioneAccessibile(opzione);
  if (auto* riquadro = qobject_cast<xpgroupbox*>(oggetto))
    return new QAccessibleWidget(riquadro, QAccessible::Grouping);
  return nullptr;
}

}  // namespace

void installaAccessibilita() { QAccessible::installFactory(crea); }

}  // namespace vaticlo
