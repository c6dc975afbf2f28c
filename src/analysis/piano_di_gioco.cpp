#include "analysis/piano_di_gioco.h"

#include <array>

#include "analysis/conteggio.h"
#include "archive/ruota.h"

namespace vaticlo {

namespace {

/// The first colpo whose date holds an ambata; 0 for none.
int colpoDellaData(const Previsione& previsione, const ArchivioEstrazioni& archivio) {
  for (int colpo = 1; colpo <= previsione.Colpi; ++colpo)
    for (const int numero : previsione.Ambate)
      for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k)
        if (archivio(previsione.EstrazioneCalcolo + colpo, 0, k) == numero) return colpo;
  return 0;
}

/// The chance that no bet wins on so many wheels at once.
using SenzaVincita = std::array<double, kRuote + 1>;

SenzaVincita senzaVincita(const GiocataSuRuota& giocata) {
  SenzaVincita senza{1};
  const double suUna = giocata.vuota() ? 1 : probabilitaSenzaVincita(giocata);
  for (std::size_t n = 1; n < senza.size(); ++n) senza[n] = senza[n - 1] * suUna;
  return senza;
}

std::size_t quante(unsigned ruote) {
  std::size_t n = 0;
  for (; ruote != 0; ruote &= ruote - 1) ++n;
  return n;
}

}  // namespace

PianoDiGioco pianoDi(const Previsione& previsione, const ArchivioEstrazioni& archivio) {
  PianoDiGioco piano{previsione.EstrazioneCalcolo, previsione.Colpi, 0, 0, giocataDi(previsione)};
  bool data = false;
  for (const int ruota : previsione.Ruote) {
    data = data || ruota == 0;
    if (ruota >= 1 && ruota <= kRuote) piano.ruote |= static_cast<std::uint16_t>(1U << ruota);
  }
  if (data) piano.colpoDellaData = colpoDellaData(previsione, archivio);
  return piano;
}

std::vector<double> probabilitaPerColpo(const PianoDiGioco& piano, const RuoteEstratte& ruote) {
  const auto suRuote = senzaVincita(piano.giocata.suRuota), altrove = senzaVincita(piano.giocata.altrove);
  const bool anche = !piano.giocata.altrove.vuota();
  std::vector<double> perColpo;
  perColpo.reserve(static_cast<std::size_t>(piano.colpi));
  double finora = 1;  // the chance that nothing has won yet
  for (int colpo = 1; colpo <= piano.colpi; ++colpo) {
    const unsigned estratte =
        ruote[static_cast<std::size_t>(piano.estrazione) + static_cast<std::size_t>(colpo)];
    double senza = suRuote[quante(estratte & piano.ruote)];
    if (anche) senza *= altrove[quante(estratte & ~unsigned{piano.ruote})];
    if (colpo == piano.colpoDellaData) senza = 0;
    perColpo.push_back(finora * (1 - senza));
    finora *= senza;
  }
  return perColpo;
}

}  // namespace vaticlo
