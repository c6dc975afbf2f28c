#pragma once

#include <QDialog>
#include <QStringList>

class QLineEdit;
class QListWidget;

namespace vaticlo {

/// A box with a list to pick one item from. What is typed above it leaves the items that have it; the arrows
/// move in the list, Enter takes the item that is marked.
class SceltaDaElenco : public QDialog {
 public:
  SceltaDaElenco(const QString& testo, const QString& titolo, const QStringList& voci, QWidget* padre);
  /// The item marked; empty when none is.
  [[nodiscard]] QString scelta() const;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void filtra(const QString& testo);

  QLineEdit* filtro_;
  QListWidget* elenco_;
};

}  // namespace vaticlo
