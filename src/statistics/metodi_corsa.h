#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "methods/metodo.h"
#include "platform/failure.h"

namespace vaticlo {

/// What a scan does with a method that fails: ten predictions, an unreadable file.
enum class SeGuasto {
  FermaLaScansione,  ///< no prediction of it nor of the methods after it is taken
  SiSalta,           ///< the methods after it are still taken; one without a file does not get one
};

/// A method as its file was read.
struct MetodoLetto {
  int previsioni = 0;     ///< how many the scans see
  bool nonViste = false;  ///< it holds predictions that they do not see
  std::optional<RuntimeFailure> guasto;
};

/// The methods of one run, each file read once and its predictions found by their calculation draw, so that a
/// run costs draws + predictions. To whoever scans draw after draw it looks as if every file were read for
/// every draw: a method is read when the first scan reaches it, and a failure is worked out once and holds
/// for every draw.
class MetodiDellaCorsa {
 public:
  /// A prediction: the grid it stands in, its slot, and which method of the list it belongs to, from 0.
  using Previsione = std::function<void(const FileMetodo& metodo, int slot, std::size_t indice)>;

  /// Only predictions calculated on the draws `inizio` to `fine` are kept.
  MetodiDellaCorsa(const CartellaProgramma& cartella, std::vector<std::string> elenco, int inizio, int fine,
                   SeGuasto guasto = SeGuasto::FermaLaScansione);

  /// Calls `prendi` for each prediction calculated on that draw, in the order of methods and slots. A failure
  /// of `prendi` ends the scan there, and so does a method that fails unless such methods are skipped.
  void scorri(int estrazione, const Previsione& prendi);

  /// All methods of the list, in its order; those that no scan has reached yet are read now. For a run that
  /// skips the methods that fail.
  [[nodiscard]] const std::vector<MetodoLetto>& letti();

 private:
  struct Posto {
    const FileMetodo* metodo;
    int slot;
    std::size_t indice;
  };

  void leggiProssimo();
  void leggi(std::size_t indice, MetodoLetto& letto);
  [[nodiscard]] bool nelCampo(int estrazione) const { return estrazione >= inizio_ && estrazione <= fine_; }
  [[nodiscard]] std::vector<Posto>& posti(int estrazione) {
    return posti_[static_cast<std::size_t>(estrazione - inizio_)];
  }

  const CartellaProgramma& cartella_;
  std::vector<std::string> elenco_;
  int inizio_, fine_;
  SeGuasto seGuasto_;
  std::vector<MetodoLetto> letti_;
  std::deque<FileMetodo> griglie_;
  std::vector<std::vector<Posto>> posti_;
};

}  // namespace vaticlo
