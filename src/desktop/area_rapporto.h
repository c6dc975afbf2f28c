#pragma once

#include <QPlainTextEdit>

#include "forms/controlli.h"

class QLineEdit;

namespace vaticlo {

/// The pane that shows a report. It breaks no line; its text can be selected, copied, searched (Ctrl+F), and
/// saved by its context menu. The colours of its lines are no part of the text.
class AreaRapporto : public QPlainTextEdit {
 public:
  AreaRapporto(AreaTesto& modello, QWidget* padre);

  /// Draws the model as it is now.
  void aggiorna();

 protected:
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void apriRicerca();
  void chiudiRicerca();
  void cerca(QTextDocument::FindFlags verso, bool dalla);

  class Coloritura;

  AreaTesto& modello_;
  std::string mostrato_;
  Coloritura* coloritura_;
  QLineEdit* ricerca_;
};

}  // namespace vaticlo
