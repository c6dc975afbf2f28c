#include "desktop/vista_guida.h"

#include <QFile>
#include <QKeyEvent>
#include <QScreen>

#include "dialogs/frm_principale_tavole.h"

namespace vaticlo {

namespace {

constexpr QSize kMisura(990, 720);  // the widest picture, without a scroll bar below

}  // namespace

VistaGuida::VistaGuida(const std::filesystem::path& pagina, QWidget* padre) : QTextBrowser(padre) {
  setObjectName(QStringLiteral("guida"));
  setWindowFlag(Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QString::fromUtf8(kCaptionGuida));
  setFrameShape(QFrame::NoFrame);
  setOpenExternalLinks(true);
  setSource(QUrl::fromLocalFile(QFile::decodeName(pagina.c_str())));
  resize(kMisura.boundedTo(screen()->availableSize() * 9 / 10));
}

void VistaGuida::keyPressEvent(QKeyEvent* tasto) {
  if (tasto->key() == Qt::Key_Escape)
    close();
  else
    QTextBrowser::keyPressEvent(tasto);
}

}  // namespace vaticlo
