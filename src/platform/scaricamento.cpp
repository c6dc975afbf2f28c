#include "platform/scaricamento.h"

#include <memory>
#include <new>
#include <utility>

#include <curl/curl.h>

#include "platform/failure.h"
#include "platform/file_intero.h"
#include "platform/libreria.h"
#include "platform/percorso.h"

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

int prosegui(void* limiti, curl_off_t tutto, curl_off_t fatto, curl_off_t, curl_off_t) {
  const auto& suoi = *static_cast<const LimitiScaricamento*>(limiti);
  if (suoi.avanzamento && tutto > 0) suoi.avanzamento(static_cast<int>(fatto * 100 / tutto));
  return suoi.interrotto && suoi.interrotto() ? 1 : 0;
}

std::string motivo(CURLcode esito, long stato) {
  switch (esito) {
    case CURLE_COULDNT_RESOLVE_HOST:
      return "il server non si trova (manca il collegamento a Internet?)";
    case CURLE_COULDNT_CONNECT:
      return "il server non risponde";
    case CURLE_OPERATION_TIMEDOUT:
      return "il server ci mette troppo";
    case CURLE_HTTP_RETURNED_ERROR:
      return "il server ha risposto con il codice " + std::to_string(stato);
    case CURLE_TOO_MANY_REDIRECTS:
      return "il server rimanda da un indirizzo all'altro";
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
      return "il collegamento cifrato con il server non è sicuro";
    case CURLE_FILESIZE_EXCEEDED:
    case CURLE_WRITE_ERROR:
      return "il server manda più di quanto possa servire";
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_RECV_ERROR:
      return "la trasmissione si è interrotta";
    case CURLE_URL_MALFORMAT:
    case CURLE_UNSUPPORTED_PROTOCOL:
      return "l'indirizzo non è del web (http o https)";
    case CURLE_ABORTED_BY_CALLBACK:
      return "lo scaricamento è stato interrotto";
    default:
      return "la trasmissione non è riuscita (errore " + std::to_string(esito) + ")";
  }
}

}  // namespace

Scaricato scaricaInMemoria(const std::string& indirizzo, std::int64_t seModificatoDopo,
                           const LimitiScaricamento& limiti) {
  const LibreriaCurl curl;
  if (!curl.pronta()) return {.motivo = "serve la libreria libcurl (libcurl.so.4)"};
  const std::unique_ptr<CURL, decltype(curl.cleanup)> richiesta(curl.init(), curl.cleanup);
  if (!richiesta) return {.motivo = motivo(CURLE_FAILED_INIT, 0)};

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
  opzione(CURLOPT_FILETIME, 1L);
  if (seModificatoDopo > 0) {
    opzione(CURLOPT_TIMECONDITION, static_cast<long>(CURL_TIMECOND_IFMODSINCE));
    opzione(CURLOPT_TIMEVALUE_LARGE, static_cast<curl_off_t>(seModificatoDopo));
  }
  const auto certificati = testoDi(limiti.certificati);
  if (!certificati.empty()) opzione(CURLOPT_CAINFO, certificati.c_str());
  opzione(CURLOPT_HEADERFUNCTION, &contaTeste);
  opzione(CURLOPT_HEADERDATA, &raccolta);
  opzione(CURLOPT_WRITEFUNCTION, &raccogli);
  opzione(CURLOPT_WRITEDATA, &raccolta);
  opzione(CURLOPT_NOPROGRESS, 0L);
  opzione(CURLOPT_XFERINFOFUNCTION, &prosegui);
  opzione(CURLOPT_XFERINFODATA, &limiti);
  const auto esito = accettate ? curl.perform(richiesta.get()) : CURLE_NOT_BUILT_IN;
  long stato = 0, immutato = 0;
  curl_off_t modificato = 0;
  curl.getinfo(richiesta.get(), CURLINFO_RESPONSE_CODE, &stato);
  curl.getinfo(richiesta.get(), CURLINFO_CONDITION_UNMET, &immutato);
  curl.getinfo(richiesta.get(), CURLINFO_FILETIME_T, &modificato);
  if (esito != CURLE_OK) return {.motivo = motivo(esito, stato)};
  if (seModificatoDopo > 0 && immutato != 0) return {.esito = Scaricato::Esito::Immutato};
  // The other 2xx carry no file, or a part of one.
  if (stato < 200 || stato > 203) return {.motivo = motivo(CURLE_HTTP_RETURNED_ERROR, stato)};
  return {.esito = Scaricato::Esito::Arrivato,
          .contenuto = std::move(raccolta.testo),
          .modificato = modificato > 0 ? modificato : 0};
}

bool scaricaInFile(const std::string& indirizzo, const std::filesystem::path& destinazione,
                   const LimitiScaricamento& limiti) {
  const auto scaricato = scaricaInMemoria(indirizzo, 0, limiti);
  if (scaricato.esito != Scaricato::Esito::Arrivato) return false;
  const auto& contenuto = scaricato.contenuto;
  try {
    scriviFile(destinazione, {reinterpret_cast<const std::uint8_t*>(contenuto.data()), contenuto.size()},
               Scrittura::Intera);
    return true;
  } catch (const RuntimeFailure&) {
    return false;  // reported like every other failure
  }
}

}  // namespace vaticlo
