#include "desktop/area_rapporto.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <algorithm>
#include <memory>

#include "desktop/carta.h"
#include "desktop/colori.h"
#include "desktop/ricerca_testo.h"
#include "desktop/salva_con_nome.h"
#include "desktop/voce_contestuale.h"

namespace vaticlo {

/// Colours the lines of the document that stand out, on the screen alone.
class AreaRapporto::Coloritura : public QSyntaxHighlighter {
 public:
  explicit Coloritura(AreaRapporto& area) : QSyntaxHighlighter(area.document()), area_(area) {}

  void aggiorna(const std::vector<AreaTesto::Rilievo>& rilievi) {
    if (rilievi == rilievi_) return;
    rilievi_ = rilievi;
    rehighlight();
  }

 protected:
  void highlightBlock(const QString& testo) override {
    const int riga = currentBlock().blockNumber();
    const auto rilievo = std::lower_bound(rilievi_.begin(), rilievi_.end(), riga,
                                          [](const auto& a, int b) { return a.riga < b; });
    if (rilievo == rilievi_.end() || rilievo->riga != riga) return;
    QTextCharFormat forma;
    forma.setForeground(coloreDi(rilievo->tono, area_.palette().color(QPalette::Base)));
    if (rilievo->tono == Tono::Vincita) forma.setFontWeight(QFont::Bold);
    setFormat(0, static_cast<int>(testo.size()), forma);
  }

 private:
  AreaRapporto& area_;
  std::vector<AreaTesto::Rilievo> rilievi_;
};

AreaRapporto::AreaRapporto(AreaTesto& modello, QWidget* padre)
    : QPlainTextEdit(padre),
      modello_(modello),
      coloritura_(new Coloritura(*this)),
      ricerca_(new QLineEdit(this)) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setUndoRedoEnabled(false);
  setLineWrapMode(QPlainTextEdit::NoWrap);

  auto* trova = voceContestuale(*this, "trova", "Tro&va...", [this] { apriRicerca(); });
  trova->setShortcut(QKeySequence::Find);
  trova->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  voceContestuale(*this, "salvaPdf", "Salva come P&DF...", [this] {
    salvaConNome(*this, QStringLiteral("Salva come PDF"), accessibleName(), QStringLiteral("pdf"),
                 [this](const QString& file) {
                   return salvaPdf(file,
                                   [this](QPagedPaintDevice& carta) { stampaSu(carta, toPlainText()); });
                 });
  });
  voceContestuale(*this, "salvaTesto", "Salva come te&sto...", [this] {
    salvaConNome(*this, QStringLiteral("Salva come testo"), accessibleName(), QStringLiteral("txt"),
                 [this](const QString& file) { return salvaOttetti(file, toPlainText().toUtf8()); });
  });

  ricerca_->setObjectName(QStringLiteral("cercaNelTesto"));
  ricerca_->setPlaceholderText(
      QStringLiteral("Trova: Invio il prossimo, Maiusc+Invio il precedente, Esc chiude"));
  ricerca_->setClearButtonEnabled(true);
  ricerca_->installEventFilter(this);
  ricerca_->hide();
  connect(ricerca_, &QLineEdit::textEdited, this, [this] { cerca({}, true); });
  connect(this, &QPlainTextEdit::selectionChanged, this,
          [this] { modello_.SelLength(static_cast<int>(textCursor().selectedText().size())); });
}

void AreaRapporto::aggiorna() {
  if (modello_.Text() != mostrato_) {
    mostrato_ = modello_.Text();
    setPlainText(QString::fromStdString(mostrato_));
  }
  coloritura_->aggiorna(modello_.Rilievi());
  if (modello_.SelLength() == 0 && textCursor().hasSelection()) {
    auto cursore = textCursor();
    cursore.clearSelection();
    setTextCursor(cursore);
  }
  setVisible(modello_.Visible());
}

void AreaRapporto::contextMenuEvent(QContextMenuEvent* evento) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  menu->addSeparator();
  menu->addActions(actions());
  menu->exec(evento->globalPos());
}

void AreaRapporto::apriRicerca() {
  setViewportMargins(0, 0, 0, ricerca_->sizeHint().height());
  ricerca_->show();
  ricerca_->setFocus(Qt::ShortcutFocusReason);
  ricerca_->selectAll();
}

void AreaRapporto::chiudiRicerca() {
  ricerca_->hide();
  setViewportMargins({});
  setFocus(Qt::OtherFocusReason);
}

void AreaRapporto::cerca(QTextDocument::FindFlags verso, bool dalla) {
  cercaNelTesto(*this, *ricerca_, verso, dalla);
}

void AreaRapporto::resizeEvent(QResizeEvent* evento) {
  QPlainTextEdit::resizeEvent(evento);
  const auto testo = viewport()->geometry();
  ricerca_->setGeometry(testo.left(), testo.bottom() + 1, testo.width(), ricerca_->sizeHint().height());
}

bool AreaRapporto::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == ricerca_ && evento->type() == QEvent::KeyPress) {
    const auto& tasto = *static_cast<QKeyEvent*>(evento);
    const bool indietro = tasto.modifiers().testFlag(Qt::ShiftModifier);
    switch (tasto.key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
        cerca(indietro ? QTextDocument::FindBackward : QTextDocument::FindFlags(), false);
        return true;
      case Qt::Key_Escape:
        chiudiRicerca();
        return true;
      default:
        break;
    }
  }
  return QPlainTextEdit::eventFilter(oggetto, evento);
}

}  // namespace vaticlo
