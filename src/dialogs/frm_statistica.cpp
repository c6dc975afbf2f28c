#include "dialogs/frm_statistica.h"

#include "dialogs/data_digitata.h"
#include "platform/conversione.h"
#include "platform/failure.h"
#include "platform/rapporto.h"
#include "program/rapporti.h"
#include "statistics/clsstatistica.h"

namespace vaticlo {

namespace {

// The first draw offered, until the date beside it gives its own.
constexpr const char* kInizioOfferto = "6877";
constexpr Data kDataInizioOfferta{std::chrono::year{2000}, std::chrono::January, std::chrono::day{3}};

// The date pickers know the whole year, so their century differs from that of a search: 18, 19 or 20.
int secoloDelSelettore(int anno) { return anno < 1900 ? 18 : anno < 2000 ? 19 : 20; }

}  // namespace

frmStatistica::frmStatistica(Programma& programma, Cornice& cornice)
    : Finestra(cornice), metodo(programma.cartella), programma_(programma) {
  Caption("Statistica");
  for (auto& campo : txtestr) campo.Mask("####");
  for (int indice : {0, 1})
    metodo.optSelMetodo[static_cast<std::size_t>(indice)].Click = [this, indice] {
      metodo.optSelMetodo_Click(indice);  // no run: the choice is read when one starts
    };
  DTInizio.Change = [this] { DTInizio_Change(); };
  DTFine.Change = [this] { DTFine_Change(); };
  for (auto* selettore : {&DTInizio, &DTFine})
    selettore->Validate = [this, selettore](const std::string& digitata) {
      return trattieneData(*selettore, digitata, programma_.servizi);
    };
  btnElabora.Click = [this] { btnElabora_Click(); };
  btnStop.Click = [this] { btnStop_Click(); };
  btnVincite.Click = [this] { btnVincite_Click(); };
  btnPrev.Click = [this] { btnPrev_Click(); };
  btnStampa.Click = [this] { btnStampa_Click(); };
  btnCancella.Click = [this] { btnCancella_Click(); };
  btnStampa.Enabled(false);
}

void frmStatistica::Form_Load() {
  prgbar.Visible(false);
  cornice().chiudiAltre(*this);
  btnVincite.Enabled(false);
  btnPrev.Enabled(false);
  prendiMisure({7785, 10395, 100, 500});
  prendiUltima();
  txtestr[0].mostra(kInizioOfferto);
  txtestr[1].mostra(std::to_string(programma_.globals.UltimaEstrazione));
  btnStop.Enabled(false);
  const auto oggi = programma_.servizi.oggi();
  DTInizio.MaxDate(oggi);
  DTInizio.Value(kDataInizioOfferta);
  DTFine.MaxDate(oggi);
  DTFine.Value(oggi);
  // A picker stands on today until it is given a value; the event follows a change.
  if (oggi != kDataInizioOfferta) DTInizio_Change();
}

void frmStatistica::archivioNuovo() {
  auto& g = programma_.globals;
  const bool finoAllUltima = txtestr[1].Text() == std::to_string(g.UltimaEstrazione);
  prendiUltima();
  if (finoAllUltima) txtestr[1].mostra(std::to_string(g.UltimaEstrazione));
  DTInizio_Change();
}

void frmStatistica::prendiUltima() {
  auto& g = programma_.globals;
  g.apriSullUltima(ApriArchivio(programma_.cartella).PrimoIndiceLibero());
  g.UltimaEstrazione16 = static_cast<std::int16_t>(g.UltimaEstrazione);
}

void frmStatistica::DTInizio_Change() { cercaNumero(DTInizio, txtestr[0]); }

void frmStatistica::DTFine_Change() { cercaNumero(DTFine, txtestr[1]); }

void frmStatistica::cercaNumero(const SelettoreData& selettore, CampoTesto& campo) {
  const auto data = selettore.Value();
  if (!data) throw RuntimeFailure(Errore::TipoNonCorrispondente);
  campo.Text(std::to_string(
      CercaData(giorno(*data), mese(*data), annoDueCifre(*data), secoloDelSelettore(anno(*data)))));
}

int frmStatistica::CercaData(int giorno, int mese, int anno, int secolo) const {
  return cercaData(ApriArchivio(programma_.cartella),
                   {.giorno = giorno, .mese = mese, .anno = anno, .secolo = secolo},
                   programma_.globals.UltimaEstrazione);
}

void frmStatistica::btnElabora_Click() {
  auto& g = programma_.globals;
  {
    FileRapporto vuoto(programma_.cartella.file(kFileStat));
    vuoto.riga();
    concludi(vuoto, programma_);
  }
  RichTextBox1.Text(testoRapporto(programma_.cartella.file(kFileStat)));
  RichTextBox1.Visible(false);
  btnVincite.Enabled(false);
  btnPrev.Enabled(false);
  btnStampa.Enabled(false);
  if (rifiutaIntervallo()) return;

  prgbar.Visible(true);
  {
    clsStatistica statistica(programma_, *this);
    const auto inizio = inIntero16(txtestr[0].Text()), fine = inIntero16(txtestr[1].Text());
    statistica.Inizia(inizio, fine);
    prgbar.Visible(false);
    statistica.rilascia();
  }
  if (!g.StopElaborazione) mostraTotali();
  comandiACorsaFerma();
}

bool frmStatistica::rifiutaNumero(CampoTesto& campo, const char* data) {
  try {
    static_cast<void>(inIntero16(campo.Text()));
    return false;
  } catch (const RuntimeFailure&) {
    programma_.servizi.mostra({std::string("\"Es.N.\" della data di ") + data +
                                   " deve contenere il numero intero di un'estrazione!",
                               "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
    campo.SetFocus();
    return true;
  }
}

bool frmStatistica::rifiutaIntervallo() {
  if (rifiutaNumero(txtestr[0], "inizio") || rifiutaNumero(txtestr[1], "fine")) return true;
  const auto a = inIntero16(txtestr[0].Text()), b = inIntero16(txtestr[1].Text());
  if (a > b || a == b) {
    // Meant: the slip "inzio".
    programma_.servizi.mostra({std::string("L'estrazione di inzio non può essere ") +
                                   (a > b ? "maggiore dell'" : "uguale all'") + "estrazione di fine!",
                               "Attenzione", Genere::Rifiuto});
    return true;
  }
  // Meant: the range is repaired after the comparison and not compared again.
  if (a == 0) txtestr[0].mostra("1");
  const int ultima = programma_.globals.UltimaEstrazione;
  if (b > ultima) txtestr[1].mostra(std::to_string(ultima));
  return false;
}

void frmStatistica::mostraTotali() {
  RichTextBox1.Visible(true);
  RichTextBox1.Text(testoRapporto(programma_.cartella.file(kFileStat)));
  btnVincite.Enabled(programma_.globals.ContaVincenti >= 1);
  btnPrev.Enabled(programma_.globals.ContaInGioco >= 1);
  btnStampa.Enabled(true);
}

void frmStatistica::btnStop_Click() { programma_.globals.StopElaborazione = true; }

void frmStatistica::btnVincite_Click() { apriRisultati(true); }

void frmStatistica::btnPrev_Click() { apriRisultati(false); }

void frmStatistica::apriRisultati(bool vincite) {
  try {
    programma_.globals.VistaVincite = vincite;
    cornice().apriRisultati();
  } catch (const RuntimeFailure&) {
    // Ignored in these two events.
  }
}

void frmStatistica::btnStampa_Click() {
  // Meant: the title, which is not the program's name.
  if (programma_.servizi.mostra({"Stampo la statistica?", "Ambolino", Genere::Domanda}) != Risposta::Si)
    return;
  RichTextBox1.SelLength(0);
  programma_.servizi.stampa(RichTextBox1.Text());
}

void frmStatistica::btnCancella_Click() { cornice().chiudi(*this); }

void frmStatistica::corsaIniziata() {
  btnStop.Enabled(true);  // the window is occupied from here on
  cornice().lavoro(true);
  btnElabora.Enabled(false);
  btnCancella.Enabled(false);
}

void frmStatistica::corsaInterrotta() {
  prgbar.Visible(false);
  comandiACorsaFerma();
}

void frmStatistica::comandiACorsaFerma() {
  btnStop.Enabled(false);
  btnElabora.Enabled(true);
  btnCancella.Enabled(true);
  cornice().lavoro(false);
}

}  // namespace vaticlo
