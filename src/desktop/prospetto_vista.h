#pragma once

#include <QTableView>

#include "desktop/modello_prospetto.h"

class QAbstractButton;
class QMenu;

namespace vaticlo {

/// A table with heads that sort it: by a press, or by Ctrl and the number of the column. Its rows are copied,
/// saved and printed by its context menu, to which a window adds its own entries as actions.
class ProspettoVista : public QTableView {
 public:
  ProspettoVista(Prospetto& modello, const Confine& confine, QWidget* padre);

  /// Draws the model as it is now.
  void aggiorna();
  /// The context menu offers these buttons of the window too.
  void offri(const QList<QAbstractButton*>& pulsanti) { pulsanti_ = pulsanti; }

 protected:
  void contextMenuEvent(QContextMenuEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  [[nodiscard]] QModelIndex moveCursor(CursorAction azione, Qt::KeyboardModifiers modificatori) override;
  void paintEvent(QPaintEvent* evento) override;
  bool viewportEvent(QEvent* evento) override;
  void selectionChanged(const QItemSelection& scelte, const QItemSelection& lasciate) override;
  void changeEvent(QEvent* evento) override;

 private:
  void segnaOrdine();
  void aggiornaOrdini();
  void misura();
  void mostraScelte();
  void apri(const QModelIndex& indice);
  void copia();
  void salvaCsv();
  void salvaComePdf();
  void stampa();
  [[nodiscard]] QString titolo() const;

  Prospetto& modello_;
  const Confine& confine_;
  ModelloProspetto* righe_;
  QMenu* ordini_;
  QList<QAbstractButton*> pulsanti_;
  int edizione_ = -1;
  bool disegnando_ = false;
  bool larghezzeScelte_ = false;  // by the user
};

}  // namespace vaticlo
