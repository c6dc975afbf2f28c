#include "archive/clsgestione.h"

#include "archive/ruota.h"
#include "platform/blocco.h"
#include "platform/cartella.h"
#include "platform/conversione.h"
#include "platform/failure.h"
#include "platform/servizi.h"

namespace vaticlo {

namespace {

// Meant: a draw of another century becomes one of 20xx with its first save (guide: "Gli anni prima del
// 2000").
constexpr int kSecoloDiOgniSalvataggio = 20;

int ruotaDelCampo(int f) { return 1 + f / ArchivioEstrazioni::Colonne; }
int posizioneDelCampo(int f) { return 1 + f % ArchivioEstrazioni::Colonne; }

void mostra(SchedaEstrazione& frm, const ArchivioEstrazioni& archivio, int n) {
  frm.lbldataestr_Caption(archivio.DataEstrazione(n));
  frm.lblnestr_Caption(std::to_string(n));
  for (int f = 0; f < kCampiEstrazione; ++f)
    frm.txtestr_Mostra(f, std::to_string(archivio(n, ruotaDelCampo(f), posizioneDelCampo(f))));
}

std::uint8_t numeroDelCampo(const ModuloEstrazione& frm, int f) {
  try {
    return inByte(frm.txtestr_Text(f));
  } catch (RuntimeFailure& failure) {
    failure.spiega({.fatto = "Il numero " + std::to_string(posizioneDelCampo(f)) + " di " +
                             std::string(kTavolaRuote[static_cast<std::size_t>(ruotaDelCampo(f) - 1)].nome) +
                             " è vuoto o non è un numero: l'estrazione non è stata salvata.",
                    .rimedio = "Riaprite il programma e scrivete tutti i 55 numeri prima di salvare.",
                    .capitolo = "Inserire un'estrazione"});
    throw;
  }
}

}  // namespace

int clsGestione::salva(const ModuloEstrazione& frm, std::optional<int> n) {
  const BloccoCartella blocco(cartella_.radice());
  auto archivio = ApriArchivio(cartella_);
  std::optional<Data> data;
  if (n) {
    data = dataDaTesto(frm.lbldataestr_Caption());
    if (!data) throw RuntimeFailure(Errore::TipoNonCorrispondente);
  } else {
    n = archivio.PrimoIndiceLibero();
    data = frm.mcdatecombo1_Value();
    if (!data) data = servizi_.oggi();
  }
  archivio.scriviData(*n, *data, kSecoloDiOgniSalvataggio);
  for (int f = 0; f < kCampiEstrazione; ++f)
    archivio(*n, ruotaDelCampo(f), posizioneDelCampo(f)) = numeroDelCampo(frm, f);
  ScriviArchivio(cartella_, archivio);
  return *n;
}

void clsGestione::Visualizza(SchedaEstrazione& frm, int n) { mostra(frm, ApriArchivio(cartella_), n); }

void clsGestione::cancella(SchedaEstrazione& frm, std::int16_t n) {
  std::optional<BloccoCartella> blocco(std::in_place, cartella_.radice());
  auto archivio = ApriArchivio(cartella_);
  const int libero = archivio.PrimoIndiceLibero();
  // Meant: rows 0 to 10 move down and row 11, the Nazionale, stays, so that each later draw takes that of the
  // draw before it (guide: "Eliminare un'estrazione di mezzo").
  for (int r = n; r < libero; ++r)
    for (int j = 0; j < kRuote; ++j)
      for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k) archivio(r, j, k) = archivio(r + 1, j, k);
  ScriviArchivio(cartella_, archivio);
  blocco.reset();
  // Shown is the grid just written: a second reading could fail and hide that the draw is gone.
  frm.VScroll1_Max(libero - 1);
  mostra(frm, archivio, n);
}

void clsGestione::Trova(SchedaEstrazione& frm, int giorno, int mese, int secolo, int anno) {
  const auto archivio = ApriArchivio(cartella_);  // an archive that can't be opened is no miss
  try {
    const int i = cercaData(archivio, {.giorno = giorno, .mese = mese, .anno = anno, .secolo = secolo});
    mostra(frm, archivio, i);  // off the grid it fails, as the walks do
    frm.VScroll1_Value(i + 1);
  } catch (const RuntimeFailure& failure) {
    if (failure.errore() == Errore::Indice)
      servizi_.mostra({"Inserisci una data corretta", "Attenzione", Genere::Rifiuto});
  }
}

void clsGestione::VisualizzaSomDif(SchedaSomDif& frm, int n) {
  const auto archivio = ApriArchivio(cartella_);
  frm.lbldataestr_Caption(archivio.DataEstrazione(n));
  frm.lblnestr_Caption(std::to_string(n));

  const auto tipo = frm.opzione();
  const auto valori = tipo ? CalcolaSomDif(archivio, n, *tipo) : ValoriSomDif{};
  for (int i = 0; i < kRuoteSomDif; ++i)
    for (int c = 0; c < static_cast<int>(valori.size()); ++c)
      frm.txtestr_Mostra(c, i,
                         std::to_string(valori[static_cast<std::size_t>(c)][static_cast<std::size_t>(i)]));

  for (int c = 0; c < static_cast<int>(valori.size()); ++c) {
    const auto& colonna = valori[static_cast<std::size_t>(c)];
    for (std::size_t i = 0; i < colonna.size(); ++i)
      for (std::size_t j = i + 1; j < colonna.size(); ++j)
        if (colonna[i] == colonna[j]) {
          frm.txtestr_Giallo(c, static_cast<int>(i));
          frm.txtestr_Giallo(c, static_cast<int>(j));
        }
  }
}

}  // namespace vaticlo
