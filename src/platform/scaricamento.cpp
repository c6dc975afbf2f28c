#include "platform/scaricamento.h"

#include <memory>
#include <new>
#include <optional>
#include <system_error>

#include <curl/curl.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/descrittore.h"

namespace vaticlo {

namespace {

constexpr long kRedirezioni = 5;
constexpr long kQuasiSilenzio = 64;  // bytes a second

// The few entries of libcurl that a download needs, from a library opened on first use.
class LibreriaCurl {
 public:
  LibreriaCurl() : libreria_(::dlopen("libcurl.so.4", RTLD_NOW | RTLD_LOCAL)) {
    if (libreria_ == nullptr) return;
    prendi(init, "curl_easy_init");
    prendi(setopt, "curl_easy_setopt");
    prendi(perform, "curl_easy_perform");
    prendi(getinfo, "curl_easy_getinfo");
    prendi(cleanup, "curl_easy_cleanup");
  }

  [[nodiscard]] bool pronta() const { return init && setopt && perform && getinfo && cleanup; }

  decltype(&curl_easy_init) init = nullptr;
  decltype(&curl_easy_setopt) setopt = nullptr;
  decltype(&curl_easy_perform) perform = nullptr;
  decltype(&curl_easy_getinfo) getinfo = nullptr;
  decltype(&curl_easy_cleanup) cleanup = nullptr;

 private:
  template <class Funzione>
  void prendi(Funzione& funzione, const char* nome) {
    funzione = reinterpret_cast<Funzione>(::dlsym(libreria_, nome));
  }

  void* libreria_;  // never closed: TLS libraries below it do not survive being unloaded
};

struct Raccolta {
  std::size_t limite;
  std::string testo;
};

std::size_t raccogli(const char* dati, std::size_t uno, std::size_t quanti, void* destinazione) {
  auto& raccolta = *static_cast<Raccolta*>(destinazione);
  if (uno * quanti > raccolta.limite - raccolta.testo.size()) return CURL_WRITEFUNC_ERROR;
  try {
    raccolta.testo.append(dati, uno * quanti);
  } catch (const std::bad_alloc&) {
    return CURL_WRITEFUNC_ERROR;  // nothing is thrown through a library of C
  }
  return uno * quanti;
}

std::optional<std::string> scarica(const std::string& indirizzo, const LimitiScaricamento& limiti) {
  const LibreriaCurl curl;
  if (!curl.pronta()) return std::nullopt;
  const std::unique_ptr<CURL, decltype(curl.cleanup)> richiesta(curl.init(), curl.cleanup);
  if (!richiesta) return std::nullopt;

  Raccolta raccolta{limiti.ottetti, {}};
  bool accettate = true;  // an older library would take any protocol instead of these two
  const auto opzione = [&](CURLoption quale, auto valore) {
    accettate = curl.setopt(richiesta.get(), quale, valore) == CURLE_OK && accettate;
  };
  opzione(CURLOPT_URL, indirizzo.c_str());
  opzione(CURLOPT_PROTOCOLS_STR, "http,https");
  opzione(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
  opzione(CURLOPT_FOLLOWLOCATION, 1L);
  opzione(CURLOPT_MAXREDIRS, kRedirezioni);
  opzione(CURLOPT_FAILONERROR, 1L);
  opzione(CURLOPT_NOSIGNAL, 1L);
  opzione(CURLOPT_CONNECTTIMEOUT, static_cast<long>(limiti.collegamento.count()));
  opzione(CURLOPT_LOW_SPEED_LIMIT, kQuasiSilenzio);
  opzione(CURLOPT_LOW_SPEED_TIME, static_cast<long>(limiti.silenzio.count()));
  opzione(CURLOPT_TIMEOUT, static_cast<long>(limiti.tutto.count()));
  opzione(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limiti.ottetti));
  opzione(CURLOPT_WRITEFUNCTION, &raccogli);
  opzione(CURLOPT_WRITEDATA, &raccolta);
  if (!accettate || curl.perform(richiesta.get()) != CURLE_OK) return std::nullopt;
  long stato = 0;
  curl.getinfo(richiesta.get(), CURLINFO_RESPONSE_CODE, &stato);
  // The 2xx behind these carry no file, or a part of one.
  if (stato < 200 || stato > 203) return std::nullopt;
  return std::move(raccolta.testo);
}

// The file behind a link, so that the link stays one.
std::filesystem::path vero(const std::filesystem::path& percorso) {
  std::error_code codice;
  const auto trovato = std::filesystem::canonical(percorso, codice);
  return codice ? percorso : trovato;
}

// Beside the destination first, then in its place in one step: whatever fails, the old file stays whole. The
// new one is for the same people to read and to write.
bool sostituisci(const std::filesystem::path& destinazione, const std::string& contenuto) {
  auto accanto = destinazione;
  accanto += ".nuovo";
  std::error_code codice;
  try {
    const Descrittore file(accanto, O_WRONLY | O_CREAT | O_TRUNC);
    struct stat prima {};
    if (::stat(destinazione.c_str(), &prima) == 0)
      static_cast<void>(::fchmod(file.fd(), prima.st_mode & 0777));
    file.scrivi(contenuto, accanto);
    if (::fsync(file.fd()) == 0) {
      std::filesystem::rename(accanto, destinazione, codice);
      if (!codice) return true;
    }
  } catch (const RuntimeFailure&) {
    // Told by the result, like every other way to fail.
  }
  std::filesystem::remove(accanto, codice);
  return false;
}

}  // namespace

bool scaricaInFile(const std::string& indirizzo, const std::filesystem::path& destinazione,
                   const LimitiScaricamento& limiti) {
  const auto contenuto = scarica(indirizzo, limiti);
  return contenuto && sostituisci(vero(destinazione), *contenuto);
}

}  // namespace vaticlo
