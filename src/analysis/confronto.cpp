#include "analysis/confronto.h"

#include <numeric>
#include <utility>

namespace vaticlo {

namespace {

constexpr int kFuoriBanda = 20;  // one run in so many lies below the band, and one above it

template <class Conto>
void aggiungiAlColpo(std::vector<Conto>& perColpo, int colpo, Conto quanto) {
  const auto posto = static_cast<std::size_t>(colpo - 1);
  if (perColpo.size() <= posto) perColpo.resize(posto + 1);
  perColpo[posto] += quanto;
}

/// The concluded predictions of one method, with all that is known of them without any run.
struct Campione {
  Confronto confronto;
  GruppoGiocato gruppo;
  std::vector<int> colpi;                     ///< of the win of each prediction, 0 for none
  std::vector<std::vector<double>> perColpo;  ///< its chances
};

Campione campioneDi(const MetodoGiudicato& metodo, const RuoteEstratte& ruote) {
  Campione campione;
  auto& confronto = campione.confronto;
  confronto.nome = metodo.nome;
  for (const auto& giudicata : metodo.previsioni) {
    if (!giudicata.esito) ++confronto.nonGiudicabili;
    if (!giudicata.conclusa) continue;
    const auto& piano = campione.gruppo.piani.emplace_back(*giudicata.conclusa);
    const auto& perColpo = campione.perColpo.emplace_back(probabilitaPerColpo(piano, ruote));
    campione.colpi.push_back(giudicata.esito->colpo);
    ++confronto.concluse;
    if (const int colpo = giudicata.esito->colpo; colpo > 0) {
      ++confronto.vincenti;
      aggiungiAlColpo(confronto.vincentiPerColpo, colpo, 1);
    }
    confronto.attese += std::accumulate(perColpo.begin(), perColpo.end(), 0.0);
    for (std::size_t c = 0; c < perColpo.size(); ++c)
      aggiungiAlColpo(confronto.attesePerColpo, static_cast<int>(c) + 1, perColpo[c]);
  }
  confronto.vincentiPerColpo.resize(confronto.attesePerColpo.size());
  return campione;
}

/// What happened and what was to be expected, step by step; the band is still to come.
std::vector<PuntoAndamento> andamentoDi(const Campione& campione, const AsseDelTempo& asse) {
  std::vector<PuntoAndamento> punti(static_cast<std::size_t>(asse.passi()));
  for (std::size_t n = 0; n < campione.colpi.size(); ++n) {
    const int calcolo = campione.gruppo.piani[n].estrazione;
    if (const int colpo = campione.colpi[n]; colpo > 0) ++punti[asse.passo(calcolo + colpo)].vincenti;
    for (std::size_t c = 0; c < campione.perColpo[n].size(); ++c)
      punti[asse.passo(calcolo + static_cast<int>(c) + 1)].attese += campione.perColpo[n][c];
  }
  for (std::size_t p = 0; p < punti.size(); ++p) {
    punti[p].estrazione = asse.fine(p);
    if (p == 0) continue;
    punti[p].vincenti += punti[p - 1].vincenti;
    punti[p].attese += punti[p - 1].attese;
  }
  return punti;
}

void somma(std::vector<PuntoAndamento>& somme, const std::vector<PuntoAndamento>& punti) {
  if (somme.empty()) {
    somme = punti;
    return;
  }
  for (std::size_t p = 0; p < punti.size(); ++p) {
    somme[p].vincenti += punti[p].vincenti;
    somme[p].attese += punti[p].attese;
  }
}

Confronto insiemeDi(const std::vector<Campione>& campioni, int nonGiudicabili) {
  Confronto insieme;
  insieme.nome = "Tutti";
  insieme.nonGiudicabili = nonGiudicabili;
  for (const auto& campione : campioni) {
    const auto& uno = campione.confronto;
    insieme.concluse += uno.concluse;
    insieme.vincenti += uno.vincenti;
    insieme.attese += uno.attese;
    for (std::size_t c = 0; c < uno.attesePerColpo.size(); ++c) {
      aggiungiAlColpo(insieme.vincentiPerColpo, static_cast<int>(c) + 1, uno.vincentiPerColpo[c]);
      aggiungiAlColpo(insieme.attesePerColpo, static_cast<int>(c) + 1, uno.attesePerColpo[c]);
    }
    somma(insieme.andamento, uno.andamento);
  }
  return insieme;
}

/// The least number of winners that leaves at most `fuori` runs below it.
int quantile(const std::vector<std::uint32_t>& prove, std::uint32_t fuori) {
  std::uint32_t sotto = 0;
  std::size_t vincenti = 0;
  while (vincenti + 1 < prove.size() && sotto + prove[vincenti] <= fuori) sotto += prove[vincenti++];
  return static_cast<int>(vincenti);
}

void metti(Confronto& confronto, EsitoProve esito, int prove) {
  confronto.prove = prove;
  for (std::size_t v = 0; v < esito.vincenti.size(); ++v) {
    if (static_cast<int>(v) >= confronto.vincenti) confronto.almeno += static_cast<int>(esito.vincenti[v]);
    if (static_cast<int>(v) <= confronto.vincenti) confronto.alPiu += static_cast<int>(esito.vincenti[v]);
  }
  const auto fuori = static_cast<std::uint32_t>(prove / kFuoriBanda);
  for (std::size_t p = 0; prove > 0 && p < confronto.andamento.size(); ++p) {
    confronto.andamento[p].basso = quantile(esito.andamento[p], fuori);
    confronto.andamento[p].alto = quantile(esito.andamento[p], static_cast<std::uint32_t>(prove) - fuori - 1);
  }
  confronto.distribuzione = std::move(esito.vincenti);
}

}  // namespace

std::vector<Confronto> confrontaColCaso(const std::vector<MetodoGiudicato>& metodi,
                                        const ArchivioEstrazioni& archivio, const OpzioniProve& opzioni,
                                        std::stop_token fermata,
                                        const std::function<void(int fatte)>& avanzamento) {
  const auto ruote = ruoteEstratte(archivio);
  std::vector<Campione> campioni;
  std::vector<GruppoGiocato> gruppi;
  int nonGiudicabili = 0;
  for (const auto& metodo : metodi) {
    auto campione = campioneDi(metodo, ruote);
    nonGiudicabili += campione.confronto.nonGiudicabili;
    if (campione.confronto.concluse == 0) continue;
    gruppi.push_back(campione.gruppo);
    campioni.push_back(std::move(campione));
  }
  if (campioni.empty()) return {};

  auto risultato = provaIlCaso(gruppi, ruote, opzioni, std::move(fermata), avanzamento);
  for (auto& campione : campioni) campione.confronto.andamento = andamentoDi(campione, risultato.asse);
  std::vector<Confronto> confronti;
  confronti.reserve(campioni.size() + 1);
  for (auto& campione : campioni) confronti.push_back(campione.confronto);
  for (std::size_t n = 0; n < confronti.size(); ++n)
    metti(confronti[n], std::move(risultato.gruppi[n]), risultato.prove);
  if (campioni.size() > 1)
    metti(confronti.emplace_back(insiemeDi(campioni, nonGiudicabili)), std::move(risultato.insieme),
          risultato.prove);
  return confronti;
}

}  // namespace vaticlo
