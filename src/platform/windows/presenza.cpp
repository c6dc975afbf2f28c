#include "platform/presenza.h"

#include <string>
#include <utility>

#include <windows.h>

#include "platform/windows/nome_comune.h"

namespace vaticlo {

namespace {
constexpr int kPosti = 32;  // more programs than that on one folder see each other no longer
}

/// One of some numbered events of the machine, each of which is there as long as somebody holds it.
struct Presenza::Segno {
  explicit Segno(std::wstring quale) : nome(std::move(quale)) {
    PermessiComuni permessi;
    for (; mio < kPosti; ++mio) {
      evento = ::CreateEventW(permessi.attributi(), TRUE, FALSE, posto(mio).c_str());
      if (evento != nullptr && ::GetLastError() != ERROR_ALREADY_EXISTS) return;
      if (evento != nullptr) ::CloseHandle(evento);
      evento = nullptr;
    }
  }
  Segno(const Segno&) = delete;
  Segno& operator=(const Segno&) = delete;
  ~Segno() {
    if (evento != nullptr) ::CloseHandle(evento);
  }
  [[nodiscard]] std::wstring posto(int quale) const { return nome + L"-" + std::to_wstring(quale); }

  std::wstring nome;
  int mio = 0;
  HANDLE evento = nullptr;
};

Presenza::Presenza(const std::filesystem::path& cartella) {
  if (auto nome = nomeComune(cartella, L"presenza"); !nome.empty())
    segno_ = std::make_unique<const Segno>(std::move(nome));
}

Presenza::~Presenza() = default;

bool Presenza::altre() const {
  for (int quale = 0; segno_ && quale < kPosti; ++quale) {
    if (quale == segno_->mio) continue;
    const auto evento = ::OpenEventW(SYNCHRONIZE, FALSE, segno_->posto(quale).c_str());
    if (evento == nullptr) continue;
    ::CloseHandle(evento);
    return true;
  }
  return false;
}

}  // namespace vaticlo
