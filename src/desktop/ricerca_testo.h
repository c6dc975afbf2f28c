#pragma once

#include <QLineEdit>
#include <QTextCursor>
#include <QTextDocument>

namespace vaticlo {

/// Searches a text pane (QPlainTextEdit or QTextEdit) for what stands in the field: from the selection on,
/// itself included with `dalla`; behind the end the search starts again. The field turns red when the text
/// is nowhere.
template <class Testo>
void cercaNelTesto(Testo& testo, QLineEdit& campo, QTextDocument::FindFlags verso, bool dalla) {
  if (dalla) {
    auto cursore = testo.textCursor();
    cursore.setPosition(cursore.selectionStart());
    testo.setTextCursor(cursore);
  }
  const auto cercato = campo.text();
  bool trovato = cercato.isEmpty() || testo.find(cercato, verso);
  if (!trovato) {
    const auto prima = testo.textCursor();
    testo.moveCursor(verso.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
    trovato = testo.find(cercato, verso);
    if (!trovato) testo.setTextCursor(prima);
  }
  auto colori = QPalette();
  if (!trovato) colori.setColor(QPalette::Text, QColor(0xC0, 0x28, 0x28));
  campo.setPalette(colori);
}

}  // namespace vaticlo
