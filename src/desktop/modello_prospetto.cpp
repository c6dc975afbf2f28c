#include "desktop/modello_prospetto.h"

namespace vaticlo {

ModelloProspetto::ModelloProspetto(Prospetto& prospetto, const Confine& confine, QObject* padre)
    : QAbstractTableModel(padre), prospetto_(prospetto), confine_(confine) {}

void ModelloProspetto::rifai() {
  beginResetModel();
  endResetModel();
}

Prospetto::Riga ModelloProspetto::riga(const QModelIndex& indice) const {
  return prospetto_.mostrate().at(static_cast<std::size_t>(indice.row()));
}

int ModelloProspetto::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(prospetto_.mostrate().size());
}

int ModelloProspetto::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(prospetto_.tabella().colonne.size());
}

QVariant ModelloProspetto::data(const QModelIndex& indice, int ruolo) const {
  const auto& sua = colonna(indice.column());
  if (ruolo == Qt::DisplayRole)
    return QString::fromStdString(
        testoCella(prospetto_.cella(riga(indice), static_cast<std::size_t>(indice.column())), sua));
  if (ruolo == Qt::TextAlignmentRole)
    return QVariant(Qt::AlignVCenter | (sua.tipo == Colonna::Tipo::Numero ? Qt::AlignRight : Qt::AlignLeft));
  return {};
}

QVariant ModelloProspetto::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (verso != Qt::Horizontal) return {};
  const auto& sua = colonna(sezione);
  switch (ruolo) {
    case Qt::DisplayRole:
      return QString::fromStdString(sua.nome);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
      return QString::fromStdString(sua.spiegazione);
    case Qt::TextAlignmentRole:
      return QVariant(Qt::AlignVCenter |
                      (sua.tipo == Colonna::Tipo::Numero ? Qt::AlignRight : Qt::AlignLeft));
    default:
      return {};
  }
}

void ModelloProspetto::sort(int colonna, Qt::SortOrder verso) {
  Prospetto::Ordine ordine;
  if (colonna >= 0) ordine = {static_cast<std::size_t>(colonna), verso == Qt::AscendingOrder};
  confine_.esegui([&] { prospetto_.ordina(ordine); });
}

}  // namespace vaticlo
