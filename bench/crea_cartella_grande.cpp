#include <cstdlib>
#include <iostream>

#include "cartella_grande.h"

int main(int argc, char* argv[]) {
  if (argc != 4) {
    std::cerr << "Uso: crea_cartella_grande DIR ESTRAZIONI METODI\n";
    return 2;
  }
  vaticlo::creaCartellaGrande(vaticlo::CartellaProgramma(argv[1]), std::atoi(argv[2]), std::atoi(argv[3]));
  return 0;
}
