#pragma once

#include <QString>
#include <memory>

class QPainter;
class QRect;

namespace vaticlo {

/// A picture that the program carries, sharp at every size and scaling.
class ImmagineScalabile {
 public:
  /// `chiave` is its key in the image list.
  explicit ImmagineScalabile(const QString& chiave);
  ~ImmagineScalabile();

  void dipingi(QPainter& pittore, const QRect& area) const;

 private:
  struct Interno;
  std::unique_ptr<Interno> interno_;
};

}  // namespace vaticlo
