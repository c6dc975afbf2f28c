#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "methods/metodo.h"
#include "platform/failure.h"

namespace vaticlo {

/// The methods of one statistics run, each file read once and its predictions found by their calculation
/// draw, so that a run costs draws + predictions. To whoever scans draw after draw it looks as if every file
/// were read for every draw: a method is read when the first scan reaches it, and a failure that stops the
/// scan at a method (ten predictions, an unreadable file) is worked out once and stops every scan there.
class MetodiDellaCorsa {
 public:
  using Previsione = std::function<void(const FileMetodo& metodo, int slot, const std::string& nome)>;

  /// Only predictions calculated on the draws `inizio` to `fine` are kept.
  MetodiDellaCorsa(const CartellaProgramma& cartella, std::vector<std::string> elenco, int inizio, int fine);

  /// Calls `prendi` for each prediction calculated on that draw, in the order of methods and slots. A
  /// failure, be it of `prendi` or of a file, ends the scan there.
  void scorri(int estrazione, const Previsione& prendi);

 private:
  struct Posto {
    const FileMetodo* metodo;
    int slot;
    const std::string* nome;
  };

  void leggiProssimo();
  [[nodiscard]] bool nelCampo(int estrazione) const { return estrazione >= inizio_ && estrazione <= fine_; }
  [[nodiscard]] std::vector<Posto>& posti(int estrazione) {
    return posti_[static_cast<std::size_t>(estrazione - inizio_)];
  }

  const CartellaProgramma& cartella_;
  std::vector<std::string> elenco_;
  int inizio_, fine_;
  std::size_t letti_ = 0;
  std::optional<RuntimeFailure> guasto_;
  std::deque<FileMetodo> griglie_;
  std::vector<std::vector<Posto>> posti_;
};

}  // namespace vaticlo
