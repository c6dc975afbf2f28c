#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

#include "platform/cartella.h"

namespace vaticlo {

/// Tells when the archive or the methods of a program folder have changed, whoever has changed them. Changes
/// that follow each other closely are told once; the reports that come and go beside are not told.
class OsservatoreCartella : public QObject {
 public:
  /// `cambiata` says whether it has taken the change; otherwise it is asked again a little later.
  OsservatoreCartella(const CartellaProgramma& cartella, std::function<bool()> cambiata,
                      QObject* padre = nullptr);

 private:
  void guarda();
  void controlla();

  /// What is there, so far as a change shows in it.
  struct Impronta {
    QDateTime archivio, metodi;
    qint64 lunghezza = 0;
    bool operator==(const Impronta&) const = default;
  };
  [[nodiscard]] Impronta impronta() const;

  QString archivio_, metodi_;
  std::function<bool()> cambiata_;
  QFileSystemWatcher sentinella_;
  QTimer attesa_;
  Impronta vista_;
};

}  // namespace vaticlo
