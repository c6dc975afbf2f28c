#pragma once

class QApplication;

namespace vaticlo {

/// The program's name, look and language: Italian whatever the system's language is.
void preparaApplicazione(QApplication& applicazione);

}  // namespace vaticlo
