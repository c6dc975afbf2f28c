#include "desktop/riquadri.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

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
  return riquadro;
}

QGroupBox* riquadroCon(Legame& legame, Riquadro& riquadro, const QString& nome, QWidget* dentro) {
  auto* gruppo = legame.riquadro(riquadro, nome);
  auto* colonna = new QVBoxLayout(gruppo);
  colonna->setContentsMargins(9, 5, 9, 6);
  colonna->addWidget(dentro);
  gruppo->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);  // as tall as a line
  dentro->setAccessibleName(gruppo->title());
  return gruppo;
}

}  // namespace vaticlo
