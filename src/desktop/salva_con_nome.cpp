#include "desktop/salva_con_nome.h"

#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

namespace vaticlo {

void salvaConNome(const QWidget& vista, const QString& titolo, const QString& nome, const QString& suffisso,
                  const std::function<bool(const QString& file)>& scrivi) {
  QFileDialog scelta(vista.window(), titolo, QDir::homePath(),
                     titolo.mid(11) + QStringLiteral(" (*.%1)").arg(suffisso));
  scelta.setAcceptMode(QFileDialog::AcceptSave);
  scelta.setDefaultSuffix(suffisso);
  scelta.selectFile(QString(nome).replace(u'/', u'-') + u'.' + suffisso);  // of a date
  if (scelta.exec() != QDialog::Accepted) return;
  const auto file = scelta.selectedFiles().value(0);
  if (!scrivi(file))
    QMessageBox::warning(vista.window(), titolo,
                         QStringLiteral("Il file \"%1\" non si lascia scrivere!").arg(file));
}

}  // namespace vaticlo
