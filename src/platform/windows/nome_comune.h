#pragma once

#include <filesystem>
#include <string>

#include <windows.h>

namespace vaticlo {

/// The name under which all programs of the machine know something of a folder, whatever path leads to it;
/// none where the folder can't be opened.
[[nodiscard]] std::wstring nomeComune(const std::filesystem::path& cartella, const wchar_t* cosa);

/// Lets every user of the machine have what is made with them.
class PermessiComuni {
 public:
  PermessiComuni() {
    ::InitializeSecurityDescriptor(&diTutti_, SECURITY_DESCRIPTOR_REVISION);
    ::SetSecurityDescriptorDacl(&diTutti_, TRUE, nullptr, FALSE);
  }
  [[nodiscard]] SECURITY_ATTRIBUTES* attributi() { return &attributi_; }

 private:
  SECURITY_DESCRIPTOR diTutti_{};
  SECURITY_ATTRIBUTES attributi_{sizeof attributi_, &diTutti_, FALSE};
};

}  // namespace vaticlo
