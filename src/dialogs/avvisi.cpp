#include "dialogs/avvisi.h"

#include <filesystem>

#include "archive/archivio.h"
#include "dialogs/frm_principale.h"
#include "dialogs/frm_statistica.h"
#include "platform/presenza.h"
#include "platform/spostamento.h"

namespace vaticlo {

std::vector<Avviso> avvisi(const frmPrincipale& principale, const Presenza& presenza) {
  const auto& programma = principale.programma();
  std::vector<Avviso> avvisi;
  if (principale.aperta<frmStatistica>() != nullptr && programma.globals.MetodoScelto != 1)
    avvisi.push_back(
        {"Dalla barra la statistica non conta nulla: apritela dal menu",
         "Aperta dalla barra degli strumenti la statistica non conta alcun metodo, e si leggono 0 "
         "previsioni. Apritela con la voce Statistica del menu."});
  const auto archivio = programma.cartella.file(kFileArchivio);
  std::error_code codice;
  if (!siPuoAggiungere(programma.cartella.radice()))
    avvisi.push_back({"Nella cartella non si può scrivere",
                      "La cartella del programma è in sola lettura: non si salva nulla, e verifiche, "
                      "statistiche ed elenchi, che scrivono un rapporto, non riescono."});
  else if (std::filesystem::exists(archivio, codice) && !siPuoModificare(archivio))
    avvisi.push_back({"L'archivio è in sola lettura",
                      "L'archivio si può guardare, ma le estrazioni non si possono salvare."});
  if (presenza.altre())
    avvisi.push_back({"Un'altra copia di Vaticlo usa questa cartella",
                      "Le due copie salvano una alla volta, e nulla va perso; ma una finestra già aperta non "
                      "vede ciò che fa l'altra copia."});
  return avvisi;
}

}  // namespace vaticlo
