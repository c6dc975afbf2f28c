#include "desktop/confine.h"

#include <QMessageBox>
#include <cstdlib>

namespace vaticlo {

void Confine::esegui(const std::function<void()>& evento) const {
  try {
    evento();
  } catch (const RuntimeFailure& failure) {
    fine_(failure);
  } catch (const std::exception& eccezione) {
    fine_(RuntimeFailure(Errore::ErroreInterno, eccezione.what()));
  }
}

void Confine::terminaProgramma(const RuntimeFailure& failure) {
  QMessageBox::critical(
      nullptr, QStringLiteral("Vaticlo"),
      QStringLiteral("Errore di run-time %1: %2.\n\nIl programma termina; ciò che era stato salvato "
                     "resta.")
          .arg(failure.numero())
          .arg(QString::fromUtf8(failure.what())));
  // No window lives on to meet another event, and nothing that is still open is written any more.
  std::_Exit(EXIT_FAILURE);
}

}  // namespace vaticlo
