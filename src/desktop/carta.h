#pragma once

#include <QString>
#include <functional>

class QPagedPaintDevice;

namespace vaticlo {

/// The text with its lines broken so that each fits the page, behind a ";" or a blank alone: a number and a
/// bet stay whole. `entra` says whether a line fits; a piece that fits nowhere stays as it is.
[[nodiscard]] QString spezzaRighe(const QString& testo, const std::function<bool(const QString&)>& entra);

/// Lays the text out on the pages of a printer or of a PDF.
void stampaSu(QPagedPaintDevice& carta, const QString& testo);

/// Both write the file whole or leave it as it was; false when it can't be written.
[[nodiscard]] bool salvaPdf(const QString& file, const QString& testo);
[[nodiscard]] bool salvaTesto(const QString& file, const QString& testo);

}  // namespace vaticlo
