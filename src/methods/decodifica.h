#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "methods/metodo.h"
#include "program/previsione.h"

namespace vaticlo {

/// The telephone number of a slot as text. From position 6 on a zero group ends it. Fails with
/// Errore::Indice when no group is 0.
[[nodiscard]] std::string testoTelefono(const FileMetodo& metodo, int slot);

/// Decodes slots into a Previsione. One object lives as long as a scan: its working pair of the ambi is never
/// cleared, so that a group of one number takes its second number over from the pair before it, be it of
/// another method.
class Decodificatore {
 public:
  /// Fails with Errore::Indice when a list fills its 180 cells and so has no end.
  void DecodificaPrevisione(const FileMetodo& metodo, int slot, Previsione& previsione);

 private:
  void decodificaAmbi(const FileMetodo& metodo, int slot, Previsione& previsione);

  std::pair<std::int16_t, std::int16_t> coppia_{0, 0};
};

}  // namespace vaticlo
