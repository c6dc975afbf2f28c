#include "operations/gestione_metodi.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "methods/cartella_metodi.h"
#include "methods/metodo.h"
#include "operations/copie.h"
#include "operations/un_passo.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

constexpr std::string_view kEstensione = ".dat";
constexpr std::size_t kMassimoOttetti = 200;  // both systems take 255 with the extension
constexpr std::array<std::string_view, 30> kRiservati = {
    "CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4", "COM5",   "COM6",
    "COM7", "COM8", "COM9", "COM¹", "COM²", "COM³", "LPT1", "LPT2", "LPT3",   "LPT4",
    "LPT5", "LPT6", "LPT7", "LPT8", "LPT9", "LPT¹", "LPT²", "LPT³", "CONIN$", "CONOUT$"};

bool nomeDiFile(const std::string& nome) {
  if (nome.empty() || nome.size() > kMassimoOttetti || !formaDiConfronto(nome)) return false;
  if (nome.front() == '.' || nome.back() == '.') return false;
  const auto vietato = [](char c) {
    const auto ottetto = static_cast<unsigned char>(c);
    return ottetto < 0x20 || ottetto == 0x7F || kVietatiNeiNomi.find(c) != std::string_view::npos;
  };
  if (std::any_of(nome.begin(), nome.end(), vietato)) return false;
  const auto radice = maiuscolo(senzaBlanchi(std::string_view(nome).substr(0, nome.find('.'))));
  return std::find(kRiservati.begin(), kRiservati.end(), radice) == kRiservati.end();
}

}  // namespace

bool GestioneMetodi::crea(const std::string& nome) {
  return inUnPasso(programma_, [&] {
    const std::string pulito(senzaBlanchi(nome));
    richiediAmmesso(pulito);
    scriviFile(fileMetodo(programma_.cartella, pulito), FileMetodo{}.ottetti(), Scrittura::Nuova);
  });
}

bool GestioneMetodi::rinomina(const std::string& nome, const std::string& nuovo) {
  return inUnPasso(programma_, [&] {
    const std::string pulito(senzaBlanchi(nuovo));
    richiediMetodo(programma_, nome);
    richiediAmmesso(pulito, std::string(senzaBlanchi(nome)));
    faiCopia(programma_, GenereCopia::Metodi);
    rinominaFile(fileMetodo(programma_.cartella, nome), fileMetodo(programma_.cartella, pulito));
  });
}

bool GestioneMetodi::elimina(const std::string& nome) {
  return inUnPasso(programma_, [&] {
    richiediMetodo(programma_, nome);
    faiCopia(programma_, GenereCopia::Metodi);
    eliminaFile(fileMetodo(programma_.cartella, nome));
  });
}

// `tranne`: the name that a rename gives up, so that its upper and lower case
// or its accents may change.
void GestioneMetodi::richiediAmmesso(const std::string& nome, const std::string& tranne) const {
  if (nome.empty()) throw Rifiuto{"Bisogna indicare il nome del metodo!"};
  if (!nomeDiFile(nome))
    throw Rifiuto{"Il nome \"" + citazione(nome) + "\" non può essere quello di un file!"};
  if (maiuscolo(nome).find(maiuscolo(kEstensione)) != std::string::npos)
    throw Rifiuto{"Il nome del metodo non può contenere \".dat\"!"};
  const auto cercato = formaDiConfronto(nome + std::string(kEstensione));
  const auto ceduto = tranne + std::string(kEstensione);
  for (const auto& file : elencaFile(cartellaMetodi(programma_.cartella)))
    if (formaDiConfronto(file) == cercato && file != ceduto)
      throw Rifiuto{"Esiste già un metodo con il nome \"" + nome + "\"!"};
}

}  // namespace vaticlo
