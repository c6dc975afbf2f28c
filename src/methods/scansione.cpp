#include "methods/scansione.h"

#include "methods/spiegazioni.h"
#include "methods/testi_previsione.h"
#include "platform/conversione.h"
#include "program/rapporti.h"

namespace vaticlo {

ScansionePrevisioni::ScansionePrevisioni(Programma& programma, PannelloScansione& frm)
    : programma_(programma),
      g_(programma.globals),
      frm_(frm),
      archivio_(ApriArchivio(programma.cartella)),
      regole_(archivio_) {}

void ScansionePrevisioni::PrevInGioco() {
  g_.SoloVincenti = false;
  scorriMetodi(programma_.cartella.file(kFilePrevGioco));
}

void ScansionePrevisioni::PrevVincenti() {
  g_.SoloVincenti = true;
  scorriMetodi(programma_.cartella.file(kFileVincenti));
}

void ScansionePrevisioni::scorriMetodi(const std::filesystem::path& percorso) {
  g_.ElencoMetodi.clear();
  g_.apriSullUltima(archivio_.PrimoIndiceLibero());
  if (g_.SoloVincenti) UltimeEstrazioni_ = inIntero16(frm_.txtColpi_Text());

  FileRapporto rapporto(percorso);
  g_.RapportiInteri = true;
  g_.ElencoMetodi = CaricaElencoMetodi(programma_.cartella, frm_.scelta());
  frm_.prgbar_Value(0);
  frm_.prgbar_Max(g_.NumeroMetodi());
  g_.ContaGiocabili = 0;

  int fatti = 0;
  for (const auto& nome : g_.ElencoMetodi) {
    const auto metodo = LeggiMetodo(programma_.cartella, nome);
    int slot = 0;
    try {
      const int previsioni = ContaPrevisioni(metodo);
      for (slot = 1; slot <= previsioni; ++slot) scorriPrevisione(rapporto, metodo, nome, slot);
    } catch (RuntimeFailure& failure) {
      if (failure.errore() == Errore::Indice) failure.spiega(spiegazione(nome, slot));
      throw;
    }
    frm_.prgbar_Value(++fatti);
    programma_.servizi.ridisegna();
  }
  concludi(rapporto, programma_);
  frm_.mostraRapporto(g_.ContaGiocabili >= 1);
}

void ScansionePrevisioni::scorriPrevisione(FileRapporto& rapporto, const FileMetodo& metodo,
                                           const std::string& nome, int slot) {
  const int calcolo = metodo.EstrazioneCalcolo(slot);
  // Meant: a period that ends with the last draw is over, won or not. It differs by one draw from the check.
  if (calcolo + metodo(slot, kCampoColpi, 1) <= g_.UltimaEstrazione) return;
  g_.mostra(calcolo);
  decodificatore_.DecodificaPrevisione(metodo, slot, g_.previsione);
  RiportaPrevisione(rapporto, nome);
}

Spiegazione ScansionePrevisioni::spiegazione(const std::string& metodo, int slot) const {
  if (slot == 0) return dieciPrevisioni(metodo);
  const bool tutteSola = g_.previsione.Tutte && g_.previsione.Ruote.empty();
  return tutteSola ? ruotaTutteSola(metodo, slot) : previsioneIlleggibile(metodo, slot);
}

void ScansionePrevisioni::RiportaPrevisione(FileRapporto& rapporto, const std::string& metodo) {
  g_.TestoEsito.clear();
  const auto vincita = ControllaColpi(g_.previsione.Colpi);
  // Meant: a first win before the limit keeps a prediction out, even if it would win again inside it.
  const bool daRiportare = g_.SoloVincenti ? vincita && *vincita >= limite() : !vincita;
  if (daRiportare) {
    ++g_.ContaGiocabili;
    scriviVoce(rapporto, metodo);
  }
  g_.previsione.lasciaGiocate();
}

std::optional<int> ScansionePrevisioni::ControllaColpi(int colpi) {
  for (ColpoCorrente_ = 1; ColpoCorrente_ <= colpi; ++ColpoCorrente_) {
    const int d = g_.EstrazioneBase + ColpoCorrente_;
    if (d > g_.UltimaEstrazione) continue;
    if (giudicaColpo(g_.previsione, regole_, d, FlagTutte::PrimaRuota, *this)) return d;
  }
  return std::nullopt;
}

void ScansionePrevisioni::scriviVoce(FileRapporto& rapporto, const std::string& metodo) {
  const auto& previsione = g_.previsione;
  rapporto.riga(" Previsione n.°", g_.ContaGiocabili);
  rapporto.riga(" Metodo: ", metodo);
  scriviTelefono(rapporto, previsione);
  if (!g_.SoloVincenti) {
    const int ancora = g_.EstrazioneCorrente + previsione.Colpi - g_.UltimaEstrazione;
    if (ancora > 0) rapporto.riga(" Colpi ancora in gioco: ", ancora);
  }
  scriviGiocate(rapporto, previsione);
  rapporto.riga();
  if (g_.SoloVincenti) {
    rapporto.riga(" Esito: ");
    rapporto.riga(g_.TestoEsito);
  }
  rapporto.riga(kRigaChiusura);
}

int ScansionePrevisioni::limite() const { return g_.UltimaEstrazione - (UltimeEstrazioni_ - 1); }

void ScansionePrevisioni::annota(bool conta, const std::string& riga) {
  if (!g_.SoloVincenti || !conta) return;
  if (!g_.TestoEsito.empty()) g_.TestoEsito += "\r\n";
  g_.TestoEsito += riga;
}

void ScansionePrevisioni::ambata(int numero, int ruota) {
  annota(g_.EstrazioneBase + ColpoCorrente_ >= limite(), rigaAmbata(numero, ruota, ColpoCorrente_));
}

void ScansionePrevisioni::ambo(int a, int b, int ruota) {
  annota(g_.EstrazioneBase + ColpoCorrente_ >= limite(), rigaAmbo(a, b, ruota, ColpoCorrente_));
}

void ScansionePrevisioni::amboTutte(int a, int b, int ruota) {
  annota(g_.EstrazioneBase + ColpoCorrente_ >= limite(), rigaAmboTutte(a, b, ruota, ColpoCorrente_));
}

void ScansionePrevisioni::sorte(const std::vector<int>& usciti, int ruota) {
  const int d = g_.EstrazioneBase + ColpoCorrente_;
  // Meant: a quaterna or a cinquina gets its line only on the very draw of the limit, ambo and terno from
  // there on (guide: "Vincenti alle Ultime Estrazioni").
  const bool conta = usciti.size() >= 4 ? d == limite() : d >= limite();
  annota(conta, rigaNumeri(inizioSorte(usciti.size()), usciti, ruota, ColpoCorrente_));
}

}  // namespace vaticlo
