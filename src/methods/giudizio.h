#pragma once

#include <vector>

#include "archive/regole.h"
#include "program/previsione.h"

namespace vaticlo {

/// What a judge does with each hit of a colpo, in the order in which they are found.
class EsitoColpo {
 public:
  virtual ~EsitoColpo() = default;

  virtual void ambata(int numero, int ruota) = 0;
  virtual void ambo(int a, int b, int ruota) = 0;
  virtual void amboTutte(int a, int b, int ruota) = 0;
  /// `usciti`: the two to five numbers of the combination that are on the wheel.
  virtual void sorte(const std::vector<int>& usciti, int ruota) = 0;
};

/// With which wheels of a prediction its `Tutte` flag is tried. The judges differ in it on purpose.
enum class FlagTutte { PrimaRuota, OgniRuota };

/// Tries all the bets of a prediction in draw `estrazione`: ambate, ambi, sorti superiori, each in list
/// order. No hit stops anything. True when there was one. Fails with Errore::Indice for ambi without a wheel
/// (`Tutte` alone), for an ambata on a wheel code outside the grid, and for a draw outside the grid.
bool giudicaColpo(const Previsione& previsione, const RegoleVincita& regole, int estrazione, FlagTutte flag,
                  EsitoColpo& esito);

}  // namespace vaticlo
