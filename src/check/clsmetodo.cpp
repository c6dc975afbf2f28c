#include "check/clsmetodo.h"

#include <optional>

#include "methods/testi_previsione.h"
#include "platform/conversione.h"
#include "platform/failure.h"
#include "program/rapporti.h"

namespace vaticlo {

clsMetodo::clsMetodo(Programma& programma, SceltaVerifica scelta)
    : programma_(programma),
      g_(programma.globals),
      scelta_(std::move(scelta)),
      archivio_(ApriArchivio(programma.cartella)),
      regole_(archivio_),
      rapporto_(programma.cartella.file(kFileEsiti)) {
  g_.ContaGiocabili = 0;
  g_.ContaVincenti = 0;
  g_.ContaInGioco = 0;
  g_.RapportiInteri = true;
}

void clsMetodo::ricerca([[maybe_unused]] int estrazione) {
  // Meant: the draw to match is the one that the dialog shows, and the argument plays no part.
  try {
    ScorriMetodi();
  } catch (const RuntimeFailure&) {
    // What was written stays, and the run ends here. Meant: nobody is told (guide: "La decima previsione di
    // un metodo").
  }
}

void clsMetodo::rilascia() { concludi(rapporto_, programma_); }

void clsMetodo::ScorriMetodi() {
  g_.ElencoMetodi = CaricaElencoMetodi(programma_.cartella, scelta_.metodo);
  std::optional<std::int16_t> mostrata;  // a label that is no number fails at the first prediction only
  for (const auto& nome : g_.ElencoMetodi) {
    const auto metodo = LeggiMetodo(programma_.cartella, nome);
    const int previsioni = ContaPrevisioni(metodo);
    for (int slot = 1; slot <= previsioni; ++slot) {
      if (!mostrata) mostrata = inIntero16(scelta_.lblnestr);
      if (*mostrata != metodo.EstrazioneCalcolo(slot)) continue;
      decodificatore_.DecodificaPrevisione(metodo, slot, g_.previsione);
      RiportaPrevisione(g_.previsione.Colpi, nome);
    }
  }
}

void clsMetodo::RiportaPrevisione(int colpi, const std::string& metodo) {
  auto& previsione = g_.previsione;
  rapporto_.riga(" Previsione n.°", ++g_.ContaGiocabili);
  rapporto_.riga(" Metodo: ", metodo);
  scriviTelefono(rapporto_, previsione);
  const int ancora = g_.EstrazioneCorrente + colpi - g_.UltimaEstrazione;
  if (ancora > 0) rapporto_.riga(" Colpi ancora in gioco: ", ancora);
  scriviGiocate(rapporto_, previsione);
  rapporto_.riga();
  rapporto_.riga(kRigaEsito);
  if (ControllaColpi(colpi)) ++g_.ContaVincenti;
  rapporto_.riga(kRigaChiusura);
  previsione.lasciaGiocate();
}

bool clsMetodo::ControllaColpi(int colpi) {
  bool vinto = false;
  for (ColpoCorrente_ = 1; ColpoCorrente_ <= colpi; ++ColpoCorrente_) {
    const int d = g_.EstrazioneBase + ColpoCorrente_;
    if (d > g_.UltimaEstrazione) continue;
    vinto |= giudicaColpo(g_.previsione, regole_, d, FlagTutte::PrimaRuota, *this);
  }
  if (vinto) return true;
  // Meant: one draw stricter than the play period. With all colpi played and lost, the last one on the last
  // draw, a prediction is still in play (guide: "Le parole degli esiti").
  if (g_.EstrazioneBase + ColpoCorrente_ <= g_.UltimaEstrazione) {
    rapporto_.riga(kRigaNegativo);
  } else {
    ++g_.ContaInGioco;
    rapporto_.riga(kRigaInGioco);
  }
  return false;
}

void eseguiVerifica(Programma& programma, SceltaVerifica scelta) {
  clsMetodo controllo(programma, std::move(scelta));
  controllo.ricerca(programma.globals.EstrazioneCorrente);
  controllo.rilascia();
}

void clsMetodo::ambata(int numero, int ruota) { rapporto_.riga(rigaAmbata(numero, ruota, ColpoCorrente_)); }

void clsMetodo::ambo(int a, int b, int ruota) { rapporto_.riga(rigaAmbo(a, b, ruota, ColpoCorrente_)); }

void clsMetodo::amboTutte(int a, int b, int ruota) {
  rapporto_.riga(rigaAmboTutte(a, b, ruota, ColpoCorrente_));
}

void clsMetodo::sorte(const std::vector<int>& usciti, int ruota) {
  rapporto_.riga(rigaNumeri(inizioSorte(usciti.size()), usciti, ruota, ColpoCorrente_));
}

}  // namespace vaticlo
