#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/situazione.h"
#include "archive/data.h"
#include "dialogs/frm_principale_tavole.h"
#include "program/programma.h"

namespace vaticlo {

/// What the empty area of the main window says, ready to be drawn.
struct PaginaIniziale {
  struct Sezione {
    std::string titolo;
    std::vector<std::string> righe;
  };
  std::string archivio;  ///< "7.270 estrazioni, l'ultima del 27/02/2026, 3 giorni fa"
  std::vector<Sezione> sezioni;
  std::string inBreve;  ///< the same for the status bar: "7.270 estrazioni · ultima 27/02/2026"
  bool archivioVuoto = false;
};

/// Each list is cut to what can be taken in at a glance, and says how many more there are.
[[nodiscard]] PaginaIniziale paginaIniziale(const Situazione& situazione, const Data& oggi);

/// Reads the folder anew. What can't be read is said on the page.
[[nodiscard]] PaginaIniziale paginaIniziale(const Programma& programma);

/// A button of the page.
struct PulsanteIniziale {
  std::string_view nome;
  std::string_view caption;
  Azione azione;
  bool soloSeVuoto = false;  ///< only while the archive has no draws
};
[[nodiscard]] std::span<const PulsanteIniziale> pulsantiIniziali();

}  // namespace vaticlo
