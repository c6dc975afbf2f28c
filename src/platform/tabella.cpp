#include "platform/tabella.h"

#include <algorithm>

#include "platform/conversione.h"

namespace vaticlo {

namespace {

std::string traVirgolette(std::string testo) {
  if (testo.find_first_of(";\"\r\n") == std::string::npos) return testo;
  for (std::size_t posto = 0; (posto = testo.find('"', posto)) != std::string::npos; posto += 2)
    testo.insert(posto, 1, '"');
  return '"' + testo + '"';
}

std::string suUnaRiga(std::string testo) {
  std::replace_if(
      testo.begin(), testo.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return testo;
}

template <class Campo>
std::string righe(const Tabella& tabella, char separatore, const char* fine, Campo campo) {
  std::string testo;
  const auto riga = [&](const auto& celle, auto testoDi) {
    for (std::size_t n = 0; n < celle.size(); ++n) {
      if (n > 0) testo += separatore;
      testo += campo(testoDi(celle[n]));
    }
    testo += fine;
  };
  riga(tabella.colonne, [](const Colonna& colonna) { return colonna.nome; });
  for (const auto& celle : tabella.righe) riga(celle, [](const Cella& cella) { return testoCella(cella); });
  return testo;
}

}  // namespace

std::string testoCella(const Cella& cella) {
  if (const auto* testo = std::get_if<std::string>(&cella)) return *testo;
  if (const auto* intero = std::get_if<int>(&cella)) return std::to_string(*intero);
  if (const auto* decimale = std::get_if<double>(&cella)) return testoDiNumero(*decimale);
  return "";
}

std::string testoCella(const Cella& cella, const Colonna& colonna) {
  auto testo = testoCella(cella);
  if (colonna.decimali == 0 || testo.empty() || std::holds_alternative<std::string>(cella)) return testo;
  auto virgola = testo.find(',');
  if (virgola == std::string::npos) {
    virgola = testo.size();
    testo += ',';
  }
  testo.append(virgola + 1 + static_cast<std::size_t>(colonna.decimali) - testo.size(), '0');
  return testo;
}

std::string testoCsv(const Tabella& tabella) { return righe(tabella, ';', "\r\n", traVirgolette); }

std::string testoDaIncollare(const Tabella& tabella) { return righe(tabella, '\t', "\n", suUnaRiga); }

}  // namespace vaticlo
