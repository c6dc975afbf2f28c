#include "platform/blocco.h"

#include <windows.h>

#include "platform/failure.h"
#include "platform/percorso.h"
#include "platform/windows/nome_comune.h"

namespace vaticlo {

/// A mutex of the machine: the thread that has it may take it again, and it is let go of with the process.
struct BloccoCartella::Tenuta {
  explicit Tenuta(HANDLE quale) : blocco(quale) {}
  Tenuta(const Tenuta&) = delete;
  Tenuta& operator=(const Tenuta&) = delete;
  ~Tenuta() {
    ::ReleaseMutex(blocco);
    ::CloseHandle(blocco);
  }

  HANDLE blocco;
};

BloccoCartella::BloccoCartella(const std::filesystem::path& cartella, std::chrono::milliseconds attesa)
    : cartella_(cartella.empty() ? "." : cartella) {
  const auto nome = nomeComune(cartella_, L"blocco");
  if (nome.empty()) return;  // whoever opens a file in it says why
  PermessiComuni permessi;
  const auto blocco = ::CreateMutexW(permessi.attributi(), FALSE, nome.c_str());
  if (blocco == nullptr) return;
  const auto esito = ::WaitForSingleObject(blocco, static_cast<DWORD>(attesa.count()));
  if (esito == WAIT_OBJECT_0 || esito == WAIT_ABANDONED) {
    tenuta_ = std::make_shared<const Tenuta>(blocco);
    return;
  }
  ::CloseHandle(blocco);
  if (esito == WAIT_TIMEOUT) throw RuntimeFailure(Errore::CartellaOccupata, nomeFile(cartella));
}

// A move here is on the disk when it returns.
void BloccoCartella::sincronizza() const {}

}  // namespace vaticlo
