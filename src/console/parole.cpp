#include "console/parole.h"

namespace vaticlo {

ParoleDellaRiga paroleDellaRiga(std::string_view riga) {
  ParoleDellaRiga letta;
  auto& parole = letta.parole;
  if (riga.ends_with('\r')) riga.remove_suffix(1);
  const auto inizio = riga.find_first_not_of(" \t");
  if (inizio == std::string_view::npos || riga[inizio] == '#') return letta;

  bool nellaParola = false;
  char virgolette = 0;
  std::string parola;
  for (std::size_t i = inizio; i < riga.size(); ++i) {
    const char c = riga[i];
    if (virgolette == 0 && (c == ' ' || c == '\t')) {
      if (nellaParola) parole.push_back(std::move(parola));
      parola.clear();
      nellaParola = false;
      continue;
    }
    nellaParola = true;
    if (virgolette == 0 && (c == '\'' || c == '"')) {
      virgolette = c;
    } else if (c == virgolette) {
      virgolette = 0;
    } else if (c == '\\' && virgolette != '\'') {
      // Within double quotes a backslash stands for itself, except before a quote or a backslash.
      const bool segue = i + 1 < riga.size();
      if (!segue) return {{}, "finisce con una barra rovesciata: un comando sta su una riga sola"};
      const char prossimo = riga[i + 1];
      if (virgolette == '"' && std::string_view("\"\\$`").find(prossimo) == std::string_view::npos) {
        parola += c;
      } else {
        parola += prossimo;
        ++i;
      }
    } else {
      parola += c;
    }
  }
  if (virgolette != 0) return {{}, "virgolette non chiuse"};
  if (nellaParola) parole.push_back(std::move(parola));
  return letta;
}

}  // namespace vaticlo
