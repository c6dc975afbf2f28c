#include "console/uscita.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "console/esito.h"
#include "platform/conversione.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"

namespace vaticlo {

namespace {

// "Vincenti %" as "vincentiPercento": words joined, in letters that need no quoting.
std::string nomeJson(std::string_view colonna) {
  std::string nome;
  bool parolaNuova = false;
  for (std::size_t n = 0; n < colonna.size(); ++n) {
    const char c = colonna[n];
    if (colonna.substr(n).starts_with("\u00E0")) {
      nome += 'a';
      ++n;
    } else if (c == '%') {
      nome += "Percento";
    } else if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
      const auto lettera = static_cast<unsigned char>(c);
      nome += static_cast<char>(parolaNuova ? std::toupper(lettera) : std::tolower(lettera));
    }
    parolaNuova = c == ' ';
  }
  return nome;
}

/// Characters of a UTF-8 text, for texts without combining ones.
std::size_t larghezza(const std::string& testo) {
  return static_cast<std::size_t>(
      std::count_if(testo.begin(), testo.end(), [](char c) { return (c & '\xC0') != '\x80'; }));
}

}  // namespace

void stampaAllineata(const Tabella& tabella) {
  std::vector<std::size_t> larghezze;
  larghezze.reserve(tabella.colonne.size());
  for (const auto& colonna : tabella.colonne) larghezze.push_back(larghezza(colonna.nome));
  for (const auto& celle : tabella.righe)
    for (std::size_t n = 0; n < celle.size(); ++n)
      larghezze[n] = std::max(larghezze[n], larghezza(testoCella(celle[n])));

  const auto stampaRiga = [&](const auto& celle, auto testoDi, auto aSinistra) {
    std::string riga;
    for (std::size_t n = 0; n < celle.size(); ++n) {
      const std::string testo = testoDi(celle[n]);
      const std::string bianchi(larghezze[n] - larghezza(testo), ' ');
      riga += (n > 0 ? "  " : "") + (aSinistra(n) ? testo + bianchi : bianchi + testo);
    }
    std::cout << riga.substr(0, riga.find_last_not_of(' ') + 1) << '\n';
  };
  const auto testi = [&](std::size_t n) { return tabella.colonne[n].tipo != Colonna::Tipo::Numero; };
  stampaRiga(
      tabella.colonne, [](const Colonna& colonna) { return colonna.nome; }, testi);
  for (const auto& celle : tabella.righe)
    stampaRiga(
        celle, [](const Cella& cella) { return testoCella(cella); }, testi);
}

Cella numeroOTesto(const std::string& testo) {
  const auto numero = interoTra(testo, 0, INT16_MAX);
  return numero ? Cella(*numero) : Cella(testo);
}

Json valore(const Cella& cella) {
  return std::visit(
      [](const auto& valore) -> Json {
        if constexpr (std::is_same_v<std::decay_t<decltype(valore)>, std::monostate>)
          return nullptr;
        else
          return valore;
      },
      cella);
}

Json righe(const Tabella& tabella) {
  auto righe = Json::array();
  for (const auto& celle : tabella.righe) {
    auto& riga = righe.emplace_back(Json::object());
    for (std::size_t n = 0; n < celle.size(); ++n) riga[nomeJson(tabella.colonne[n].nome)] = valore(celle[n]);
  }
  return righe;
}

void stampa(const Uscita& uscita, const Argomenti& argomenti) {
  const auto csv = argomenti.seDato("--csv");
  const bool json = argomenti.seDato("--json").has_value();
  if (json && csv == "-") throw UsoErrato("--json e --csv - scrivono nello stesso luogo: uno dei due");
  if (csv && *csv != "-") {
    const auto ottetti = testoCsv(uscita.tabella);
    scriviFile(percorsoDa(*csv),
               std::span(reinterpret_cast<const std::uint8_t*>(ottetti.data()), ottetti.size()),
               Scrittura::Intera);
  }
  if (json)
    // A method's name may hold bytes that are no UTF-8.
    std::cout << uscita.oggetto.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  else if (csv == "-")
    std::cout << testoCsv(uscita.tabella);
  else if (uscita.testo)
    uscita.testo();
  else
    stampaAllineata(uscita.tabella);
}

}  // namespace vaticlo
