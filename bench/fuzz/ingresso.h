#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "archive/archivio.h"
#include "methods/metodo.h"
#include "platform/failure.h"

/// What the fuzz targets share.
namespace vaticlo::fuzz {

/// The bytes of an input, taken from the front; 0 and "" behind their end.
class Ingresso {
 public:
  Ingresso(const std::uint8_t* dati, std::size_t ottetti)
      : resto_(reinterpret_cast<const char*>(dati), ottetti) {}

  [[nodiscard]] bool finito() const { return resto_.empty(); }
  int ottetto() {
    const auto uno = testo(1);
    return uno.empty() ? 0 : static_cast<std::uint8_t>(uno.front());
  }
  std::string_view testo(std::size_t ottetti) {
    const auto davanti = resto_.substr(0, ottetti);
    resto_.remove_prefix(davanti.size());
    return davanti;
  }
  /// A text behind a byte that says how long it is.
  std::string_view testo() { return testo(static_cast<std::size_t>(ottetto())); }
  std::string_view tutto() { return testo(resto_.size()); }

 private:
  std::string_view resto_;
};

/// The first draws, draw by draw, so that near bytes belong together; they keep what they hold at the end of
/// the input.
inline void riempi(ArchivioEstrazioni& archivio, int estrazioni, Ingresso& ingresso) {
  for (int i = 1; i <= estrazioni; ++i)
    for (int j = 0; j < ArchivioEstrazioni::Righe; ++j)
      for (int k = 1; k <= ArchivioEstrazioni::Colonne && !ingresso.finito(); ++k)
        archivio(i, j, k) = static_cast<std::uint8_t>(ingresso.ottetto());
}

/// The method, slot by slot, each field behind a byte that says how many of its cells are given.
inline void riempi(FileMetodo& metodo, Ingresso& ingresso) {
  for (int slot = 1; slot <= FileMetodo::Slot; ++slot)
    for (int campo = 0; campo < FileMetodo::Campi; ++campo) {
      const auto quante = std::min(ingresso.ottetto(), FileMetodo::Posizioni);
      int pos = 0;
      for (const char cella : ingresso.testo(static_cast<std::size_t>(quante)))
        metodo(slot, campo, ++pos) = static_cast<std::uint8_t>(cella);
    }
}

/// False when `passo` ended in a failure of the program's own: that is an answer.
template <class Passo>
bool riesce(Passo passo) {
  try {
    passo();
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

inline void richiedi(bool vale, const char* proprieta) {
  if (vale) return;
  std::fprintf(stderr, "does not hold: %s\n", proprieta);
  std::abort();
}

}  // namespace vaticlo::fuzz
