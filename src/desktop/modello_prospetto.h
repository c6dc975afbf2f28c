#pragma once

#include <QAbstractTableModel>

#include "desktop/confine.h"
#include "forms/prospetto.h"

namespace vaticlo {

/// The rows that a table shows, in their order, as the toolkit asks for them.
class ModelloProspetto : public QAbstractTableModel {
 public:
  ModelloProspetto(Prospetto& prospetto, const Confine& confine, QObject* padre);

  /// The rows or their order are others.
  void rifai();
  [[nodiscard]] Prospetto::Riga riga(const QModelIndex& indice) const;

  [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int sezione, Qt::Orientation verso,
                                    int ruolo = Qt::DisplayRole) const override;
  void sort(int colonna, Qt::SortOrder verso = Qt::AscendingOrder) override;

 private:
  [[nodiscard]] const Colonna& colonna(int n) const {
    return prospetto_.tabella().colonne.at(static_cast<std::size_t>(n));
  }

  Prospetto& prospetto_;
  const Confine& confine_;
};

}  // namespace vaticlo
