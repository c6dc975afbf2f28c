#include "desktop/riquadri.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

namespace vaticlo {

QGroupBox* sceltaMetodo(Legame& legame, ControlliMetodo& metodo) {
  auto* riquadro = legame.riquadro(metodo.Frame2, QStringLiteral("Frame2"));
  riquadro->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* riga = new QHBoxLayout(riquadro);
  riga->setSpacing(12);
  riga->addWidget(legame.opzione(metodo.optSelMetodo[0], QStringLiteral("optSelMetodo_0")));
  riga->addWidget(legame.opzione(metodo.optSelMetodo[1], QStringLiteral("optSelMetodo_1")));
  auto* lista = legame.elenco(metodo.cmbMetodo, QStringLiteral("cmbMetodo"));
  lista->setAccessibleName(riquadro->title());
  lista->setMinimumContentsLength(10);
  riga->addWidget(lista, 1);
  // Its captions have no access keys: they are given.
  auto* tasto = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_M), legame.vista());
  tasto->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(tasto, &QShortcut::activated, riquadro, [riquadro] {
    for (auto* opzione : riquadro->findChildren<QRadioButton*>())
      if (opzione->isChecked()) opzione->setFocus(Qt::ShortcutFocusReason);
  });
  return riquadro;
}

QGroupBox* riquadroCon(Legame& legame, Riquadro& riquadro, const QString& nome, QWidget* dentro) {
  auto* gruppo = legame.riquadro(riquadro, nome);
  auto* colonna = new QVBoxLayout(gruppo);
  colonna->setContentsMargins(9, 5, 9, 6);
  colonna->addWidget(dentro);
  gruppo->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);  // as tall as a line
  dentro->setAccessibleName(gruppo->title().remove(u'&'));
  return gruppo;
}

QGroupBox* intervalloEstrazioni(Legame& legame, CampiIntervallo& campi) {
  auto* gruppo = legame.riquadro(campi.Frame1, QStringLiteral("Frame1"));
  gruppo->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* riga = new QHBoxLayout(gruppo);
  int n = 0;
  for (auto [titolo, nome] : {std::pair{&campi.lblDal, "lblDal"}, {&campi.lblAl, "lblAl"}}) {
    auto* etichetta = legame.etichetta(*titolo, QLatin1String(nome));
    auto* campo =
        legame.campo(campi.txtestr.at(static_cast<std::size_t>(n)), QStringLiteral("txtestr_%1").arg(n));
    ++n;
    etichetta->setBuddy(campo);
    campo->setFixedWidth(campo->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 8);
    campo->setAccessibleName(QStringLiteral("Estrazioni ") + etichetta->text().remove(u'&'));
    riga->addWidget(etichetta);
    riga->addWidget(campo);
  }
  auto* date = legame.etichetta(campi.lblDate, QStringLiteral("lblDate"));
  date->setMinimumWidth(
      date->fontMetrics().horizontalAdvance(QStringLiteral("dal 00/00/0000 al 00/00/0000")));
  riga->addWidget(date, 1);
  return gruppo;
}

QWidget* opzioniInRiga(Legame& legame, std::span<Opzione> opzioni, const QString& nome) {
  auto* insieme = new QWidget(legame.vista());
  auto* riga = new QHBoxLayout(insieme);
  riga->setContentsMargins(0, 0, 0, 0);
  riga->setSpacing(14);
  int n = 0;
  for (auto& opzione : opzioni) riga->addWidget(legame.opzione(opzione, nome + u'_' + QString::number(n++)));
  riga->addStretch(1);
  return insieme;
}

void stessaAltezza(QLayout& riga) {
  for (int n = 0; n < riga.count(); ++n)
    if (auto* riquadro = riga.itemAt(n)->widget())
      riquadro->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void inGrassetto(QWidget& widget) {
  auto carattere = widget.font();
  carattere.setBold(true);
  widget.setFont(carattere);
}

}  // namespace vaticlo
