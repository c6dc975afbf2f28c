#pragma once

#include <QString>
#include <functional>

#include "platform/tabella.h"

class QByteArray;
class QPagedPaintDevice;

namespace vaticlo {

/// The text with its lines broken so that each fits the page, only after a ";" or a blank: a number and a
/// bet stay whole. `entra` says whether a line fits; a piece that fits nowhere stays as it is.
[[nodiscard]] QString spezzaRighe(const QString& testo, const std::function<bool(const QString&)>& entra);

/// Lays the text out on the pages of a printer or of a PDF.
void stampaSu(QPagedPaintDevice& carta, const QString& testo);

/// Lays a table out below its title, its heads again on each page.
void stampaSu(QPagedPaintDevice& carta, const QString& titolo, const Tabella& tabella);

/// Both write the file whole or leave it as it was; false when it can't be written. `disegna` lays a PDF out.
[[nodiscard]] bool salvaPdf(const QString& file, const std::function<void(QPagedPaintDevice&)>& disegna);
[[nodiscard]] bool salvaOttetti(const QString& file, const QByteArray& ottetti);

}  // namespace vaticlo
