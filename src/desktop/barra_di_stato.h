#pragma once

#include <QStatusBar>

class QLabel;

namespace vaticlo {

struct PaginaIniziale;

/// The line below the main window: what was done last, the program folder, the archive.
class BarraDiStato : public QStatusBar {
 public:
  BarraDiStato(const QString& cartella, QWidget* padre);

  void archivio(const QString& testo);

 protected:
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void accorcia();

  QString cartella_;
  QLabel *dove_, *archivio_;
};

}  // namespace vaticlo
