#include "desktop/carta.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

namespace vaticlo {

namespace {

constexpr double kCentimetriMargine = 2;  // the toolkit's own, on each side of a page
constexpr double kCentimetriPollice = 2.54;
constexpr double kPuntiTabella = 8;

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

void stampaSu(QPagedPaintDevice& carta, const QString& titolo, const Tabella& tabella) {
  QTextDocument documento;
  documento.documentLayout()->setPaintDevice(&carta);
  auto piccolo = documento.defaultFont();
  piccolo.setPointSizeF(kPuntiTabella);
  documento.setDefaultFont(piccolo);
  QTextCursor cursore(&documento);
  QTextCharFormat grassetto;
  grassetto.setFontWeight(QFont::Bold);
  cursore.insertText(titolo + u'\n', grassetto);

  QTextTableFormat forma;
  forma.setHeaderRowCount(1);
  forma.setBorderCollapse(true);
  forma.setBorder(0.5);
  forma.setBorderBrush(Qt::lightGray);
  forma.setCellPadding(2);
  forma.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  const auto colonne = static_cast<int>(tabella.colonne.size());
  auto* griglia = cursore.insertTable(static_cast<int>(tabella.righe.size()) + 1, colonne, forma);
  for (int riga = 0; riga < griglia->rows(); ++riga)
    for (int c = 0; c < colonne; ++c) {
      const auto& colonna = tabella.colonne[static_cast<std::size_t>(c)];
      auto cella = griglia->cellAt(riga, c).firstCursorPosition();
      QTextBlockFormat posto;
      posto.setAlignment(colonna.tipo == Colonna::Tipo::Numero ? Qt::AlignRight : Qt::AlignLeft);
      cella.setBlockFormat(posto);
      if (riga == 0)
        cella.insertText(QString::fromStdString(colonna.nome), grassetto);
      else
        cella.insertText(QString::fromStdString(testoCella(
            tabella.righe[static_cast<std::size_t>(riga - 1)][static_cast<std::size_t>(c)], colonna)));
    }
  documento.print(&carta);
}

bool salvaPdf(const QString& file, const std::function<void(QPagedPaintDevice&)>& disegna) {
  QSaveFile uscita(file);
  if (!uscita.open(QIODevice::WriteOnly)) return false;
  {
    QPdfWriter carta(&uscita);
    carta.setTitle(QStringLiteral("Vaticlo"));
    disegna(carta);
  }
  return uscita.commit();
}

bool salvaOttetti(const QString& file, const QByteArray& ottetti) {
  QSaveFile uscita(file);
  return uscita.open(QIODevice::WriteOnly) && uscita.write(ottetti) == ottetti.size() && uscita.commit();
}

}  // namespace vaticlo
