#include "desktop/osservatore.h"

#include <QFileInfo>
#include <QStringList>

#include "archive/archivio.h"
#include "methods/cartella_metodi.h"
#include "platform/percorso.h"

namespace vaticlo {

namespace {

constexpr int kAttesa = 150;  // milliseconds without a further change

QString percorso(const std::filesystem::path& file) { return QString::fromStdString(testoDi(file)); }

}  // namespace

OsservatoreCartella::OsservatoreCartella(const CartellaProgramma& cartella, std::function<bool()> cambiata,
                                         QObject* padre)
    : QObject(padre),
      archivio_(percorso(cartella.file(kFileArchivio))),
      metodi_(percorso(cartellaMetodi(cartella))),
      cambiata_(std::move(cambiata)) {
  attesa_.setSingleShot(true);
  attesa_.setInterval(kAttesa);
  connect(&attesa_, &QTimer::timeout, this, [this] { controlla(); });
  connect(&sentinella_, &QFileSystemWatcher::directoryChanged, this, [this] { attesa_.start(); });
  connect(&sentinella_, &QFileSystemWatcher::fileChanged, this, [this] { attesa_.start(); });
  sentinella_.addPath(percorso(cartella.radice()));
  guarda();
  vista_ = impronta();
}

// A file that was replaced is another one, and a folder may have been made only now.
void OsservatoreCartella::guarda() {
  const auto visti = sentinella_.files() + sentinella_.directories();
  for (const auto& file : {archivio_, metodi_})
    if (!visti.contains(file) && QFileInfo::exists(file)) sentinella_.addPath(file);
}

// The standard library knows whole seconds alone on Windows: two changes would be one.
OsservatoreCartella::Impronta OsservatoreCartella::impronta() const {
  const QFileInfo archivio(archivio_);
  return {archivio.lastModified(), QFileInfo(metodi_).lastModified(), archivio.size()};
}

void OsservatoreCartella::controlla() {
  guarda();
  const auto ora = impronta();
  if (ora == vista_) return;
  if (cambiata_())
    vista_ = ora;
  else
    attesa_.start();
}

}  // namespace vaticlo
