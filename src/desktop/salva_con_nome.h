#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace vaticlo {

/// Asks for the file in which to save something, offers `nome` as far as it can be one, and lets `scrivi`
/// write it; the user is told when that says false. `titolo` is "Salva come" and what it is saved as.
void salvaConNome(const QWidget& vista, const QString& titolo, const QString& nome, const QString& suffisso,
                  const std::function<bool(const QString& file)>& scrivi);

}  // namespace vaticlo
