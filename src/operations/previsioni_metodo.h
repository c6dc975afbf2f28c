#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "methods/metodo.h"
#include "program/programma.h"

namespace vaticlo {

/// A method before and after a step.
struct CambioMetodo {
  std::string nome;
  FileMetodo prima, dopo;
};

/// What a step on predictions has changed, so that it can be taken back: one method, or two when predictions
/// went from one to the other. Empty for a step that was refused.
using PassoPrevisioni = std::vector<CambioMetodo>;

/// Takes predictions out of methods, copies and moves them. Those that stay close the gap, those that come go
/// after the last one, so that the scans see them all. A step is refused, and the user sees why, before
/// anything is written: a slot that holds no prediction, a method that is not there, one that would get a
/// tenth prediction, which keeps it from being judged. Failures of the disk go on to the caller; all methods
/// are then as they were.
class PrevisioniMetodo {
 public:
  /// `vista` is the method that gives as the user has seen it: a step is refused when it is another now.
  explicit PrevisioniMetodo(Programma& programma, std::optional<FileMetodo> vista = std::nullopt)
      : programma_(programma), vista_(std::move(vista)) {}

  PassoPrevisioni togli(const std::string& metodo, std::vector<int> slot);
  PassoPrevisioni duplica(const std::string& metodo, std::vector<int> slot);
  PassoPrevisioni copia(const std::string& metodo, std::vector<int> slot, const std::string& verso);
  PassoPrevisioni sposta(const std::string& metodo, std::vector<int> slot, const std::string& verso);

  /// Takes a step back. Refused when one of its methods has changed since.
  bool annulla(const PassoPrevisioni& passo);

 private:
  [[nodiscard]] CambioMetodo leggiOrigine(const std::string& nome) const;

  Programma& programma_;
  std::optional<FileMetodo> vista_;
};

}  // namespace vaticlo
