#pragma once

#include <string>
#include <vector>

#include "console/argomenti.h"
#include "console/esito.h"

namespace vaticlo {

class Sessione;

/// Something that a command reads from its line. A name that begins with "--" is an option, any other one an
/// argument by its place.
struct Parametro {
  std::string nome;
  std::string aiuto;
  std::string tipo = "TESTO";    ///< what the help calls the value of an option
  bool necessario = false;       ///< of an option; an argument by its place is, unless it says `facoltativo`
  std::string predefinito = {};  ///< of an option; empty for none
  bool facoltativo = false;      ///< of an argument by its place
  int quanti = 1;                ///< how many values follow; an option without any is there or not
  std::vector<std::string> valori = {};  ///< all that it may be, where these are few
};

/// A name of the object that --json writes.
struct NomeJson {
  std::string nome;
  std::string aiuto;
};

/// A command of the console. One whose name has two words belongs to the group that the first one names; the
/// group itself stands in front of its commands and does nothing.
struct Comando {
  std::string nome;
  std::string aiuto;
  Esito (*fai)(Sessione& sessione, const Argomenti& argomenti) = nullptr;
  std::vector<Parametro> parametri = {};
  std::vector<NomeJson> json = {};  ///< all of its object, in their order; empty without --json
  bool creaCartella = false;        ///< it may begin a program folder; the others need one
  bool scrive = false;              ///< it changes the archive or the methods
  bool soloDalTerminale = false;    ///< no line of a file of commands
};

/// All commands, in the order of the help.
[[nodiscard]] std::vector<Comando> tavolaComandi();

/// Each does what its command says and prints it. A refusal is a message of the services; what is wrong
/// with the arguments, an UsoErrato.
namespace comandi {

Esito importa(Sessione& sessione, const Argomenti& argomenti);
Esito aggiorna(Sessione& sessione, const Argomenti& argomenti);
Esito aggiungi(Sessione& sessione, const Argomenti& argomenti);
Esito elencaCopie(Sessione& sessione, const Argomenti& argomenti);
Esito ripristina(Sessione& sessione, const Argomenti& argomenti);
Esito dimostrazione(Sessione& sessione, const Argomenti& argomenti);

Esito estrazione(Sessione& sessione, const Argomenti& argomenti);
Esito trova(Sessione& sessione, const Argomenti& argomenti);
Esito inserisci(Sessione& sessione, const Argomenti& argomenti);
Esito modifica(Sessione& sessione, const Argomenti& argomenti);
Esito cancella(Sessione& sessione, const Argomenti& argomenti);
Esito somdif(Sessione& sessione, const Argomenti& argomenti);

Esito creaMetodo(Sessione& sessione, const Argomenti& argomenti);
Esito rinominaMetodo(Sessione& sessione, const Argomenti& argomenti);
Esito eliminaMetodo(Sessione& sessione, const Argomenti& argomenti);
Esito elencoMetodi(Sessione& sessione, const Argomenti& argomenti);

Esito elencoPrevisioni(Sessione& sessione, const Argomenti& argomenti);
Esito mostraPrevisione(Sessione& sessione, const Argomenti& argomenti);
Esito inserisciPrevisione(Sessione& sessione, const Argomenti& argomenti);
Esito modificaPrevisione(Sessione& sessione, const Argomenti& argomenti);
Esito eliminaPrevisione(Sessione& sessione, const Argomenti& argomenti);
Esito togliPrevisione(Sessione& sessione, const Argomenti& argomenti);
Esito duplicaPrevisione(Sessione& sessione, const Argomenti& argomenti);
Esito copiaPrevisione(Sessione& sessione, const Argomenti& argomenti);
Esito spostaPrevisione(Sessione& sessione, const Argomenti& argomenti);

Esito verifica(Sessione& sessione, const Argomenti& argomenti);
Esito statistica(Sessione& sessione, const Argomenti& argomenti);
Esito inGioco(Sessione& sessione, const Argomenti& argomenti);
Esito vincenti(Sessione& sessione, const Argomenti& argomenti);

Esito quadro(Sessione& sessione, const Argomenti& argomenti);
Esito caso(Sessione& sessione, const Argomenti& argomenti);
Esito ritardi(Sessione& sessione, const Argomenti& argomenti);

Esito manuale(Sessione& sessione, const Argomenti& argomenti);
Esito completamento(Sessione& sessione, const Argomenti& argomenti);

Esito esegui(Sessione& sessione, const Argomenti& argomenti);

}  // namespace comandi

}  // namespace vaticlo
