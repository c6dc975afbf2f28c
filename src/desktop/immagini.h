#pragma once

#include <QIcon>
#include <QString>

namespace vaticlo {

/// A picture of the program as an icon, sharp at every size and scaling. `chiave` is its key in the image
/// list.
[[nodiscard]] QIcon immagine(const QString& chiave);

}  // namespace vaticlo
