#include "desktop/carta.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextDocument>

namespace vaticlo {

namespace {

constexpr double kCentimetriMargine = 2;  // the toolkit's own, on each side of a page
constexpr double kCentimetriPollice = 2.54;

// As much of the line as fits, up to a place where it may be broken; the first such place when nothing fits.
qsizetype primoPezzo(const QString& riga, const std::function<bool(const QString&)>& entra) {
  qsizetype pezzo = 0;
  for (qsizetype n = 0; n + 1 < riga.size(); ++n) {
    if (riga[n] != u';' && riga[n] != u' ') continue;
    if (pezzo > 0 && !entra(riga.left(n + 1))) break;
    pezzo = n + 1;
  }
  return pezzo > 0 ? pezzo : riga.size();
}

}  // namespace

QString spezzaRighe(const QString& testo, const std::function<bool(const QString&)>& entra) {
  QStringList righe;
  for (QString riga : testo.split(u'\n')) {
    while (!entra(riga)) {
      const auto pezzo = primoPezzo(riga, entra);
      if (pezzo >= riga.size()) break;
      righe << riga.left(pezzo);
      riga.remove(0, pezzo);
    }
    righe << riga;
  }
  return righe.join(u'\n');
}

void stampaSu(QPagedPaintDevice& carta, const QString& testo) {
  QTextDocument documento;
  documento.documentLayout()->setPaintDevice(&carta);
  const QFontMetricsF misura(documento.defaultFont(), &carta);
  const double larghezza = carta.width() - 2 * kCentimetriMargine / kCentimetriPollice * carta.logicalDpiX() -
                           misura.averageCharWidth();
  documento.setPlainText(
      spezzaRighe(testo, [&](const QString& riga) { return misura.horizontalAdvance(riga) <= larghezza; }));
  documento.print(&carta);
}

bool salvaPdf(const QString& file, const QString& testo) {
  QSaveFile uscita(file);
  if (!uscita.open(QIODevice::WriteOnly)) return false;
  {
    QPdfWriter carta(&uscita);
    carta.setTitle(QStringLiteral("Vaticlo"));
    stampaSu(carta, testo);
  }
  return uscita.commit();
}

bool salvaTesto(const QString& file, const QString& testo) {
  QSaveFile uscita(file);
  const auto ottetti = testo.toUtf8();
  return uscita.open(QIODevice::WriteOnly) && uscita.write(ottetti) == ottetti.size() && uscita.commit();
}

}  // namespace vaticlo
