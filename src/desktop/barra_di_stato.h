#pragma once

#include <QStatusBar>
#include <vector>

#include "dialogs/avvisi.h"

class QLabel;

namespace vaticlo {

/// The line below the main window: what was done last, what has to be known, the program folder, the archive.
class BarraDiStato : public QStatusBar {
 public:
  BarraDiStato(const QString& cartella, QWidget* padre);

  void archivio(const QString& testo);
  /// What stands there until it is taken away by another call.
  void avvisi(const std::vector<Avviso>& avvisi);

 protected:
  void resizeEvent(QResizeEvent* evento) override;

 private:
  QLabel* etichetta(const QString& nome);
  void disponi();

  QString cartella_, avviso_;
  std::vector<Avviso> avvisi_;
  QLabel *avvertenza_, *dove_, *archivio_;
};

}  // namespace vaticlo
