#include "analysis/quadro.h"

#include <numeric>

#include "platform/failure.h"

namespace vaticlo {

namespace {

std::optional<double> rapporto(double parte, int intero, double scala) {
  if (intero == 0) return std::nullopt;
  return parte / intero * scala;
}

void conta(RigaQuadro& riga, const PrevisioneGiudicata& giudicata) {
  if (!giudicata.nellaStatistica) return;
  ++riga.giocate;
  const auto esito = giudicata.esito.value_or(EsitoPrevisione{});
  switch (esito.stato) {
    case StatoPrevisione::Vincente:
      ++riga.vincenti;
      riga.colpiVinti += esito.colpo;
      break;
    case StatoPrevisione::Negativa:
      ++riga.negative;
      break;
    case StatoPrevisione::InGioco:
      ++riga.inGioco;
      break;
  }
}

}  // namespace

std::string_view testoStato(StatoMetodo stato) {
  switch (stato) {
    case StatoMetodo::DieciPrevisioni:
      return "dieci previsioni";
    case StatoMetodo::Illeggibile:
      return "illeggibile";
    case StatoMetodo::PrevisioniNonViste:
      return "previsioni non viste";
    case StatoMetodo::Regolare:
      break;
  }
  return "";
}

StatoMetodo statoDi(const MetodoLetto& lettura) {
  // The walk over the slots is the only step of the reading that leaves a grid.
  if (lettura.guasto)
    return lettura.guasto->errore() == Errore::Indice ? StatoMetodo::DieciPrevisioni
                                                      : StatoMetodo::Illeggibile;
  return lettura.nonViste ? StatoMetodo::PrevisioniNonViste : StatoMetodo::Regolare;
}

std::optional<double> RigaQuadro::quotaVincenti() const { return rapporto(vincenti, giocate - inGioco, 100); }
std::optional<double> RigaQuadro::quotaAttese() const { return rapporto(attese, concluse, 100); }
std::optional<double> RigaQuadro::colpoMedio() const { return rapporto(colpiVinti, vincenti, 1); }

std::vector<RigaQuadro> quadroDei(const std::vector<MetodoGiudicato>& metodi,
                                  const ArchivioEstrazioni& archivio) {
  const auto ruote = ruoteEstratte(archivio);
  std::vector<RigaQuadro> righe;
  for (const auto& metodo : metodi) {
    auto& riga = righe.emplace_back();
    riga.metodo = metodo.nome;
    riga.stato = statoDi(metodo.lettura);
    riga.previsioni = metodo.lettura.previsioni;
    for (const auto& giudicata : metodo.previsioni) {
      conta(riga, giudicata);
      if (!giudicata.conclusa) continue;
      ++riga.concluse;
      const auto perColpo = probabilitaPerColpo(*giudicata.conclusa, ruote);
      riga.attese += std::accumulate(perColpo.begin(), perColpo.end(), 0.0);
    }
  }
  return righe;
}

}  // namespace vaticlo
