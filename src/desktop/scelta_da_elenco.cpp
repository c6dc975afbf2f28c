#include "desktop/scelta_da_elenco.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace vaticlo {

SceltaDaElenco::SceltaDaElenco(const QString& testo, const QString& titolo, const QStringList& voci,
                               QWidget* padre)
    : QDialog(padre), filtro_(new QLineEdit(this)), elenco_(new QListWidget(this)) {
  setWindowTitle(titolo);
  auto* domanda = new QLabel(testo, this);
  domanda->setTextFormat(Qt::PlainText);
  domanda->setWordWrap(true);
  filtro_->setObjectName(QStringLiteral("filtro"));
  filtro_->setPlaceholderText(QStringLiteral("Scrivete una parte del nome"));
  filtro_->setClearButtonEnabled(true);
  filtro_->installEventFilter(this);
  domanda->setBuddy(filtro_);
  elenco_->setObjectName(QStringLiteral("elenco"));
  elenco_->setAccessibleName(titolo);
  elenco_->addItems(voci);
  auto* pulsanti = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  auto* ok = pulsanti->button(QDialogButtonBox::Ok);
  ok->setEnabled(false);
  connect(pulsanti, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(pulsanti, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(filtro_, &QLineEdit::textChanged, this, &SceltaDaElenco::filtra);
  connect(elenco_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
  connect(elenco_, &QListWidget::currentItemChanged, this,
          [ok](const QListWidgetItem* voce) { ok->setEnabled(voce != nullptr); });
  auto* colonna = new QVBoxLayout(this);
  colonna->setSpacing(10);
  for (QWidget* widget : {static_cast<QWidget*>(domanda), static_cast<QWidget*>(filtro_),
                          static_cast<QWidget*>(elenco_), static_cast<QWidget*>(pulsanti)})
    colonna->addWidget(widget);
  resize(fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 26);
  filtro_->setFocus();
}

QString SceltaDaElenco::scelta() const {
  const auto* voce = elenco_->currentItem();
  return voce == nullptr ? QString() : voce->text();
}

void SceltaDaElenco::filtra(const QString& testo) {
  QListWidgetItem* prima = nullptr;
  for (int n = elenco_->count() - 1; n >= 0; --n) {
    auto* voce = elenco_->item(n);
    voce->setHidden(!voce->text().contains(testo, Qt::CaseInsensitive));
    if (!voce->isHidden()) prima = voce;
  }
  elenco_->setCurrentItem(testo.isEmpty() ? nullptr : prima);
}

bool SceltaDaElenco::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == filtro_ && evento->type() == QEvent::KeyPress) {
    const auto tasto = static_cast<QKeyEvent*>(evento)->key();
    if (tasto == Qt::Key_Up || tasto == Qt::Key_Down || tasto == Qt::Key_PageUp ||
        tasto == Qt::Key_PageDown) {
      QApplication::sendEvent(elenco_, evento);
      return true;
    }
  }
  return QDialog::eventFilter(oggetto, evento);
}

}  // namespace vaticlo
