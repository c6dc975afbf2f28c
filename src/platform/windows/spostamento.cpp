#include "platform/spostamento.h"

#include <chrono>
#include <thread>

#include <windows.h>

#include "platform/descrittore.h"
#include "platform/windows/ultimo_errore.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds kAttesa{1000}, kPausa{10};

// Who looks at every new file (an antivirus, the search) lets go of it soon.
bool laHaUnAltro() {
  return ::GetLastError() == ERROR_SHARING_VIOLATION || ::GetLastError() == ERROR_ACCESS_DENIED;
}

}  // namespace

std::error_code sposta(const fs::path& da, const fs::path& a, Posto posto) {
  const DWORD come =
      MOVEFILE_WRITE_THROUGH | (posto == Posto::Qualunque ? MOVEFILE_REPLACE_EXISTING : DWORD{0});
  const auto fine = std::chrono::steady_clock::now() + kAttesa;
  while (::MoveFileExW(da.c_str(), a.c_str(), come) == 0) {
    if (!laHaUnAltro() || std::chrono::steady_clock::now() >= fine) return ultimoErrore();
    std::this_thread::sleep_for(kPausa);
  }
  return {};
}

void togliFile(const fs::path& percorso) { ::DeleteFileW(percorso.c_str()); }

void sincronizzaTutti(const fs::path& cartella) {
  for (const auto& file : fs::directory_iterator(cartella))
    Descrittore(file.path(), Apertura::Modifica).sincronizza(file.path());
}

bool siPuoAggiungere(const fs::path& cartella) {
  const auto aperta =
      ::CreateFileW(cartella.c_str(), FILE_ADD_FILE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (aperta == INVALID_HANDLE_VALUE) return false;
  ::CloseHandle(aperta);
  return true;
}

bool siPuoModificare(const fs::path& file) {
  const auto attributi = ::GetFileAttributesW(file.c_str());
  return attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_READONLY) == 0;
}

// What a closed window or Ctrl-C ends here can't be held off.
struct SegnaliFermi::Prima {};

SegnaliFermi::SegnaliFermi() = default;

SegnaliFermi::~SegnaliFermi() = default;

}  // namespace vaticlo
