#include "platform/libreria.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <archive.h>
#include <archive_entry.h>
#include <curl/curl.h>

namespace vaticlo {

// No such library lies beside the programs of a user: what is asked of them is built in.
Libreria::Libreria(const char* /*nome*/) : libreria_(nullptr) {}

void* Libreria::indirizzo(const char* nome) const {
#define VOCE(funzione) std::pair<std::string_view, void*>(#funzione, reinterpret_cast<void*>(&(funzione)))
  static const std::array kVoci{VOCE(curl_easy_init),
                                VOCE(curl_easy_setopt),
                                VOCE(curl_easy_perform),
                                VOCE(curl_easy_getinfo),
                                VOCE(curl_easy_cleanup),
                                VOCE(archive_read_new),
                                VOCE(archive_read_support_format_zip),
                                VOCE(archive_read_open_memory),
                                VOCE(archive_read_next_header),
                                VOCE(archive_read_data),
                                VOCE(archive_read_free),
                                VOCE(archive_entry_pathname),
                                VOCE(archive_entry_filetype)};
#undef VOCE
  const auto* voce = std::find_if(kVoci.begin(), kVoci.end(), [&](const auto& v) { return v.first == nome; });
  return voce == kVoci.end() ? nullptr : voce->second;
}

}  // namespace vaticlo
