#include "controls/illustrazioni.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPalette>

#include "controls/nove_pezzi.h"

namespace vaticlo {
namespace {

QColor mescola(const QColor& uno, const QColor& altro, double parte) {
  const auto canale = [parte](int a, int b) { return qRound(a + (b - a) * parte); };
  return {canale(uno.red(), altro.red()), canale(uno.green(), altro.green()),
          canale(uno.blue(), altro.blue())};
}

/// The colours that the artwork is mixed from; the active ones, since an index alone chooses the look.
struct Tavolozza {
  explicit Tavolozza(const QPalette& palette)
      : faccia(palette.color(QPalette::Active, QPalette::Button)),
        fondo(palette.color(QPalette::Active, QPalette::Window)),
        testo(palette.color(QPalette::Active, QPalette::ButtonText)),
        accento(palette.color(QPalette::Active, QPalette::Highlight)),
        scura(fondo.lightness() < testo.lightness()) {}

  QColor faccia, fondo, testo, accento;
  bool scura;
};

/// The face of a button from top to bottom, its border, and the thread of light inside the border.
struct Facciata {
  QColor alto, basso, bordo, filo;
};

Facciata facciata(AspettoPulsante aspetto, const Tavolozza& t) {
  const QColor alto = t.scura ? mescola(t.faccia, t.testo, 0.15) : mescola(t.faccia, Qt::white, 0.85);
  const QColor basso = mescola(t.faccia, t.testo, t.scura ? 0.07 : 0.03);
  const QColor bordo = mescola(t.faccia, t.testo, 0.38);
  const QColor filo = mescola(alto, Qt::white, t.scura ? 0.07 : 0.8);
  switch (aspetto) {
    case AspettoPulsante::Normale:
      break;
    case AspettoPulsante::Premuto: {
      const QColor ombra = t.scura ? QColor(Qt::black) : t.testo;
      const QColor premuta = mescola(mescola(t.faccia, ombra, t.scura ? 0.35 : 0.08), t.accento, 0.18);
      return {premuta, mescola(premuta, t.faccia, 0.4), mescola(bordo, t.accento, 0.65),
              mescola(premuta, ombra, 0.14)};
    }
    case AspettoPulsante::Disabilitato: {
      const QColor piatta = mescola(t.faccia, t.fondo, 0.7);
      return {piatta, piatta, mescola(t.fondo, t.testo, 0.18), piatta};
    }
    case AspettoPulsante::Sorvolato:
      return {mescola(alto, t.accento, 0.12), mescola(basso, t.accento, 0.24),
              mescola(bordo, t.accento, 0.75), mescola(filo, t.accento, 0.06)};
    case AspettoPulsante::Secondo:
      return {alto, basso, mescola(bordo, t.accento, 0.85), mescola(alto, t.accento, 0.55)};
  }
  return {alto, basso, bordo, filo};
}

QImage tela(QSizeF misura, qreal rapporto) {
  QImage immagine((misura * rapporto).toSize(), QImage::Format_ARGB32_Premultiplied);
  immagine.fill(Qt::transparent);
  return immagine;
}

/// A line of whole device pixels, so that it is as sharp at 125 % as at 100 %.
int spessoreLinea(qreal rapporto) { return qMax(1, qRound(rapporto)); }

QImage dipingiFacciata(const Facciata& colori, qreal rapporto) {
  QImage immagine = tela({kMisuraImmagine.larghezza, kMisuraImmagine.altezza}, rapporto);
  const QRectF area = QRectF(immagine.rect());
  const int linea = spessoreLinea(rapporto);
  const qreal raggio = qRound(kAngolo * rapporto);
  QLinearGradient luce(area.topLeft(), area.bottomLeft());
  luce.setColorAt(0, colori.alto);
  luce.setColorAt(1, colori.basso);

  QPainter pennello(&immagine);
  pennello.setRenderHint(QPainter::Antialiasing);
  const auto contorno = [&](qreal rientro, const QBrush& interno, const QColor& colore) {
    pennello.setBrush(interno);
    pennello.setPen(QPen(colore, linea));
    const qreal curva = raggio - rientro;
    pennello.drawRoundedRect(area.adjusted(rientro, rientro, -rientro, -rientro), curva, curva);
  };
  contorno(linea * 1.5, luce, colori.filo);
  contorno(linea * 0.5, Qt::NoBrush, colori.bordo);
  return immagine;
}

/// The face of a radio button, its ring, and the dot of one that is on.
struct Tondo {
  QColor alto, basso, anello, punto;
};

Tondo tondo(AspettoOpzione aspetto, const Tavolozza& t) {
  const QColor chiara = t.scura ? mescola(t.faccia, t.testo, 0.12) : mescola(t.faccia, Qt::white, 0.95);
  const QColor ombra = mescola(t.faccia, t.testo, t.scura ? 0.04 : 0.05);
  const QColor anello = mescola(t.faccia, t.testo, 0.5);
  const QColor punto = t.scura ? mescola(t.accento, Qt::white, 0.25) : mescola(t.accento, Qt::black, 0.1);
  switch (aspetto) {
    case AspettoOpzione::Spenta:
    case AspettoOpzione::Accesa:
      break;
    case AspettoOpzione::SpentaSorvolata:
    case AspettoOpzione::AccesaSorvolata:
      return {mescola(ombra, t.accento, 0.30), mescola(chiara, t.accento, 0.12),
              mescola(anello, t.accento, 0.8), punto};
    case AspettoOpzione::SpentaPremuta:
    case AspettoOpzione::AccesaPremuta:
      return {mescola(ombra, t.accento, 0.55), mescola(ombra, t.accento, 0.38),
              mescola(anello, t.accento, 0.8),
              t.scura ? mescola(punto, Qt::white, 0.4) : mescola(punto, Qt::black, 0.35)};
    case AspettoOpzione::SpentaDisabilitata:
    case AspettoOpzione::AccesaDisabilitata: {
      const QColor piatta = mescola(t.faccia, t.fondo, 0.7);
      return {piatta, piatta, mescola(t.fondo, t.testo, 0.22), coloreDisabilitato()};
    }
  }
  return {ombra, chiara, anello, punto};
}

}  // namespace

QColor coloreDisabilitato() {
  return {kDidascaliaDisabilitata.rosso, kDidascaliaDisabilitata.verde, kDidascaliaDisabilitata.blu};
}

QImage dipingiPulsante(AspettoPulsante aspetto, const QPalette& palette, qreal rapporto) {
  return dipingiFacciata(facciata(aspetto, Tavolozza(palette)), rapporto);
}

QImage dipingiOpzione(AspettoOpzione aspetto, const QPalette& palette, int lato, qreal rapporto) {
  const Tondo colori = tondo(aspetto, Tavolozza(palette));
  QImage immagine = tela({static_cast<qreal>(lato), static_cast<qreal>(lato)}, rapporto);
  const QRectF area = QRectF(immagine.rect());
  const qreal linea = spessoreLinea(rapporto);
  QLinearGradient luce(area.topLeft(), area.bottomRight());
  luce.setColorAt(0, colori.alto);
  luce.setColorAt(1, colori.basso);

  QPainter pennello(&immagine);
  pennello.setRenderHint(QPainter::Antialiasing);
  pennello.setBrush(luce);
  pennello.setPen(QPen(colori.anello, linea));
  pennello.drawEllipse(area.adjusted(linea / 2, linea / 2, -linea / 2, -linea / 2));
  if (aspetto >= AspettoOpzione::Accesa) {
    const qreal rientro = area.width() * 0.28;
    pennello.setBrush(colori.punto);
    pennello.setPen(Qt::NoPen);
    pennello.drawEllipse(area.adjusted(rientro, rientro, -rientro, -rientro));
  }
  return immagine;
}

QImage dipingiRiquadro(const QPalette& palette, const QColor& fondo, qreal rapporto) {
  const Tavolozza t(palette);
  QImage immagine = tela({kMisuraImmagine.larghezza, kMisuraImmagine.altezza}, rapporto);
  const int linea = spessoreLinea(rapporto);
  const qreal mezza = linea / 2.0;
  const qreal raggio = qRound(kAngolo * rapporto) - mezza;
  QPainter pennello(&immagine);
  pennello.setRenderHint(QPainter::Antialiasing);
  pennello.setBrush(fondo);
  pennello.setPen(QPen(mescola(t.fondo, t.testo, 0.25), linea));
  pennello.drawRoundedRect(QRectF(immagine.rect()).adjusted(mezza, mezza, -mezza, -mezza), raggio, raggio);
  return immagine;
}

}  // namespace vaticlo
