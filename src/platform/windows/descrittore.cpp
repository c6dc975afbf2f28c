#include "platform/descrittore.h"

#include <algorithm>

#include <windows.h>

#include "platform/percorso.h"
#include "platform/windows/ultimo_errore.h"

namespace vaticlo {

namespace {

constexpr std::size_t kPezzo = std::size_t{1} << 30;

// Others may read, write and rename an open file, as on every other system.
HANDLE apri(const std::filesystem::path& percorso, Apertura come) {
  const bool legge = come != Apertura::Nuova && come != Apertura::DaCapo;
  const bool scrive = come != Apertura::Lettura;
  const DWORD creazione = come == Apertura::Nuova                                       ? CREATE_NEW
                          : come == Apertura::ModificaOCrea || come == Apertura::DaCapo ? OPEN_ALWAYS
                                                                                        : OPEN_EXISTING;
  return ::CreateFileW(percorso.c_str(), (legge ? GENERIC_READ : 0U) | (scrive ? GENERIC_WRITE : 0U),
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, creazione,
                       // with this one a folder opens
                       scrive ? FILE_ATTRIBUTE_NORMAL : FILE_FLAG_BACKUP_SEMANTICS, nullptr);
}

// Of a name that no file can have there is none, and none can be made.
std::error_code percheNonSiApre(Apertura come) {
  if (::GetLastError() != ERROR_INVALID_NAME) return ultimoErrore();
  const bool deveEsserci = come == Apertura::Lettura || come == Apertura::Modifica;
  return make_error_code(deveEsserci ? std::errc::no_such_file_or_directory : std::errc::permission_denied);
}

HANDLE maniglia(std::intptr_t aperto) { return reinterpret_cast<HANDLE>(aperto); }

}  // namespace

Descrittore::Descrittore(const std::filesystem::path& percorso, Apertura come,
                         const std::filesystem::path& nominato)
    : aperto_(reinterpret_cast<std::intptr_t>(apri(percorso, come))) {
  if (aperto_ == kNessuno) throw failureDiSistema(percheNonSiApre(come), nominato);
  if (come == Apertura::DaCapo && ::GetFileType(maniglia(aperto_)) == FILE_TYPE_DISK) tagliaA(0, nominato);
}

Descrittore::~Descrittore() {
  if (aperto_ != kNessuno) ::CloseHandle(maniglia(aperto_));
}

std::optional<std::size_t> Descrittore::lunghezza(const std::filesystem::path& percorso) const {
  BY_HANDLE_FILE_INFORMATION stato{};
  if (::GetFileType(maniglia(aperto_)) != FILE_TYPE_DISK) return std::nullopt;
  if (::GetFileInformationByHandle(maniglia(aperto_), &stato) == 0)
    throw failureDiSistema(ultimoErrore(), percorso);
  if ((stato.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
  return (static_cast<std::size_t>(stato.nFileSizeHigh) << 32) + stato.nFileSizeLow;
}

void Descrittore::vaiA(std::size_t posto, const std::filesystem::path& percorso) const {
  LARGE_INTEGER dove{};
  dove.QuadPart = static_cast<LONGLONG>(posto);
  if (::SetFilePointerEx(maniglia(aperto_), dove, nullptr, FILE_BEGIN) == 0)
    throw failureDiSistema(ultimoErrore(), percorso);
}

void Descrittore::tagliaA(std::size_t quanti, const std::filesystem::path& percorso) const {
  vaiA(quanti, percorso);
  if (::SetEndOfFile(maniglia(aperto_)) == 0) throw failureDiSistema(ultimoErrore(), percorso);
}

void Descrittore::scrivi(std::string_view dati, const std::filesystem::path& percorso) const {
  while (!dati.empty()) {
    DWORD scritti = 0;
    const auto pezzo = static_cast<DWORD>(std::min(dati.size(), kPezzo));
    if (::WriteFile(maniglia(aperto_), dati.data(), pezzo, &scritti, nullptr) == 0)
      throw failureDiSistema(ultimoErrore(), percorso);
    if (scritti == 0) throw RuntimeFailure(Errore::DiscoPieno, nomeFile(percorso));
    dati.remove_prefix(scritti);
  }
}

std::size_t Descrittore::leggi(std::span<std::uint8_t> dati, const std::filesystem::path& percorso) const {
  std::size_t pieni = 0;
  while (pieni < dati.size()) {
    DWORD letti = 0;
    const auto pezzo = static_cast<DWORD>(std::min(dati.size() - pieni, kPezzo));
    if (::ReadFile(maniglia(aperto_), dati.data() + pieni, pezzo, &letti, nullptr) == 0) {
      // The end of a pipe.
      if (::GetLastError() == ERROR_BROKEN_PIPE || ::GetLastError() == ERROR_HANDLE_EOF) break;
      throw RuntimeFailure(Errore::DispositivoIO, nomeFile(percorso));
    }
    if (letti == 0) break;
    pieni += letti;
  }
  return pieni;
}

// Reading a pipe always waits.
void Descrittore::attendiLeggendo() const {}

void Descrittore::attendiChiScrive() const {}

void Descrittore::sincronizza(const std::filesystem::path& percorso) const {
  if (::FlushFileBuffers(maniglia(aperto_)) != 0) return;
  const auto codice = ::GetLastError();
  if (codice != ERROR_INVALID_FUNCTION && codice != ERROR_NOT_SUPPORTED)
    throw failureDiSistema(ultimoErrore(), percorso);
}

void Descrittore::chiudi(const std::filesystem::path& percorso) {
  if (::CloseHandle(maniglia(std::exchange(aperto_, kNessuno))) == 0)
    throw failureDiSistema(ultimoErrore(), percorso);
}

bool senzaPosto(std::error_code codice) {
  return codice == std::errc::no_space_on_device || codice == std::errc::file_too_large ||
         codice.value() == ERROR_HANDLE_DISK_FULL;
}

}  // namespace vaticlo
