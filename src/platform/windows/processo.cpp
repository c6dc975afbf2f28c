#include "platform/processo.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>

// The second one needs the first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include "platform/percorso.h"

namespace vaticlo {

Processo::Processo(int /*argc*/, char* /*argv*/[]) : pagina_(::GetConsoleOutputCP()) {
  // What main() is given is not in Unicode.
  int quante = 0;
  auto* parole = ::CommandLineToArgvW(::GetCommandLineW(), &quante);
  for (int n = 1; n < quante; ++n) parole_.push_back(testoDi(parole[n]));
  ::LocalFree(parole);
  for (auto* flusso : {stdin, stdout, stderr}) static_cast<void>(::_setmode(::_fileno(flusso), _O_BINARY));
  ::SetConsoleOutputCP(CP_UTF8);
}

Processo::~Processo() {
  if (pagina_ != 0) ::SetConsoleOutputCP(pagina_);
}

// Windows has no such signal.
PipeSenzaSegnale::PipeSenzaSegnale() = default;

PipeSenzaSegnale::~PipeSenzaSegnale() = default;

std::filesystem::path cartellaEseguibile() {
  std::wstring nome(MAX_PATH, L'\0');
  for (DWORD lungo = 0;
       (lungo = ::GetModuleFileNameW(nullptr, nome.data(), static_cast<DWORD>(nome.size()))) == nome.size();)
    nome.resize(nome.size() * 2);
  return std::filesystem::path(nome.c_str()).parent_path();
}

bool uscitaSulTerminale() { return ::_isatty(::_fileno(stdout)) != 0; }

bool erroriSulTerminale() { return ::_isatty(::_fileno(stderr)) != 0; }

}  // namespace vaticlo
