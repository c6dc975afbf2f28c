#pragma once

#include <sstream>
#include <string>

#include "archive/ruota.h"
#include "sostegno/cartella_prova.h"
#include "sostegno/previsione_prova.h"

namespace vaticlo::prova {

/// The bytes of a report in its code page, its lines parted by "|" and ended by CR LF.
[[nodiscard]] inline std::string rapportoDi(const std::string& testo) {
  std::string ottetti;
  std::istringstream resto(testo);
  for (std::string riga; std::getline(resto, riga, '|');) {
    for (auto posto = riga.find("°"); posto != std::string::npos; posto = riga.find("°"))
      riga.replace(posto, std::string("°").size(), "\xB0");
    ottetti += riga + "\r\n";
  }
  return ottetti;
}

/// The archive up to draw `ultima`, with what came out as "5434 Ba 12, 5436 Naz 3 1 2".
[[nodiscard]] inline ArchivioProva archivioDi(int ultima, const std::string& uscite = "") {
  ArchivioProva archivio(ultima);
  std::istringstream resto(uscite);
  for (std::string uscita; std::getline(resto, uscita, ',');) {
    std::istringstream parole(uscita);
    int estrazione = 0;
    std::string sigla;
    parole >> estrazione >> sigla;
    int ruota = 1;
    while (SiglaRuota(ruota) != sigla) ++ruota;
    std::vector<int> numeri;
    for (int numero = 0; parole >> numero;) numeri.push_back(numero);
    archivio.ruota(estrazione, ruota, numeri);
  }
  return archivio;
}

}  // namespace vaticlo::prova
