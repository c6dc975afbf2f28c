#include "dialogs/figure_caso.h"

#include <algorithm>
#include <utility>

#include "dialogs/quanti.h"
#include "platform/conversione.h"

namespace vaticlo {

namespace {

constexpr auto kNumero = Colonna::Tipo::Numero;

std::string decimali(double valore, int quanti = 1) { return testoDiNumero(arrotonda(valore, quanti)); }

std::string vincentiInParole(int vincenti) { return quanti(vincenti, "vincente", "vincenti"); }

double percento(double parte, int intero) { return intero == 0 ? 0 : 100.0 * parte / intero; }

/// The numbers of winners worth a place: those of any run, and that of the method.
std::pair<int, int> estremi(const Confronto& confronto) {
  int meno = confronto.vincenti, piu = confronto.vincenti;
  for (std::size_t v = 0; v < confronto.distribuzione.size(); ++v) {
    if (confronto.distribuzione[v] == 0) continue;
    meno = std::min(meno, static_cast<int>(v));
    piu = std::max(piu, static_cast<int>(v));
  }
  return {meno, piu};
}

int proveCon(const Confronto& confronto, int vincenti) {
  return static_cast<int>(confronto.distribuzione.at(static_cast<std::size_t>(vincenti)));
}

Disegno vincenti(const Confronto& confronto) {
  Disegno disegno;
  const auto [meno, piu] = estremi(confronto);
  disegno.titolo = confronto.nome + ": le vincenti nelle prove a caso";
  disegno.descrizione = "Nelle prove a caso le vincenti vanno da " + std::to_string(meno) + " a " +
                        std::to_string(piu) + "; se ne attendono " + decimali(confronto.attese) +
                        ", il vostro risultato è " + std::to_string(confronto.vincenti) + ".";
  disegno.asseX = "Previsioni vincenti";
  disegno.asseY = "Prove";
  Serie prove{.nome = "Prove a caso"};
  for (int v = meno; v <= piu; ++v) {
    disegno.posti.push_back(v);
    prove.valori.push_back(proveCon(confronto, v));
    disegno.letture.push_back(vincentiInParole(v) + ": " + quanti(proveCon(confronto, v), "prova", "prove") +
                              " su " + std::to_string(confronto.prove));
  }
  disegno.serie.push_back(std::move(prove));
  disegno.segni = {{.dove = static_cast<double>(confronto.vincenti),
                    .testo = "il vostro risultato: " + std::to_string(confronto.vincenti)},
                   {.dove = confronto.attese,
                    .testo = "attese: " + decimali(confronto.attese),
                    .ruolo = Serie::Ruolo::Caso}};
  return disegno;
}

Disegno colpi(const Confronto& confronto) {
  Disegno disegno;
  disegno.titolo = confronto.nome + ": a quale colpo si vince";
  disegno.descrizione = "Per ogni colpo le previsioni vincenti, e quante se ne attendono per caso.";
  disegno.asseX = "Colpo";
  disegno.asseY = "Previsioni vincenti";
  Serie vinte{.nome = "Vincenti", .ruolo = Serie::Ruolo::Proprio}, attese{.nome = "Attese per caso"};
  for (std::size_t c = 0; c < confronto.attesePerColpo.size(); ++c) {
    disegno.posti.push_back(static_cast<double>(c + 1));
    vinte.valori.push_back(confronto.vincentiPerColpo[c]);
    attese.valori.push_back(confronto.attesePerColpo[c]);
    disegno.letture.push_back(std::to_string(c + 1) +
                              "° colpo: " + vincentiInParole(confronto.vincentiPerColpo[c]) + ", attese " +
                              decimali(confronto.attesePerColpo[c]));
  }
  disegno.serie = {std::move(vinte), std::move(attese)};
  return disegno;
}

Disegno tempo(const Confronto& confronto, const ArchivioEstrazioni& archivio) {
  Disegno disegno;
  disegno.titolo = confronto.nome + ": le vincenti nel tempo";
  disegno.descrizione =
      "Le previsioni vincenti fino a ogni estrazione, quante se ne attendono per caso, e tra quali numeri "
      "stanno nove prove su dieci.";
  disegno.asseX = "Fino all'estrazione del";
  disegno.asseY = "Previsioni vincenti";
  Serie vinte{.nome = "Vincenti", .forma = Serie::Forma::Linea, .ruolo = Serie::Ruolo::Proprio};
  Serie attese{.nome = "Attese per caso", .forma = Serie::Forma::Linea};
  Serie banda{.nome = "Nove prove su dieci", .forma = Serie::Forma::Banda};
  for (const auto& punto : confronto.andamento) {
    const auto data = archivio.DataEstrazione(punto.estrazione);
    disegno.posti.push_back(punto.estrazione);
    disegno.nomi.push_back(data);
    vinte.valori.push_back(punto.vincenti);
    attese.valori.push_back(punto.attese);
    banda.valori.push_back(punto.basso);
    banda.fino.push_back(punto.alto);
    disegno.letture.push_back("Fino all'estrazione " + std::to_string(punto.estrazione) + " del " + data +
                              ": " + vincentiInParole(punto.vincenti) + ", attese " + decimali(punto.attese));
    if (confronto.prove > 0)
      disegno.letture.back() +=
          "\nNove prove su dieci: da " + std::to_string(punto.basso) + " a " + std::to_string(punto.alto);
  }
  if (confronto.prove > 0) disegno.serie.push_back(std::move(banda));
  disegno.serie.push_back(std::move(attese));
  disegno.serie.push_back(std::move(vinte));
  return disegno;
}

Tabella cifreVincenti(const Confronto& confronto) {
  Tabella tabella{{{"Vincenti", kNumero},
                   {"Prove", kNumero, 0, "Quante prove a caso ne hanno fatte così tante"},
                   {"Prove %", kNumero, 1},
                   {"Con almeno %", kNumero, 1, "Quante prove ne hanno fatte così tante o di più"}},
                  {}};
  const auto [meno, piu] = estremi(confronto);
  int almeno = confronto.prove;
  for (int v = meno; v <= piu; ++v) {
    const int prove = proveCon(confronto, v);
    tabella.righe.push_back({v, prove, arrotonda(percento(prove, confronto.prove), 1),
                             arrotonda(percento(almeno, confronto.prove), 1)});
    almeno -= prove;
  }
  return tabella;
}

Tabella cifreColpi(const Confronto& confronto) {
  Tabella tabella{{{"Colpo", kNumero}, {"Vincenti", kNumero}, {"Attese", kNumero, 2}}, {}};
  for (std::size_t c = 0; c < confronto.attesePerColpo.size(); ++c)
    tabella.righe.push_back(
        {static_cast<int>(c) + 1, confronto.vincentiPerColpo[c], arrotonda(confronto.attesePerColpo[c], 2)});
  return tabella;
}

Tabella cifreTempo(const Confronto& confronto, const ArchivioEstrazioni& archivio) {
  Tabella tabella{{{"Estrazione", kNumero},
                   {"Data", Colonna::Tipo::Giorno},
                   {"Vincenti", kNumero, 0, "Fino a questa estrazione"},
                   {"Attese", kNumero, 2},
                   {"Da", kNumero, 0, "Una prova su venti ne ha di meno"},
                   {"A", kNumero, 0, "Una prova su venti ne ha di più"}},
                  {}};
  for (const auto& punto : confronto.andamento) {
    tabella.righe.push_back({punto.estrazione, archivio.DataEstrazione(punto.estrazione), punto.vincenti,
                             arrotonda(punto.attese, 2), Cella(), Cella()});
    if (confronto.prove == 0) continue;
    tabella.righe.back()[4] = punto.basso;
    tabella.righe.back()[5] = punto.alto;
  }
  return tabella;
}

}  // namespace

Disegno disegnoDel(const Confronto& confronto, FiguraCaso figura, const ArchivioEstrazioni& archivio) {
  switch (figura) {
    case FiguraCaso::Colpi:
      return colpi(confronto);
    case FiguraCaso::Tempo:
      return tempo(confronto, archivio);
    case FiguraCaso::Vincenti:
      break;
  }
  return vincenti(confronto);
}

Tabella cifreDel(const Confronto& confronto, FiguraCaso figura, const ArchivioEstrazioni& archivio) {
  switch (figura) {
    case FiguraCaso::Colpi:
      return cifreColpi(confronto);
    case FiguraCaso::Tempo:
      return cifreTempo(confronto, archivio);
    case FiguraCaso::Vincenti:
      break;
  }
  return cifreVincenti(confronto);
}

}  // namespace vaticlo
