#include "desktop/confine.h"

#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <cstdlib>

#include "dialogs/messaggio_fatale.h"

namespace vaticlo {

namespace {

QWidget* finestraPrincipale() {
  for (auto* finestra : QApplication::topLevelWidgets())
    if (qobject_cast<QMainWindow*>(finestra) != nullptr && finestra->isVisible()) return finestra;
  return nullptr;
}

}  // namespace

Confine Confine::nella(std::string finestra) const {
  Confine altro(*this);
  altro.finestra_ = std::move(finestra);
  return altro;
}

void Confine::esegui(const std::function<void()>& evento) const {
  try {
    evento();
  } catch (RuntimeFailure& failure) {
    if (failure.errore() == Errore::CartellaOccupata) return diRiprovare();
    fine_(failure.nella(finestra_));
  } catch (const std::exception& eccezione) {
    fine_(RuntimeFailure(Errore::ErroreInterno, eccezione.what()).nella(finestra_));
  }
}

// Whoever writes holds the folder first, so nothing has been done yet.
void Confine::diRiprovare() {
  QMessageBox box(QMessageBox::Warning, QStringLiteral("Attenzione"),
                  QStringLiteral("Un altro programma sta scrivendo nella stessa cartella.\n\n"
                                 "Non è stato cambiato nulla: riprovate tra qualche secondo."),
                  QMessageBox::Ok, finestraPrincipale());
  box.exec();
}

void Confine::terminaProgramma(const RuntimeFailure& failure) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Vaticlo"),
                  QString::fromStdString(messaggioFatale(failure)), QMessageBox::Ok, finestraPrincipale());
  box.setTextFormat(Qt::PlainText);
  box.exec();
  // At once: no window gets another event, and nothing that is still open is written.
  std::_Exit(EXIT_FAILURE);
}

}  // namespace vaticlo
