#include "methods/testi_previsione.h"
#include "platform/conversione.h"
#include "platform/failure.h"
#include "statistics/clsstatistica.h"

namespace vaticlo {

namespace {

constexpr const char* kRigaVincite = " _______________________________________________";
constexpr const char* kRigaInGioco = " _____________________________________";

// A failure in working out a line of the totals loses that line and no other.
template <class Scrivi>
void unaRiga(Scrivi scrivi) {
  try {
    scrivi();
  } catch (const RuntimeFailure&) {
    // The next line is still written.
  }
}

}  // namespace

void clsStatistica::scriviTotali(int inizio, int fine) {
  const int negative = g_.ContaNegative();
  const int giocate =
      g_.ContaGiocabili - g_.ContaInGioco;  // predictions in play are left out of the percentages
  const auto percentuale = [giocate](int quante) {
    const double valore = giocate == 0 ? 0 : static_cast<double>(quante) / giocate * 100;
    return " (" + testoDiNumero(arrotonda(valore, 1)) + "%)";
  };
  const int TotaleVincite = g_.AmbateVincenti + g_.AmbiRuota + g_.AmbiTutte + g_.AmbiSorti + g_.TerniSorti +
                            g_.QuaterneSorti + g_.CinquineSorti;
  const auto quota = [TotaleVincite](int quante) {
    if (TotaleVincite == 0) throw RuntimeFailure(Errore::DivisionePerZero);
    // Rounded first and multiplied afterwards.
    return " (" + testoDiNumero(arrotonda(static_cast<double>(quante) / TotaleVincite, 3) * 100) + "%)";
  };
  const auto estremo = [this](const char* testo, int estrazione) {
    unaRiga([&] { stat_.riga(testo, " n° ", estrazione, " del ", archivio_.DataEstrazione(estrazione)); });
  };
  const auto giocata = [this, &quota](const char* testo, int quante) {
    unaRiga([&] { stat_.riga(testo, quante, quota(quante)); });
  };

  estremo("Estrazione di Inizio statistica: ", inizio);
  estremo("Estrazione di fine statistica: ", fine);
  unaRiga([&] { stat_.riga(); });
  unaRiga([&] { stat_.riga("Previsioni Giocabili: ", g_.ContaGiocabili); });
  unaRiga([&] { stat_.riga("Previsioni Non Giocabili: ", g_.ContaNonGiocabili); });
  unaRiga([&] { stat_.riga("Previsioni Vincenti: ", g_.ContaVincenti, percentuale(g_.ContaVincenti)); });
  unaRiga([&] { stat_.riga("Previsioni Negative: ", negative, percentuale(negative)); });
  unaRiga([&] { stat_.riga("Previsioni in gioco: ", g_.ContaInGioco); });
  unaRiga([&] { stat_.riga(); });
  giocata("Ambate vincenti: ", g_.AmbateVincenti);
  giocata("Ambi secchi vincenti a ruota: ", g_.AmbiRuota);
  giocata("Ambi secchi vincenti a tutte: ", g_.AmbiTutte);
  giocata("Ambi vincenti in sorti superiori: ", g_.AmbiSorti);
  giocata("Terni vincenti in sorti superiori: ", g_.TerniSorti);
  giocata("Quaterne vincenti in sorti superiori: ", g_.QuaterneSorti);
  giocata("Cinquine vincenti in sorti superiori: ", g_.CinquineSorti);
  unaRiga([&] { stat_.riga(); });
}

void clsStatistica::scriviVincita(const std::string& metodo, bool vincente) {
  const auto& previsione = g_.previsione;
  vincite_.riga(" Previsione n.°", g_.ContaGiocabili);
  vincite_.riga(" Metodo: ", metodo);
  if (vincente) scriviTelefono(vincite_, previsione);  // Meant: not for a negative prediction.
  vincite_.riga(" Data di Calcolo: ", " Estrazione n.", g_.EstrazioneBase, " del ",
                archivio_.DataEstrazione(g_.EstrazioneBase));
  scriviGiocate(vincite_, previsione);
  vincite_.riga();
  // TestoEsito ends in a line end of its own, so an empty line follows a win.
  vincite_.riga(" Esito: ", vincente ? g_.TestoEsito : "Negativo");
  vincite_.riga(kRigaVincite);
}

void clsStatistica::scriviInGioco(int colpi, const std::string& metodo) {
  const auto& previsione = g_.previsione;
  prevGioco_.riga(" Previsione n.°", g_.ContaInGioco);
  prevGioco_.riga(" Metodo: ", metodo);
  scriviTelefono(prevGioco_, previsione);
  prevGioco_.riga(" Calcolata nell'estrazione n° ", g_.EstrazioneBase, " del ", " ",
                  archivio_.DataEstrazione(g_.EstrazioneBase));
  const int ancora = g_.EstrazioneBase + colpi - g_.UltimaEstrazione16;
  if (ancora > 0) prevGioco_.riga(" Colpi ancora in gioco: ", ancora);
  scriviGiocate(prevGioco_, previsione);
  prevGioco_.riga(kRigaInGioco);
}

}  // namespace vaticlo
