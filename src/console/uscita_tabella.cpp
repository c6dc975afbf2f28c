#include "console/uscita_tabella.h"

#include <algorithm>
#include <iostream>
#include <span>

#include <nlohmann/json.hpp>

#include "console/esito.h"
#include "platform/file_intero.h"

namespace vaticlo {

namespace {

std::string testoJson(const Tabella& tabella) {
  auto righe = nlohmann::ordered_json::array();
  for (const auto& celle : tabella.righe) {
    auto& riga = righe.emplace_back(nlohmann::ordered_json::object());
    for (std::size_t n = 0; n < celle.size(); ++n)
      std::visit(
          [&](const auto& valore) {
            if constexpr (std::is_same_v<std::decay_t<decltype(valore)>, std::monostate>)
              riga[tabella.colonne[n].nome] = nullptr;
            else
              riga[tabella.colonne[n].nome] = valore;
          },
          celle[n]);
  }
  // A method's name may hold bytes that are no UTF-8.
  return righe.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

/// Characters of a UTF-8 text, for texts without combining ones.
std::size_t larghezza(const std::string& testo) {
  return static_cast<std::size_t>(
      std::count_if(testo.begin(), testo.end(), [](char c) { return (c & '\xC0') != '\x80'; }));
}

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

}  // namespace

void stampa(const Tabella& tabella, const Argomenti& argomenti, const std::function<void()>& testo) {
  const auto csv = argomenti.seDato("--csv");
  const bool json = argomenti.seDato("--json").has_value();
  if (json && csv == "-") throw UsoErrato("--json e --csv - scrivono nello stesso luogo: uno dei due");
  if (csv && *csv != "-") {
    const auto ottetti = testoCsv(tabella);
    scriviFile(*csv, std::span(reinterpret_cast<const std::uint8_t*>(ottetti.data()), ottetti.size()),
               Scrittura::Intera);
  }
  if (json)
    std::cout << testoJson(tabella);
  else if (csv == "-")
    std::cout << testoCsv(tabella);
  else
    testo();
}

void stampa(const Tabella& tabella, const Argomenti& argomenti) {
  stampa(tabella, argomenti, [&] { stampaAllineata(tabella); });
}

}  // namespace vaticlo
