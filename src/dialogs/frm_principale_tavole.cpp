#include "dialogs/frm_principale_tavole.h"

#include <array>

#include "dialogs/frm_aggiungi.h"
#include "dialogs/frm_caso.h"
#include "dialogs/frm_copie.h"
#include "dialogs/frm_gestione_metodi.h"
#include "dialogs/frm_info.h"
#include "dialogs/frm_inserisci.h"
#include "dialogs/frm_insprev.h"
#include "dialogs/frm_metodo.h"
#include "dialogs/frm_modifica.h"
#include "dialogs/frm_prev.h"
#include "dialogs/frm_principale.h"
#include "dialogs/frm_quadro.h"
#include "dialogs/frm_ritardi.h"
#include "dialogs/frm_somdif.h"
#include "dialogs/frm_statistica.h"
#include "dialogs/frm_vinc.h"
#include "operations/aggiornamento.h"
#include "operations/gestione_metodi.h"
#include "operations/importa_estrazioni.h"

namespace vaticlo {

namespace {

constexpr const char* kPaginaEstrazioni = "https://www.lotto-italia.it/lotto/estrazioni-ultime";
constexpr const char* kPaginaRegole = "https://www.adm.gov.it/portale/lotto";

template <class F>
void apre(frmPrincipale& principale) {
  principale.apri<F>();
}

template <const char* const& pagina>
void apreLaPagina(frmPrincipale& principale) {
  principale.programma().servizi.apriPagina(pagina);
}

// Meant: unlike an import, an update leaves the open windows with what they show.
void aggiorna(frmPrincipale& principale) { aggiornaArchivio(principale.programma()); }

// Meant: the toolbar's button leaves the chosen method as it was (guide: "La statistica si apre dal menu").
void statisticaDelPrimoMetodo(frmPrincipale& principale) {
  principale.programma().globals.MetodoScelto = 1;
  principale.apri<frmStatistica>();
}

void creaMetodo(frmPrincipale& principale) {
  auto& programma = principale.programma();
  const auto nome = programma.servizi.chiedi("Nome del nuovo metodo:", "Crea Metodo");
  if (nome.empty()) return;
  if (GestioneMetodi(programma).crea(nome)) programma.servizi.mostra({"Il metodo è stato creato!"});
}

template <bool modifica>
void apreEditor(frmPrincipale& principale) {
  principale.programma().globals.PrevisioneInModifica = modifica;
  if (auto* editor = principale.aperta<frmInsPrev>(); editor != nullptr && editor->modifica() != modifica)
    principale.chiudi(*editor);
  principale.apri<frmInsPrev>();
}

void importa(frmPrincipale& principale) {
  if (importaEstrazioniDaFile(principale.programma())) principale.archivioNuovo();
}

// Closes the other windows also when the about window is open already and its load does not run.
void informazioni(frmPrincipale& principale) {
  if (auto* info = principale.aperta<frmInfo>()) principale.chiudiAltre(*info);
  principale.apri<frmInfo>();
}

void informazioniSole(frmPrincipale& principale) {
  principale.chiudiTutte();
  principale.apri<frmInfo>();
}

constexpr std::array kMenu = {
    VoceMenu{"mnuArchivio", 1, "&Archivio", nullptr},
    VoceMenu{"mnu1Inserisci", 2, "&Inserisci Estrazione", apre<frmInserisci>},
    VoceMenu{"mnu1Modifica", 2, "&Modifica Estrazione", apre<frmModifica>},
    VoceMenu{"mnu1Aggiorna", 2, "&Aggiorna via Internet", aggiorna},
    VoceMenu{"", 2, "", nullptr},
    VoceMenu{"mnu1Aggiungi", 2, "A&ggiungi Estrazioni...", apre<frmAggiungi>},
    VoceMenu{"mnu1Importa", 2, "Im&porta Estrazioni da File...", importa},
    VoceMenu{"mnu1Copie", 2, "&Torna a una Copia...", apre<frmCopie>},
    VoceMenu{"", 2, "", nullptr},
    VoceMenu{"mnu1Esci", 2, "&Esci dal Programma", [](frmPrincipale& p) { p.esci(); }, "Ctrl+Q"},
    VoceMenu{"mnuMetodi", 1, "&Vaticla", apre<frmMetodo>},
    VoceMenu{"mnu1metodo1", 1, "&Statistica", statisticaDelPrimoMetodo},
    VoceMenu{"mnuGestione", 1, "&Gestione", nullptr},
    VoceMenu{"mnuGestione1", 2, "&Metodi", nullptr},
    VoceMenu{"mnuGestione11", 3, "&Crea Metodo", creaMetodo},
    VoceMenu{"mnuGestione12", 3, "&Modifica Metodo", apre<frmGestioneMetodi>},
    VoceMenu{"mnuGestione2", 2, "&Previsioni", nullptr},
    VoceMenu{"mnuGestione21", 3, "&Crea Previsione", apreEditor<false>},
    VoceMenu{"mnuGestione22", 3, "&Modifica Previsione", apreEditor<true>},
    VoceMenu{"mnuGestione3", 2, "&Quadro dei Metodi", apre<frmQuadro>},
    VoceMenu{"mnuUtility", 1, "&Utility", nullptr},
    VoceMenu{"mnuUtility1", 2, "Previsioni in Gioco", apre<frmPrev>},
    VoceMenu{"mnuUtility2", 2, "Vincenti alle Ultime Estrazioni", apre<frmVinc>},
    VoceMenu{"mnuUtility3", 2, "&Somma/Distanza Estratti", apre<frmSomdif>},
    VoceMenu{"mnuUtility4", 2, "Il Metodo e il &Caso", apre<frmCaso>},
    VoceMenu{"mnuUtility5", 2, "&Ritardi e Frequenze", apre<frmRitardi>},
    VoceMenu{"mnuUtility6", 2, "&Estrazioni del Lotto (pagina web)", apreLaPagina<kPaginaEstrazioni>},
    VoceMenu{"mnuUtility7", 2, "Re&gole del Lotto (pagina web)", apreLaPagina<kPaginaRegole>},
    VoceMenu{"mnuInformazioni", 1, "&?", nullptr},
    VoceMenu{"mnuInformazioni1", 2, "&Guida", [](frmPrincipale& p) { p.apriGuida(); }, "F1"},
    VoceMenu{"mnuInformazioni2", 2, "&Informazioni su....", informazioni},
};

constexpr std::array kBarra = {
    PulsanteBarra{"Insert", "Inserisci Estrazione", "Insert", apre<frmInserisci>},
    PulsanteBarra{"Modify", "Modifica Estrazione", "Modify", apre<frmModifica>},
    PulsanteBarra{"Sirvan", "Vaticla", "Sirvan", apre<frmMetodo>},
    PulsanteBarra{"Sirvan1", "Statistica", "Statistica", apre<frmStatistica>},
    PulsanteBarra{"Sirvan2", "Metodo 3", "Metodo3", nullptr, "NumPrev2", "NumStat2"},
    PulsanteBarra{"Sirvan3", "Metodo 4", "Metodo4", nullptr, "NumPrev3", "NumStat3"},
    PulsanteBarra{"Sirvan6", "Metodo 7", "Metodo7", nullptr, "NumPrev6", "NumStat6"},
    PulsanteBarra{"Sirvan7", "Metodo 8", "Metodo8", nullptr, "NumPrev7", "NumStat7"},
    PulsanteBarra{"Sirvan8", "Metodo 9", "Metodo9", nullptr, "NumPrev8", "NumStat8"},
    PulsanteBarra{"Sirvan9", "Metodo 10", "Metodo10", nullptr, "NumPrev9", "NumStat9"},
    PulsanteBarra{"Info", "Informazioni sul programma", "Info", informazioniSole},
    PulsanteBarra{"Exit", "Esci dal Programma", "Exit", [](frmPrincipale& p) { p.esci(); }},
};

}  // namespace

std::span<const VoceMenu> tavolaMenu() { return kMenu; }

std::span<const PulsanteBarra> tavolaBarra() { return kBarra; }

}  // namespace vaticlo
