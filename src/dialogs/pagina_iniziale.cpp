#include "dialogs/pagina_iniziale.h"

#include <array>
#include <sstream>

#include "analysis/esito_in_parole.h"
#include "dialogs/frm_principale.h"
#include "methods/giocata_in_parole.h"
#include "operations/dimostrazione.h"
#include "platform/due_cifre.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

constexpr std::size_t kRigheAlMassimo = 6;  // of a section

std::string migliaia(int valore) {
  auto testo = std::to_string(valore);
  if (testo.size() > 3) testo.insert(testo.size() - 3, ".");
  return testo;
}

std::string quantoFa(const Data& data, const Data& oggi) {
  const auto giorni = (std::chrono::sys_days(oggi) - std::chrono::sys_days(data)).count();
  if (giorni < 0) return "";
  if (giorni == 0) return ", oggi";
  if (giorni == 1) return ", ieri";
  return ", " + migliaia(static_cast<int>(giorni)) + " giorni fa";
}

std::string dataScritta(const Data& data) {
  return dueCifre(giorno(data)) + "/" + dueCifre(mese(data)) + "/" + std::to_string(anno(data));
}

std::string quante(int estrazioni) {
  return estrazioni == 1 ? "1 estrazione" : migliaia(estrazioni) + " estrazioni";
}

std::string rigaArchivio(const Situazione& situazione, const Data& oggi) {
  if (situazione.estrazioni == 0) return "L'archivio non ha ancora estrazioni";
  auto testo = quante(situazione.estrazioni);
  if (const auto& data = situazione.ultima)
    testo += ", l'ultima del " + dataScritta(*data) + quantoFa(*data, oggi);
  return testo;
}

/// How a section says what it leaves out.
struct Altri {
  const char *uno, *diversi;
};
constexpr Altri kAltrePrevisioni{"e un'altra", "e altre "}, kAltriMetodi{"e un altro", "e altri "};

template <class Voci, class Riga>
void aggiungi(PaginaIniziale& pagina, const std::string& titolo, const Voci& voci, Altri altri, Riga riga) {
  if (voci.empty()) return;
  PaginaIniziale::Sezione sezione{titolo + " (" + std::to_string(voci.size()) + ")", {}};
  for (const auto& voce : voci) {
    if (sezione.righe.size() == kRigheAlMassimo) {
      const auto restano = voci.size() - kRigheAlMassimo;
      sezione.righe.push_back(restano == 1 ? altri.uno : altri.diversi + std::to_string(restano));
      break;
    }
    sezione.righe.push_back(riga(voce));
  }
  pagina.sezioni.push_back(std::move(sezione));
}

void dimostrazione(frmPrincipale& principale) {
  std::ostringstream detto;
  creaDimostrazione(principale.programma(), detto);
  if (detto.str().empty()) return;
  principale.programma().servizi.mostra({detto.str()});
  principale.archivioNuovo();
}

// None of their letters is one of the menu bar.
constexpr std::array kPulsanti = {
    PulsanteIniziale{"inizioAggiungi", "Aggiungi &Estrazioni...",
                     [](frmPrincipale& p) { p.comando("mnu1Aggiungi"); }},
    PulsanteIniziale{"inizioImporta", "&Importa Estrazioni da File...",
                     [](frmPrincipale& p) { p.comando("mnu1Importa"); }},
    PulsanteIniziale{"inizioDimostrazione", "&Prova con dati inventati", dimostrazione, true},
    PulsanteIniziale{"inizioGuida", "Gui&da", [](frmPrincipale& p) { p.apriGuida(); }},
};

}  // namespace

PaginaIniziale paginaIniziale(const Situazione& situazione, const Data& oggi) {
  PaginaIniziale pagina;
  pagina.archivio = rigaArchivio(situazione, oggi);
  pagina.inBreve = quante(situazione.estrazioni);
  if (situazione.ultima) pagina.inBreve += " · ultima " + dataScritta(*situazione.ultima);
  pagina.archivioVuoto = situazione.estrazioni == 0;
  aggiungi(pagina, "Vinte all'ultima estrazione", situazione.vinteAllUltima, kAltrePrevisioni,
           [](const auto& voce) { return voce.metodo + ": " + voce.previsione.esito; });
  aggiungi(pagina, "In gioco", situazione.inGioco, kAltrePrevisioni, [](const auto& voce) {
    return voce.metodo + ": " + puntateInParole(voce.previsione.testi) + " · " + ancora(voce.colpiRimasti);
  });
  aggiungi(pagina, "Metodi da guardare", situazione.daGuardare, kAltriMetodi,
           [](const auto& voce) { return voce.metodo + ": " + std::string(testoStato(voce.stato)); });
  return pagina;
}

PaginaIniziale paginaIniziale(const Programma& programma) {
  try {
    return paginaIniziale(situazioneDi(programma.cartella), programma.servizi.oggi());
  } catch (const RuntimeFailure& failure) {
    PaginaIniziale pagina;
    pagina.archivio = "L'archivio o i metodi non si lasciano leggere";
    pagina.inBreve = pagina.archivio;
    pagina.sezioni.push_back({failure.what(), {}});
    return pagina;
  }
}

std::span<const PulsanteIniziale> pulsantiIniziali() { return kPulsanti; }

}  // namespace vaticlo
