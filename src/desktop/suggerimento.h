#pragma once

#include <QString>
#include <QTextDocument>

namespace vaticlo {

/// A text of the user as a tool tip, which would read a name with "<" in it as markup.
[[nodiscard]] inline QString perSuggerimento(const QString& testo) {
  return Qt::mightBeRichText(testo) ? Qt::convertFromPlainText(testo) : testo;
}

}  // namespace vaticlo
