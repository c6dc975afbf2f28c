#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/controlli.h"

namespace vaticlo {

/// The figures of a picture that belong together, one for each of its places.
struct Serie {
  enum class Forma {
    Barre,
    Linea,
    Banda,  ///< from `valori` up to `fino`
  };
  enum class Ruolo {
    Proprio,  ///< what happened
    Caso,     ///< what chance gives
  };
  std::string nome;
  Forma forma = Forma::Barre;
  Ruolo ruolo = Ruolo::Caso;
  std::vector<double> valori = {};
  std::vector<double> fino = {};
};

/// A mark across the picture: at a place of the horizontal axis, or at a value of the vertical one.
struct Segno {
  enum class Verso { Verticale, Orizzontale };
  double dove = 0;
  std::string testo;
  Verso verso = Verso::Verticale;
  Serie::Ruolo ruolo = Serie::Ruolo::Proprio;
};

/// A picture of figures. All series have a value for each of its places, which ascend from left to right.
struct Disegno {
  std::string titolo;
  std::string descrizione;  ///< what it shows, for who does not see it
  std::string asseX, asseY;
  std::vector<double> posti;
  std::vector<std::string> nomi;     ///< what stands below the places; none: their numbers
  std::vector<std::string> letture;  ///< what there is to read at each place
  std::vector<Serie> serie;
  std::vector<Segno> segni = {};
};

/// A picture on a window.
class Grafico : public Controllo {
 public:
  void mostra(Disegno disegno) {
    disegno_ = std::move(disegno);
    cambiato();
  }
  [[nodiscard]] const Disegno& disegno() const { return disegno_; }

 private:
  Disegno disegno_;
};

}  // namespace vaticlo
