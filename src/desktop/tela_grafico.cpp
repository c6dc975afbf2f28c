#include "desktop/tela_grafico.h"

#include <algorithm>
#include <cmath>

#include <qcustomplot.h>

#include "desktop/colori.h"

namespace vaticlo {

namespace {

constexpr double kLarghezzaBarre = 0.8;  // of the distance of two places
constexpr double kLuce = 1.08;           // above the highest value
constexpr double kLuceConSegni = 1.2;    // the same where marks bear their text there
constexpr double kFila = 0.09;           // between their texts, of the height
constexpr int kTacche = 8;               // of an axis, about
constexpr int kEtichetteVicine = 6;      // pixels between two labels
const char* const kIndice = "indice";

/// The colours of one picture. What happened and what chance gives differ in light and dark too.
struct Colori {
  explicit Colori(const QPalette& palette)
      : sfondo(palette.color(QPalette::Base)),
        testo(palette.color(QPalette::Text)),
        griglia(scuro(sfondo) ? QColor(0x4A, 0x4A, 0x4A) : QColor(0xE2, 0xE2, 0xE2)),
        proprio(scuro(sfondo) ? QColor(0xF5, 0xA3, 0x5C) : QColor(0xC4, 0x54, 0x06)),
        caso(scuro(sfondo) ? QColor(0x5E, 0x86, 0xB5) : QColor(0x93, 0xB5, 0xDB)),
        casoForte(scuro(sfondo) ? QColor(0x9C, 0xC5, 0xF0) : QColor(0x1F, 0x58, 0x94)) {}

  [[nodiscard]] QColor pieno(Serie::Ruolo ruolo) const {
    return ruolo == Serie::Ruolo::Proprio ? proprio : caso;
  }
  [[nodiscard]] QColor tratto(Serie::Ruolo ruolo) const {
    return ruolo == Serie::Ruolo::Proprio ? proprio : casoForte;
  }
  [[nodiscard]] QColor velo() const {
    auto velo = caso;
    velo.setAlpha(110);
    return velo;
  }

  QColor sfondo, testo, griglia, proprio, caso, casoForte;
};

QString qt(const std::string& testo) { return QString::fromStdString(testo); }

QVector<double> qt(const std::vector<double>& valori) { return {valori.begin(), valori.end()}; }

double passo(const std::vector<double>& posti) {
  double passo = posti.size() < 2 ? 1 : posti.back() - posti.front();
  for (std::size_t n = 1; n < posti.size(); ++n) passo = std::min(passo, posti[n] - posti[n - 1]);
  return passo;
}

QPen penna(const Colori& colori, Serie::Ruolo ruolo) {
  return {colori.tratto(ruolo), 2, ruolo == Serie::Ruolo::Proprio ? Qt::SolidLine : Qt::DashLine};
}

void barre(QCustomPlot& plot, const Disegno& disegno, const Colori& colori) {
  const auto quante = std::count_if(disegno.serie.begin(), disegno.serie.end(),
                                    [](const auto& serie) { return serie.forma == Serie::Forma::Barre; });
  auto* gruppo = quante > 1 ? new QCPBarsGroup(&plot) : nullptr;
  if (gruppo != nullptr) gruppo->setSpacing(1);
  for (const auto& serie : disegno.serie) {
    if (serie.forma != Serie::Forma::Barre) continue;
    auto* barre = new QCPBars(plot.xAxis, plot.yAxis);
    barre->setName(qt(serie.nome));
    barre->setWidth(passo(disegno.posti) * kLarghezzaBarre / static_cast<double>(quante));
    barre->setBarsGroup(gruppo);
    barre->setPen(Qt::NoPen);
    barre->setBrush(colori.pieno(serie.ruolo));
    barre->setAntialiasedFill(false);
    barre->setData(qt(disegno.posti), qt(serie.valori), true);
  }
}

void linee(QCustomPlot& plot, const Disegno& disegno, const Colori& colori) {
  for (const auto& serie : disegno.serie) {
    if (serie.forma == Serie::Forma::Barre) continue;
    auto* linea = plot.addGraph();
    linea->setData(qt(disegno.posti), qt(serie.valori), true);
    linea->setName(qt(serie.nome));
    if (serie.forma == Serie::Forma::Linea) {
      linea->setPen(penna(colori, serie.ruolo));
      continue;
    }
    auto* sopra = plot.addGraph();
    sopra->setData(qt(disegno.posti), qt(serie.fino), true);
    sopra->setPen(Qt::NoPen);
    sopra->setBrush(colori.velo());
    sopra->setChannelFillGraph(linea);
    sopra->setName(qt(serie.nome));
    linea->setPen(Qt::NoPen);
    if (plot.autoAddPlottableToLegend()) linea->removeFromLegend();
  }
}

void riga(QCustomPlot& plot, const Segno& segno, const Colori& colori) {
  const bool verticale = segno.verso == Segno::Verso::Verticale;
  auto* riga = new QCPItemStraightLine(&plot);
  riga->setPen(penna(colori, segno.ruolo));
  riga->point1->setCoords(verticale ? segno.dove : 0, verticale ? 0 : segno.dove);
  riga->point2->setCoords(verticale ? segno.dove : 1, verticale ? 1 : segno.dove);
}

// `fila`: how many marks already bear their text along the upper edge.
void testo(QCustomPlot& plot, const Segno& segno, const Colori& colori, int fila) {
  const bool verticale = segno.verso == Segno::Verso::Verticale;
  auto* testo = new QCPItemText(&plot);
  testo->setText(qt(segno.testo));
  testo->setFont(plot.font());
  testo->setColor(colori.tratto(segno.ruolo));
  testo->setBrush(colori.sfondo);
  testo->setPadding(QMargins(3, 1, 3, 1));
  const bool aDestra = !verticale || segno.dove > plot.xAxis->range().center();
  testo->setPositionAlignment((aDestra ? Qt::AlignRight : Qt::AlignLeft) |
                              (verticale ? Qt::AlignTop : Qt::AlignBottom));
  testo->position->setTypeX(verticale ? QCPItemPosition::ptPlotCoords : QCPItemPosition::ptAxisRectRatio);
  testo->position->setTypeY(verticale ? QCPItemPosition::ptAxisRectRatio : QCPItemPosition::ptPlotCoords);
  testo->position->setCoords(verticale ? segno.dove : 0.995, verticale ? 0.01 + kFila * fila : segno.dove);
}

// As many of the names as there is room for; those of bars stand upright where they would touch otherwise.
void nomi(QCustomPlot& plot, const Disegno& disegno) {
  const QFontMetrics misura(plot.font());
  double larghezza = 0;
  for (const auto& nome : disegno.nomi)
    larghezza = std::max<double>(larghezza, misura.horizontalAdvance(qt(nome)) + kEtichetteVicine);
  const double spazio = plot.axisRect()->width() * passo(disegno.posti) / plot.xAxis->range().size();
  const bool dritte =
      larghezza > spazio && std::any_of(disegno.serie.begin(), disegno.serie.end(),
                                        [](const auto& serie) { return serie.forma == Serie::Forma::Barre; });
  const double serve = dritte ? misura.height() : larghezza;
  const auto ogni = static_cast<std::size_t>(std::max(1.0, std::ceil(serve / std::max(spazio, 1.0))));
  const QSharedPointer<QCPAxisTickerText> tacche(new QCPAxisTickerText);
  for (std::size_t n = 0; n < disegno.nomi.size(); n += ogni)
    tacche->addTick(disegno.posti[n], qt(disegno.nomi[n]));
  plot.xAxis->setTicker(tacche);
  plot.xAxis->setTickLabelRotation(dritte ? -90 : 0);
}

void numeri(QCPAxis& asse) {
  if (asse.range().size() < 2) {
    asse.setTicker(QSharedPointer<QCPAxisTicker>(new QCPAxisTicker));
    asse.setNumberFormat(QStringLiteral("g"));
    return;
  }
  const QSharedPointer<QCPAxisTickerFixed> tacche(new QCPAxisTickerFixed);
  tacche->setTickStep(1);
  tacche->setTickCount(kTacche);
  tacche->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
  asse.setTicker(tacche);
  asse.setNumberFormat(QStringLiteral("f"));
  asse.setNumberPrecision(0);
}

double piuAlto(const Disegno& disegno) {
  double alto = 0, luce = kLuce;
  for (const auto& serie : disegno.serie)
    for (const auto* valori : {&serie.valori, &serie.fino})
      for (const double valore : *valori) alto = std::max(alto, valore);
  for (const auto& segno : disegno.segni) {
    if (segno.verso == Segno::Verso::Verticale)
      luce = kLuceConSegni;
    else
      alto = std::max(alto, segno.dove);
  }
  return alto > 0 ? alto * luce : 1;
}

void veste(QCustomPlot& plot, const Colori& colori) {
  plot.setBackground(colori.sfondo);
  for (auto* asse : {plot.xAxis, plot.yAxis}) {
    asse->setBasePen(colori.testo);
    asse->setTickPen(colori.testo);
    asse->setSubTickPen(Qt::NoPen);
    asse->setTickLabelColor(colori.testo);
    asse->setLabelColor(colori.testo);
    asse->setTickLabelFont(plot.font());
    asse->setLabelFont(plot.font());
    asse->grid()->setPen(QPen(colori.griglia, 1));
    asse->grid()->setZeroLinePen(Qt::NoPen);
  }
  plot.xAxis->grid()->setVisible(false);
  plot.legend->setBrush(Qt::NoBrush);
  plot.legend->setBorderPen(Qt::NoPen);
  plot.legend->setTextColor(colori.testo);
  plot.legend->setFont(plot.font());
}

}  // namespace

TelaGrafico::TelaGrafico(QWidget& padre) : plot_(new QCustomPlot(&padre)) {
  plot_->setAttribute(Qt::WA_TransparentForMouseEvents);
  plot_->setFocusPolicy(Qt::NoFocus);
  auto numerazione = QLocale(QLocale::Italian, QLocale::Italy);
  numerazione.setNumberOptions(QLocale::OmitGroupSeparator);
  plot_->setLocale(numerazione);
  plot_->addLayer(QLatin1String(kIndice), plot_->layer(QStringLiteral("overlay")), QCustomPlot::limBelow);
  plot_->layer(QLatin1String(kIndice))->setMode(QCPLayer::lmBuffered);

  auto* titolo = new QCPTextElement(plot_);
  plot_->plotLayout()->insertRow(0);
  plot_->plotLayout()->addElement(0, 0, titolo);
  plot_->axisRect()->insetLayout()->take(plot_->legend);
  plot_->plotLayout()->insertRow(1);
  // Alone in its row it would keep the picture as narrow as its entries.
  auto* riga = new QCPLayoutGrid;
  plot_->plotLayout()->addElement(1, 0, riga);
  riga->addElement(0, 0, plot_->legend);
  riga->addElement(0, 1, new QCPLayoutElement(plot_));
  riga->setColumnStretchFactor(0, 0.001);
  plot_->plotLayout()->setRowSpacing(0);
  plot_->plotLayout()->setRowStretchFactor(1, 0.001);
  plot_->legend->setVisible(true);
  plot_->legend->setFillOrder(QCPLegend::foColumnsFirst);
  plot_->legend->setMargins(QMargins(4, 2, 4, 2));
}

QWidget& TelaGrafico::widget() const { return *plot_; }

void TelaGrafico::disegna(const Disegno& disegno, const QPalette& palette, const QFont& carattere) {
  const Colori colori(palette);
  posti_ = disegno.posti;
  plot_->clearItems();
  plot_->clearPlottables();
  qDeleteAll(plot_->findChildren<QCPBarsGroup*>());
  plot_->setFont(carattere);
  veste(*plot_, colori);

  auto* titolo = static_cast<QCPTextElement*>(plot_->plotLayout()->element(0, 0));
  auto grassetto = carattere;
  grassetto.setBold(true);
  titolo->setFont(grassetto);
  titolo->setTextColor(colori.testo);
  titolo->setText(qt(disegno.titolo));
  const bool vuoto = posti_.empty();
  for (auto* asse : {plot_->xAxis, plot_->yAxis}) asse->setVisible(!vuoto);
  plot_->setAutoAddPlottableToLegend(disegno.serie.size() > 1);
  if (!vuoto) {
    const double mezzo = passo(posti_) * 0.6;
    plot_->xAxis->setLabel(qt(disegno.asseX));
    plot_->yAxis->setLabel(qt(disegno.asseY));
    plot_->xAxis->setRange(posti_.front() - mezzo, posti_.back() + mezzo);
    plot_->yAxis->setRange(0, piuAlto(disegno));
    plot_->xAxis->setTickLabelRotation(0);
    numeri(*plot_->xAxis);
    numeri(*plot_->yAxis);
    barre(*plot_, disegno, colori);
    linee(*plot_, disegno, colori);
    int fila = 0;
    for (const auto& segno : disegno.segni) riga(*plot_, segno, colori);
    for (const auto& segno : disegno.segni)
      testo(*plot_, segno, colori, segno.verso == Segno::Verso::Verticale ? fila++ : 0);
    if (!disegno.nomi.empty()) {
      plot_->setViewport(plot_->rect());  // the axes get their width
      plot_->replot(QCustomPlot::rpImmediateRefresh);
      nomi(*plot_, disegno);
    }
  }
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

std::optional<std::size_t> TelaGrafico::postoSotto(const QPoint& punto) const {
  if (posti_.empty() || !plot_->axisRect()->rect().contains(punto)) return std::nullopt;
  const double dove = plot_->xAxis->pixelToCoord(punto.x());
  const auto dopo = std::lower_bound(posti_.begin(), posti_.end(), dove);
  if (dopo == posti_.begin()) return 0;
  const auto n = static_cast<std::size_t>(dopo - posti_.begin());
  return n == posti_.size() || dove - posti_[n - 1] < posti_[n] - dove ? n - 1 : n;
}

QPoint TelaGrafico::puntoDi(std::size_t posto) const {
  return {static_cast<int>(plot_->xAxis->coordToPixel(posti_.at(posto))), plot_->axisRect()->center().y()};
}

void TelaGrafico::indica(std::optional<std::size_t> posto) {
  auto* strato = plot_->layer(QLatin1String(kIndice));
  for (auto* figlio : strato->children()) plot_->removeItem(qobject_cast<QCPAbstractItem*>(figlio));
  if (posto && *posto < posti_.size()) {
    auto* riga = new QCPItemStraightLine(plot_);
    riga->setLayer(strato);
    auto colore = plot_->xAxis->labelColor();
    colore.setAlpha(110);
    riga->setPen(QPen(colore, 1));
    riga->point1->setCoords(posti_[*posto], 0);
    riga->point2->setCoords(posti_[*posto], 1);
  }
  strato->replot();
}

QImage TelaGrafico::immagine(const QSize& misura, double scala) const {
  return plot_->toPixmap(misura.width(), misura.height(), scala).toImage();
}

void TelaGrafico::stampaSu(QPagedPaintDevice& carta, const QSize& misura) const {
  QCPPainter pittore;
  if (!pittore.begin(&carta)) return;
  pittore.setModes(QCPPainter::pmVectorized | QCPPainter::pmNoCaching | QCPPainter::pmNonCosmetic);
  plot_->toPainter(&pittore, misura.width(), misura.height());
}

}  // namespace vaticlo
