#pragma once

#include <QString>
#include <memory>

class QPainter;
class QRect;

namespace vaticlo {

/// A picture that the program carries, sharp at every size and scaling.
class Disegno {
 public:
  /// `chiave` is its key in the image list.
  explicit Disegno(const QString& chiave);
  ~Disegno();

  void dipingi(QPainter& pittore, const QRect& area) const;

 private:
  struct Interno;
  std::unique_ptr<Interno> interno_;
};

}  // namespace vaticlo
