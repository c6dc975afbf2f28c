#include "desktop/tavola_estrazione.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>

#include "archive/ruota.h"

namespace vaticlo {

namespace {

// The names of the labels at the left of the rows, in wheel order.
constexpr std::array<const char*, kRuote> kNomiEtichette = {"Label2",  "Label21", "Label20", "Label19",
                                                            "Label18", "Label17", "Label16", "Label15",
                                                            "Label14", "Label12", "Label3"};

/// Leads the wheel over the numbers to the bar that walks the draws.
class RotellaAllaBarra : public QObject {
 public:
  explicit RotellaAllaBarra(QScrollBar* barra) : QObject(barra), barra_(barra) {}
  bool eventFilter(QObject* /*tavola*/, QEvent* evento) override {
    return evento->type() == QEvent::Wheel && QCoreApplication::sendEvent(barra_, evento);
  }

 private:
  QScrollBar* barra_;
};

}  // namespace

QWidget* tavolaEstrazione(Legame& legame, std::span<CampoTesto, kCampiEstrazione> campi) {
  auto* tavola = new QWidget(legame.vista());
  auto* griglia = new QGridLayout(tavola);
  griglia->setContentsMargins(0, 0, 0, 0);
  griglia->setHorizontalSpacing(6);
  griglia->setVerticalSpacing(2);
  for (int ruota = 0; ruota < kRuote; ++ruota) {
    const auto posto = static_cast<std::size_t>(ruota);
    const auto& nome = kTavolaRuote[posto].nome;
    auto* etichetta = new QLabel(QString::fromUtf8(nome), tavola);
    etichetta->setObjectName(QLatin1String(kNomiEtichette[posto]));
    griglia->addWidget(etichetta, ruota, 0);
    for (int k = 0; k < ArchivioEstrazioni::Colonne; ++k) {
      const int f = ruota * ArchivioEstrazioni::Colonne + k;
      auto* campo = legame.campo(campi[static_cast<std::size_t>(f)], QStringLiteral("txtestr_%1").arg(f));
      campo->setAlignment(Qt::AlignCenter);
      campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 8);
      campo->setAccessibleName(etichetta->text() + QStringLiteral(", numero %1").arg(k + 1));
      griglia->addWidget(campo, ruota, k + 1);
    }
  }
  griglia->setColumnMinimumWidth(0, tavola->fontMetrics().horizontalAdvance(QStringLiteral("Nazionale  ")));
  return tavola;
}

QLayout* intestazione(Legame& legame, Etichetta& prima, Etichetta& numero, Etichetta& del, Etichetta& data) {
  auto* riga = new QHBoxLayout;
  riga->setSpacing(6);
  const auto evidente = [](QLabel* etichetta) {
    auto carattere = etichetta->font();
    carattere.setBold(true);
    etichetta->setFont(carattere);
    return etichetta;
  };
  riga->addWidget(legame.etichetta(prima, QStringLiteral("Label1")));
  riga->addWidget(evidente(legame.etichetta(numero, QStringLiteral("lblnestr"))));
  riga->addWidget(legame.etichetta(del, QStringLiteral("Label13")));
  riga->addWidget(evidente(legame.etichetta(data, QStringLiteral("lbldataestr"))));
  riga->addStretch(1);
  return riga;
}

QWidget* tavolaConBarra(Legame& legame, ControlliEstrazione& estrazione) {
  auto* tavola = tavolaEstrazione(legame, estrazione.txtestr);
  aggiungiBarra(legame, *tavola, estrazione.VScroll1);
  return tavola;
}

void aggiungiBarra(Legame& legame, QWidget& tavola, BarraScorrimento& VScroll1, int primaRiga) {
  auto* barra = legame.barra(VScroll1, QStringLiteral("VScroll1"));
  barra->setAccessibleName(QStringLiteral("Scorri le estrazioni"));
  barra->setToolTip(QStringLiteral("Scorri le estrazioni: in alto la più vecchia"));
  tavola.installEventFilter(new RotellaAllaBarra(barra));
  auto* griglia = static_cast<QGridLayout*>(tavola.layout());
  griglia->addWidget(barra, primaRiga, griglia->columnCount(), griglia->rowCount() - primaRiga, 1);
}

}  // namespace vaticlo
