#include "platform/scaricamento.h"

#include <memory>
#include <optional>
#include <system_error>

#include <curl/curl.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include "platform/descrittore.h"

namespace vaticlo {

namespace {

constexpr long kAttesaCollegamento = 20;                // seconds
constexpr long kAttesaSenzaDati = 30;                   // seconds at less than a byte a second
constexpr std::size_t kLimite = std::size_t{64} << 20;  // no archive is anywhere near it

// The few entries of libcurl that a download needs, from a library opened on first use.
class LibreriaCurl {
 public:
  LibreriaCurl() : libreria_(::dlopen("libcurl.so.4", RTLD_NOW | RTLD_LOCAL)) {
    if (libreria_ == nullptr) return;
    prendi(init, "curl_easy_init");
    prendi(setopt, "curl_easy_setopt");
    prendi(perform, "curl_easy_perform");
    prendi(cleanup, "curl_easy_cleanup");
  }

  [[nodiscard]] bool pronta() const { return init && setopt && perform && cleanup; }

  decltype(&curl_easy_init) init = nullptr;
  decltype(&curl_easy_setopt) setopt = nullptr;
  decltype(&curl_easy_perform) perform = nullptr;
  decltype(&curl_easy_cleanup) cleanup = nullptr;

 private:
  template <class Funzione>
  void prendi(Funzione& funzione, const char* nome) {
    funzione = reinterpret_cast<Funzione>(::dlsym(libreria_, nome));
  }

  void* libreria_;  // never closed: TLS libraries below it do not survive being unloaded
};

std::size_t raccogli(const char* dati, std::size_t uno, std::size_t ottetti, void* destinazione) {
  auto& testo = *static_cast<std::string*>(destinazione);
  if (testo.size() + ottetti > kLimite) return 0;
  testo.append(dati, uno * ottetti);
  return uno * ottetti;
}

std::optional<std::string> scarica(const std::string& indirizzo) {
  const LibreriaCurl curl;
  if (!curl.pronta()) return std::nullopt;
  const std::unique_ptr<CURL, decltype(curl.cleanup)> richiesta(curl.init(), curl.cleanup);
  if (!richiesta) return std::nullopt;

  std::string contenuto;
  curl.setopt(richiesta.get(), CURLOPT_URL, indirizzo.c_str());
  curl.setopt(richiesta.get(), CURLOPT_PROTOCOLS_STR, "http,https,file");
  curl.setopt(richiesta.get(), CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
  curl.setopt(richiesta.get(), CURLOPT_FOLLOWLOCATION, 1L);
  curl.setopt(richiesta.get(), CURLOPT_FAILONERROR, 1L);
  curl.setopt(richiesta.get(), CURLOPT_NOSIGNAL, 1L);
  curl.setopt(richiesta.get(), CURLOPT_CONNECTTIMEOUT, kAttesaCollegamento);
  curl.setopt(richiesta.get(), CURLOPT_LOW_SPEED_LIMIT, 1L);
  curl.setopt(richiesta.get(), CURLOPT_LOW_SPEED_TIME, kAttesaSenzaDati);
  curl.setopt(richiesta.get(), CURLOPT_WRITEFUNCTION, &raccogli);
  curl.setopt(richiesta.get(), CURLOPT_WRITEDATA, &contenuto);
  if (curl.perform(richiesta.get()) != CURLE_OK) return std::nullopt;
  return contenuto;
}

// Beside the destination first, then in its place in one step: whatever fails, the old file stays whole.
bool sostituisci(const std::filesystem::path& destinazione, const std::string& contenuto) {
  auto accanto = destinazione;
  accanto += ".nuovo";
  std::error_code codice;
  try {
    const Descrittore file(accanto, O_WRONLY | O_CREAT | O_TRUNC);
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

bool scaricaInFile(const std::string& indirizzo, const std::filesystem::path& destinazione) {
  const auto contenuto = scarica(indirizzo);
  return contenuto && sostituisci(destinazione, *contenuto);
}

}  // namespace vaticlo
