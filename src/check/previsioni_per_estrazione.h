#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "archive/archivio.h"
#include "methods/catalogo.h"
#include "methods/decodifica.h"
#include "platform/cartella.h"
#include "program/previsione.h"

namespace vaticlo {

/// A number on a wheel that has made a prediction win, and the words for it.
struct NumeroVincente {
  int ruota = 0, numero = 0;
  std::string vincita;  ///< "Ambata 59 Ro al 4°colpo (La mia prova, estrazione 315)"
};

/// The predictions of the chosen methods by the draw they were calculated on, as a check of that draw finds
/// them: a method that fails hides those after it. Read once; nothing here fails.
class PrevisioniPerEstrazione {
 public:
  PrevisioniPerEstrazione(const CartellaProgramma& cartella, const SceltaMetodo& scelta);

  /// The nearest draw before, or after, draw n that carries predictions.
  [[nodiscard]] std::optional<int> prima(int n) const;
  [[nodiscard]] std::optional<int> dopo(int n) const;

  /// The numbers of draw n, of those stored, that made predictions on earlier draws win: by the rules of the
  /// check, in all colpi.
  [[nodiscard]] std::vector<NumeroVincente> vincentiIn(const ArchivioEstrazioni& archivio, int n) const;

 private:
  struct Calcolate {
    std::vector<Previsione> previsioni;
    Decodificatore decodificatore;
    bool interrotta = false;  // what fails ends the check of its draw
  };
  void leggi(const CartellaProgramma& cartella, const std::string& metodo);

  std::map<int, Calcolate> estrazioni_;
};

}  // namespace vaticlo
