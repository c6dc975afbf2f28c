#include "statistics/clsstatistica.h"

#include "archive/ruota.h"
#include "methods/scansione.h"
#include "platform/failure.h"
#include "program/rapporti.h"
#include "statistics/giudizio_statistica.h"

namespace vaticlo {

clsStatistica::clsStatistica(Programma& programma, PannelloCorsa& frm)
    : programma_(programma),
      g_(programma.globals),
      frm_(frm),
      archivio_(ApriArchivio(programma.cartella)),
      regole_(archivio_),
      prevGioco_(programma.cartella.file(kFilePrevGioco)),
      vincite_(programma.cartella.file(kFileVincite)),
      stat_(programma.cartella.file(kFileStat)) {
  g_.ContaGiocabili = 0;
  g_.ContaNonGiocabili = 0;
  g_.ContaVincenti = 0;
  g_.ContaInGioco = 0;
  g_.RapportiInteri = true;
}

void clsStatistica::rilascia() {
  for (auto* rapporto : {&stat_, &prevGioco_, &vincite_}) concludi(*rapporto, programma_);
}

void clsStatistica::Inizia(std::int16_t inizio, std::int16_t fine) {
  frm_.prgbar_Value(0);
  frm_.corsaIniziata();
  g_.StopElaborazione = false;
  g_.ElencoMetodi.clear();
  try {
    g_.ElencoMetodi = CaricaElencoMetodi(programma_.cartella, frm_.scelta(), NomeSenzaDat::VoceVuota);
  } catch (const RuntimeFailure&) {
    // A folder that can't be read: a run without methods.
  }

  // Meant: the methods 2 to 10 of the toolbar have no scan: totals alone, with the bets of the last scan
  // (guide: "La statistica si apre dal menu").
  if (g_.MetodoScelto == 1) {
    frm_.prgbar_Max(fine - inizio + 1);
    azzeraGiocate();
    MetodiDellaCorsa metodi(programma_.cartella, g_.ElencoMetodi, inizio, fine);
    for (int d = inizio; d <= fine; ++d) {
      if (g_.StopElaborazione) {
        frm_.corsaInterrotta();
        return;
      }
      g_.mostra(d);
      try {
        StatMetodo1(d, metodi);
      } catch (const RuntimeFailure&) {
        // The rest of this draw is lost, the run goes on.
      }
      frm_.prgbar_Value(d - inizio + 1);
      programma_.servizi.eventiInAttesa();
    }
  }
  scriviTotali(inizio, fine);
}

void clsStatistica::azzeraGiocate() {
  g_.AmbateVincenti = 0;
  g_.AmbiRuota = 0;
  // Meant: AmbiTutte is not among them, it grows from run to run (guide: "Altri limiti della statistica").
  g_.AmbiSorti = 0;
  g_.TerniSorti = 0;
  g_.QuaterneSorti = 0;
  g_.CinquineSorti = 0;
}

void clsStatistica::StatMetodo1(int estrazione, MetodiDellaCorsa& metodi) {
  decodificatore_ = {};  // the working pair of the ambi starts anew with each draw, unlike in the other scans
  metodi.scorri(estrazione, [this](const FileMetodo& metodo, int slot, std::size_t indice) {
    decodificatore_.DecodificaPrevisione(metodo, slot, g_.previsione);
    StatPrevisione(g_.previsione.Colpi, g_.ElencoMetodi[indice]);
  });
}

void clsStatistica::StatPrevisione(int colpi, const std::string& metodo) {
  ++g_.ContaGiocabili;
  const bool vincente = StatColpi(colpi, metodo);
  if (vincente) ++g_.ContaVincenti;
  if (vincente || g_.EstrazioneCorrente + colpi <= g_.UltimaEstrazione) scriviVincita(metodo, vincente);
}

bool clsStatistica::StatColpi(int colpi, const std::string& metodo) {
  g_.TestoEsito.clear();
  const auto esito = giudicaPrevisione(g_.previsione, regole_, g_.UltimaEstrazione, *this);
  if (esito.stato == StatoPrevisione::InGioco) {
    ++g_.ContaInGioco;
    scriviInGioco(colpi, metodo);
  }
  if (esito.stato != StatoPrevisione::Vincente) return false;
  g_.TestoEsito += " " + std::to_string(esito.colpo) + "° colpo\r\n";
  return true;
}

void clsStatistica::ambata(int numero, int ruota) {
  ++g_.AmbateVincenti;
  g_.TestoEsito.append(" E ")
      .append(std::to_string(numero))
      .append(" ")
      .append(SiglaRuota(ruota))
      .append(" **");
}

void clsStatistica::ambo(int a, int b, int ruota) {
  ++g_.AmbiRuota;
  g_.TestoEsito += " A " + std::to_string(a) + "-" + std::to_string(b) + " ";
  g_.TestoEsito.append(SiglaRuota(ruota)).append(" **");
}

void clsStatistica::amboTutte(int a, int b, int ruota) {
  ++g_.AmbiTutte;
  g_.TestoEsito += " A " + std::to_string(a) + "-" + std::to_string(b) + " Tu(";
  g_.TestoEsito.append(SiglaRuota(ruota)).append(") **");
}

void clsStatistica::sorte(const std::vector<int>& usciti, int ruota) {
  // A higher hit counts all that it contains: a terno is one terno and three ambi.
  struct Conteggio {
    const char* codice;
    int cinquine, quaterne, terni, ambi;
  };
  static constexpr std::array<Conteggio, 4> kConteggi = {
      {{" Al", 0, 0, 0, 1}, {" Tl", 0, 0, 1, 3}, {" Ql", 0, 1, 4, 6}, {" Cl", 1, 5, 10, 10}}};
  const auto& conteggio = kConteggi.at(usciti.size() - 2);
  g_.CinquineSorti += conteggio.cinquine;
  g_.QuaterneSorti += conteggio.quaterne;
  g_.TerniSorti += conteggio.terni;
  g_.AmbiSorti += conteggio.ambi;
  g_.TestoEsito += conteggio.codice;
  for (const int numero : usciti) g_.TestoEsito += " " + std::to_string(numero);
  g_.TestoEsito.append(" ").append(SiglaRuota(ruota)).append(" **");
}

}  // namespace vaticlo
