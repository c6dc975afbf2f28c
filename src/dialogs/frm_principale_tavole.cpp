#include "dialogs/frm_principale_tavole.h"

#include <array>

namespace vaticlo {

namespace {

constexpr std::array kMenu = {
    VoceMenu{"mnuArchivio", 1, "&Archivio", Comando::Sottomenu},
    VoceMenu{"mnu1Inserisci", 2, "&Inserisci Estrazione", Comando::InserisciEstrazione},
    VoceMenu{"mnu1Modifica", 2, "&Modifica Estrazione", Comando::ModificaEstrazione},
    VoceMenu{"mnu1Aggiorna", 2, "&Aggiorna via Internet", Comando::Aggiorna},
    VoceMenu{"mnuMetodi", 1, "&Vaticla", Comando::Vaticla},
    VoceMenu{"mnu1metodo1", 1, "&Statistica", Comando::Statistica},
    VoceMenu{"mnuGestione", 1, "&Gestione", Comando::Sottomenu},
    VoceMenu{"mnuGestione1", 2, "&Metodi", Comando::Sottomenu},
    VoceMenu{"mnuGestione11", 3, "&Crea Metodo", Comando::CreaMetodo},
    VoceMenu{"mnuGestione12", 3, "&Modifica Metodo", Comando::ModificaMetodo},
    VoceMenu{"mnuGestione2", 2, "&Previsioni", Comando::Sottomenu},
    VoceMenu{"mnuGestione21", 3, "&Crea Previsione", Comando::CreaPrevisione},
    VoceMenu{"mnuGestione22", 3, "&Modifica Previsione", Comando::ModificaPrevisione},
    VoceMenu{"mnuUtility", 1, "&Utility", Comando::Sottomenu},
    VoceMenu{"mnuUtility1", 2, "Previsioni in Gioco", Comando::InGioco},
    VoceMenu{"mnuUtility2", 2, "Vincenti alle Ultime Estrazioni", Comando::Vincenti},
    VoceMenu{"mnuUtility3", 2, "Somma/Distanza Estratti", Comando::Somdif},
    VoceMenu{"mnuUtility4", 2, "Importa Estrazioni da File...", Comando::Importa},
    VoceMenu{"mnuUtility5", 2, "Estrazioni del Lotto (pagina web)", Comando::PaginaEstrazioni},
    VoceMenu{"mnuUtility6", 2, "Regole del Lotto (pagina web)", Comando::PaginaRegole},
    VoceMenu{"mnuInformazioni", 1, "&?", Comando::Sottomenu},
    VoceMenu{"mnuInformazioni1", 2, "&Guida", Comando::Guida, "F1"},
    VoceMenu{"mnuInformazioni2", 2, "&Informazioni su....", Comando::Informazioni},
};

constexpr std::array kBarra = {
    PulsanteBarra{"Insert", "Inserisci Estrazione", "Insert"},
    PulsanteBarra{"Modify", "Modifica Estrazione", "Modify"},
    PulsanteBarra{"Sirvan", "Vaticla", "Sirvan"},
    PulsanteBarra{"Sirvan1", "Statistica", "Statistica"},
    PulsanteBarra{"Sirvan2", "Metodo 3", "Metodo3", "NumPrev2", "NumStat2"},
    PulsanteBarra{"Sirvan3", "Metodo 4", "Metodo4", "NumPrev3", "NumStat3"},
    PulsanteBarra{"Sirvan6", "Metodo 7", "Metodo7", "NumPrev6", "NumStat6"},
    PulsanteBarra{"Sirvan7", "Metodo 8", "Metodo8", "NumPrev7", "NumStat7"},
    PulsanteBarra{"Sirvan8", "Metodo 9", "Metodo9", "NumPrev8", "NumStat8"},
    PulsanteBarra{"Sirvan9", "Metodo 10", "Metodo10", "NumPrev9", "NumStat9"},
    PulsanteBarra{"Info", "Informazioni sul programma", "Info"},
    PulsanteBarra{"Exit", "Esci dal Programma", "Exit"},
};

}  // namespace

std::span<const VoceMenu> tavolaMenu() { return kMenu; }

std::span<const PulsanteBarra> tavolaBarra() { return kBarra; }

}  // namespace vaticlo
