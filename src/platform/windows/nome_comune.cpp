#include "platform/windows/nome_comune.h"

#include <array>
#include <cwchar>

namespace vaticlo {

std::wstring nomeComune(const std::filesystem::path& cartella, const wchar_t* cosa) {
  const auto aperta =
      ::CreateFileW(cartella.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (aperta == INVALID_HANDLE_VALUE) return {};
  BY_HANDLE_FILE_INFORMATION stato{};
  const bool letta = ::GetFileInformationByHandle(aperta, &stato) != 0;
  ::CloseHandle(aperta);
  if (!letta) return {};
  std::array<wchar_t, 96> nome{};
  std::swprintf(nome.data(), nome.size(), L"Global\\Vaticlo-%ls-%08lx-%08lx%08lx", cosa,
                stato.dwVolumeSerialNumber, stato.nFileIndexHigh, stato.nFileIndexLow);
  return nome.data();
}

}  // namespace vaticlo
