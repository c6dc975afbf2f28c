#include "desktop/salva_con_nome.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "platform/percorso.h"

namespace vaticlo {

namespace {

QString nomeDiFile(QString titolo) {
  for (const char vietato : kVietatiNeiNomi) titolo.replace(QLatin1Char(vietato), u'-');
  return titolo;
}

// The box asks before it gives the name of a file that is there. GTK's asks about the name as it was typed,
// so the suffix is not left to the toolkit, which would add it without a further question.
QString fileScelto(QFileDialog& scelta, const QString& suffisso) {
  while (scelta.exec() == QDialog::Accepted) {
    auto digitato = scelta.selectedFiles().value(0);
    if (QFileInfo(digitato).fileName().contains(u'.')) return digitato;
    const auto file = digitato + u'.' + suffisso;
    const auto domanda = QStringLiteral("\"%1\" esiste già. Volete sostituirlo?").arg(file);
    if (!QFileInfo::exists(file) ||
        QMessageBox::warning(scelta.parentWidget(), scelta.windowTitle(), domanda,
                             QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes)
      return file;
  }
  return {};
}

}  // namespace

void salvaConNome(const QWidget& vista, const QString& titolo, const QString& nome, const QString& suffisso,
                  const std::function<bool(const QString& file)>& scrivi) {
  QFileDialog scelta(vista.window(), titolo, QDir::homePath(),
                     titolo.mid(11) + QStringLiteral(" (*.%1)").arg(suffisso));
  scelta.setAcceptMode(QFileDialog::AcceptSave);
  scelta.selectFile(nomeDiFile(nome) + u'.' + suffisso);
  const auto file = fileScelto(scelta, suffisso);
  if (!file.isEmpty() && !scrivi(file))
    QMessageBox::warning(vista.window(), titolo,
                         QStringLiteral("Il file \"%1\" non si lascia scrivere!").arg(file));
}

}  // namespace vaticlo
