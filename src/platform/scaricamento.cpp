#include "platform/scaricamento.h"

#include <memory>
#include <new>
#include <optional>

#include <curl/curl.h>

#include "platform/failure.h"
#include "platform/file_intero.h"
#include "platform/libreria.h"

namespace vaticlo {

namespace {

constexpr long kRedirezioni = 5;
constexpr long kQuasiSilenzio = 64;  // bytes a second

// The few entries of libcurl that a download needs.
struct LibreriaCurl {
  LibreriaCurl() {
    const Libreria libreria("libcurl.so.4");
    libreria.prendi(init, "curl_easy_init");
    libreria.prendi(setopt, "curl_easy_setopt");
    libreria.prendi(perform, "curl_easy_perform");
    libreria.prendi(getinfo, "curl_easy_getinfo");
    libreria.prendi(cleanup, "curl_easy_cleanup");
  }

  [[nodiscard]] bool pronta() const { return init && setopt && perform && getinfo && cleanup; }

  decltype(&curl_easy_init) init = nullptr;
  decltype(&curl_easy_setopt) setopt = nullptr;
  decltype(&curl_easy_perform) perform = nullptr;
  decltype(&curl_easy_getinfo) getinfo = nullptr;
  decltype(&curl_easy_cleanup) cleanup = nullptr;
};

struct Raccolta {
  std::size_t limite;
  std::string testo;
  std::size_t teste = 0;  // bytes of the heads and trailers, which may have no end either
};

std::size_t contaTeste(const char* /*dati*/, std::size_t uno, std::size_t quanti, void* destinazione) {
  auto& raccolta = *static_cast<Raccolta*>(destinazione);
  raccolta.teste += uno * quanti;
  return raccolta.teste + raccolta.testo.size() <= raccolta.limite ? uno * quanti : CURL_WRITEFUNC_ERROR;
}

std::size_t raccogli(const char* dati, std::size_t uno, std::size_t quanti, void* destinazione) {
  auto& raccolta = *static_cast<Raccolta*>(destinazione);
  if (raccolta.teste + raccolta.testo.size() + uno * quanti > raccolta.limite) return CURL_WRITEFUNC_ERROR;
  try {
    raccolta.testo.append(dati, uno * quanti);
  } catch (const std::bad_alloc&) {
    return CURL_WRITEFUNC_ERROR;  // nothing is thrown through a library of C
  }
  return uno * quanti;
}

int prosegui(void* limiti, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
  const auto& interrotto = static_cast<const LimitiScaricamento*>(limiti)->interrotto;
  return interrotto && interrotto() ? 1 : 0;
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
  opzione(CURLOPT_PROTOCOLS_STR, "http,https");  // of redirections too
  opzione(CURLOPT_PROXY, "");                    // none from the environment
  opzione(CURLOPT_FOLLOWLOCATION, 1L);
  opzione(CURLOPT_MAXREDIRS, kRedirezioni);
  opzione(CURLOPT_FAILONERROR, 1L);
  opzione(CURLOPT_NOSIGNAL, 1L);
  opzione(CURLOPT_CONNECTTIMEOUT, static_cast<long>(limiti.collegamento.count()));
  opzione(CURLOPT_LOW_SPEED_LIMIT, kQuasiSilenzio);
  opzione(CURLOPT_LOW_SPEED_TIME, static_cast<long>(limiti.silenzio.count()));
  opzione(CURLOPT_TIMEOUT, static_cast<long>(limiti.tutto.count()));
  opzione(CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limiti.ottetti));
  opzione(CURLOPT_HEADERFUNCTION, &contaTeste);
  opzione(CURLOPT_HEADERDATA, &raccolta);
  opzione(CURLOPT_WRITEFUNCTION, &raccogli);
  opzione(CURLOPT_WRITEDATA, &raccolta);
  opzione(CURLOPT_NOPROGRESS, 0L);
  opzione(CURLOPT_XFERINFOFUNCTION, &prosegui);
  opzione(CURLOPT_XFERINFODATA, &limiti);
  if (!accettate || curl.perform(richiesta.get()) != CURLE_OK) return std::nullopt;
  long stato = 0;
  curl.getinfo(richiesta.get(), CURLINFO_RESPONSE_CODE, &stato);
  // The 2xx behind these carry no file, or a part of one.
  if (stato < 200 || stato > 203) return std::nullopt;
  return std::move(raccolta.testo);
}

}  // namespace

bool scaricaInFile(const std::string& indirizzo, const std::filesystem::path& destinazione,
                   const LimitiScaricamento& limiti) {
  const auto contenuto = scarica(indirizzo, limiti);
  if (!contenuto) return false;
  try {
    scriviFile(destinazione, {reinterpret_cast<const std::uint8_t*>(contenuto->data()), contenuto->size()},
               Scrittura::Intera);
    return true;
  } catch (const RuntimeFailure&) {
    return false;  // told in the same way as every other failure
  }
}

}  // namespace vaticlo
