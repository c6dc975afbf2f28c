#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <stop_token>
#include <vector>

#include "analysis/piano_di_gioco.h"

namespace vaticlo {

/// The draws `prima` to `ultima` in at most `kMassimo` steps of equal length, for what grows over time.
class AsseDelTempo {
 public:
  static constexpr int kMassimo = 100;

  AsseDelTempo() = default;
  /// Of all draws that the predictions play.
  explicit AsseDelTempo(std::span<const PianoDiGioco* const> piani);

  [[nodiscard]] int passi() const { return passi_; }
  /// The step, from 0, that a draw of the axis belongs to.
  [[nodiscard]] std::size_t passo(int estrazione) const {
    return static_cast<std::size_t>((estrazione - prima_) * passi_ / lunghezza_);
  }
  /// The last draw of a step.
  [[nodiscard]] int fine(std::size_t passo) const {
    return prima_ + ((static_cast<int>(passo) + 1) * lunghezza_ + passi_ - 1) / passi_ - 1;
  }

 private:
  int prima_ = 1, lunghezza_ = 1, passi_ = 0;
};

/// Predictions whose winners are counted together: a method.
struct GruppoGiocato {
  std::vector<PianoDiGioco> piani;
};

/// What the runs of chance gave for the predictions of one group.
struct EsitoProve {
  std::vector<std::uint32_t> vincenti;  ///< by the number of winners, from 0: how many runs had it
  /// For each step of the axis, by the number of winners up to its end: how many runs had it.
  std::vector<std::vector<std::uint32_t>> andamento;
};

struct RisultatoProve {
  int prove = 0;  ///< runs done: those asked for, or fewer after a stop
  AsseDelTempo asse;
  std::vector<EsitoProve> gruppi;  ///< in the order given
  EsitoProve insieme;              ///< all predictions together
};

inline constexpr int kProveAlMassimo = 1'000'000;  ///< that anybody may ask for

struct OpzioniProve {
  int prove = 1000;
  std::uint64_t seme = 1;
  unsigned fili = 0;  ///< threads; 0 for one on each core
};

/// Judges all predictions against `prove` archives of chance. The same seed gives the same result with any
/// number of threads. `avanzamento` is called now and then, by the caller's own thread, with the runs done. A
/// stop lets the runs under way end and gives the result of the first so many, as if no more had been asked
/// for. The memory does not depend on the number of runs.
[[nodiscard]] RisultatoProve provaIlCaso(std::span<const GruppoGiocato> gruppi, const RuoteEstratte& ruote,
                                         const OpzioniProve& opzioni, std::stop_token fermata = {},
                                         const std::function<void(int fatte)>& avanzamento = {});

/// The colpo in which the prediction wins in one run of chance; 0 when it does not.
[[nodiscard]] int colpoVincente(const PianoDiGioco& piano, const RuoteEstratte& ruote, std::uint64_t seme,
                                int prova);

}  // namespace vaticlo
