#include "platform/spacchettamento.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include <archive.h>
#include <archive_entry.h>
#include <zlib.h>

#include "platform/libreria.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

constexpr std::string_view kInizioZip = "PK\x03\x04", kZipVuoto = "PK\x05\x06", kInizioGzip = "\x1F\x8B";
constexpr std::size_t kPezzo = std::size_t{64} << 10;

[[noreturn]] void rovinato() {
  throw ErrorePacchetto("il file compresso è rovinato, incompleto o protetto da una password");
}

void aggiungi(std::string& testo, std::string_view pezzo, std::size_t massimo) {
  if (pezzo.size() > massimo - testo.size())
    throw ErrorePacchetto("il file compresso contiene più di " + std::to_string(massimo >> 20) + " MiB");
  testo += pezzo;
}

// zlib and not libarchive: that one does not compare the checksum of a gzip file.
std::string daGzip(const std::string& ottetti, std::size_t massimo) {
  z_stream flusso{};
  if (::inflateInit2(&flusso, 16 + MAX_WBITS) != Z_OK) rovinato();
  const std::unique_ptr<z_stream, decltype(&::inflateEnd)> chiude(&flusso, &::inflateEnd);
  flusso.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(ottetti.data()));
  flusso.avail_in = static_cast<uInt>(ottetti.size());
  std::string testo, pezzo(kPezzo, '\0');
  for (int esito = Z_OK; esito != Z_STREAM_END;) {
    flusso.next_out = reinterpret_cast<Bytef*>(pezzo.data());
    flusso.avail_out = static_cast<uInt>(pezzo.size());
    esito = ::inflate(&flusso, Z_NO_FLUSH);
    if (esito != Z_OK && esito != Z_STREAM_END) rovinato();
    aggiungi(testo, std::string_view(pezzo).substr(0, pezzo.size() - flusso.avail_out), massimo);
    // Several members one after the other are one text.
    const std::string_view resto(reinterpret_cast<const char*>(flusso.next_in), flusso.avail_in);
    if (esito == Z_STREAM_END && resto.starts_with(kInizioGzip)) esito = ::inflateReset(&flusso);
  }
  return testo;
}

// The few entries of libarchive that read a zip file.
struct LibreriaArchive {
  LibreriaArchive() {
    const Libreria libreria("libarchive.so.13");
    libreria.prendi(nuovo, "archive_read_new");
    libreria.prendi(zip, "archive_read_support_format_zip");
    libreria.prendi(apri, "archive_read_open_memory");
    libreria.prendi(prossimo, "archive_read_next_header");
    libreria.prendi(leggi, "archive_read_data");
    libreria.prendi(libera, "archive_read_free");
    libreria.prendi(nome, "archive_entry_pathname");
    libreria.prendi(tipo, "archive_entry_filetype");
    if (!(nuovo && zip && apri && prossimo && leggi && libera && nome && tipo))
      throw ErrorePacchetto("per aprire i file zip serve la libreria libarchive (libarchive.so.13)");
  }

  decltype(&archive_read_new) nuovo = nullptr;
  decltype(&archive_read_support_format_zip) zip = nullptr;
  decltype(&archive_read_open_memory) apri = nullptr;
  decltype(&archive_read_next_header) prossimo = nullptr;
  decltype(&archive_read_data) leggi = nullptr;
  decltype(&archive_read_free) libera = nullptr;
  decltype(&archive_entry_pathname) nome = nullptr;
  decltype(&archive_entry_filetype) tipo = nullptr;
};

/// Walks the files of a zip in memory.
class Zip {
 public:
  Zip(const LibreriaArchive& libreria, const std::string& ottetti)
      : libreria_(libreria), archivio_(libreria.nuovo(), libreria.libera) {
    if (!archivio_ || libreria_.zip(archivio_.get()) != ARCHIVE_OK ||
        libreria_.apri(archivio_.get(), ottetti.data(), ottetti.size()) != ARCHIVE_OK)
      rovinato();
  }

  /// The name of the next file; nothing at the end.
  [[nodiscard]] std::optional<std::string> prossimo() {
    for (;;) {
      archive_entry* voce = nullptr;
      const int esito = libreria_.prossimo(archivio_.get(), &voce);
      if (esito == ARCHIVE_EOF) return std::nullopt;
      if (esito != ARCHIVE_OK && esito != ARCHIVE_WARN) rovinato();
      const char* nome = libreria_.nome(voce);  // none where its letters are not those of the system
      if (libreria_.tipo(voce) == AE_IFREG) return nome == nullptr ? "" : nome;
    }
  }
  [[nodiscard]] std::string contenuto(std::size_t massimo) {
    std::string testo, pezzo(kPezzo, '\0');
    for (;;) {
      const auto letti = libreria_.leggi(archivio_.get(), pezzo.data(), pezzo.size());
      if (letti < 0) rovinato();
      if (letti == 0) return testo;
      aggiungi(testo, std::string_view(pezzo).substr(0, static_cast<std::size_t>(letti)), massimo);
    }
  }

 private:
  const LibreriaArchive& libreria_;
  std::unique_ptr<archive, decltype(LibreriaArchive::libera)> archivio_;
};

bool nascosto(const std::string& percorso) {
  return percorso.substr(percorso.find_last_of('/') + 1).starts_with('.');
}

std::string daZip(const std::string& ottetti, std::size_t massimo) {
  const LibreriaArchive libreria;
  std::vector<std::string> nomi;
  for (Zip zip(libreria, ottetti); auto nome = zip.prossimo();) nomi.push_back(std::move(*nome));
  const auto testo = [](const std::string& nome) { return maiuscolo(nome).ends_with(".TXT"); };
  const bool soloTesti = std::any_of(nomi.begin(), nomi.end(), testo);
  const auto conta = [&](const std::string& nome) { return !nascosto(nome) && (!soloTesti || testo(nome)); };
  const auto quanti = std::count_if(nomi.begin(), nomi.end(), conta);
  if (quanti == 0) throw ErrorePacchetto("nel file zip non c'è nessun file");
  if (quanti > 1) throw ErrorePacchetto("nel file zip c'è più di un file di testo");
  Zip zip(libreria, ottetti);
  for (const auto& nome : nomi) {
    static_cast<void>(zip.prossimo());
    if (conta(nome)) return zip.contenuto(massimo);
  }
  rovinato();
}

}  // namespace

std::string spacchetta(std::string ottetti, std::size_t massimo) {
  if (ottetti.starts_with(kInizioGzip)) return daGzip(ottetti, massimo);
  if (ottetti.starts_with(kInizioZip) || ottetti.starts_with(kZipVuoto)) return daZip(ottetti, massimo);
  return ottetti;
}

}  // namespace vaticlo
