#include "operations/copie.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "archive/archivio.h"
#include "methods/metodo.h"
#include "operations/cartella_copie.h"
#include "operations/sostituzione.h"
#include "operations/un_passo.h"
#include "platform/blocco.h"
#include "platform/descrittore.h"
#include "platform/failure.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kUltime = 10;
constexpr std::size_t kMargine = std::size_t{256} << 10;  // what a file system needs besides the bytes

// The operation that follows needs as much room again: no copy takes it away from it.
void richiediPosto(const fs::path& dove, const FilePerNome& tutti) {
  std::uintmax_t servono = 0;
  for (const auto& [nome, ottetti] : tutti) servono += ottetti.size() + 4096;
  if (fs::space(dove).available < 2 * servono + kMargine) throw RuntimeFailure(Errore::DiscoPieno);
}

bool tiene(const fs::path& copia, GenereCopia genere, const FilePerNome& tutti) {
  try {
    return leggiTutti(copia, genere) == tutti;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

// `copie` are the older ones, the newest first.
void sfoltisci(const CartellaProgramma& cartella, const std::vector<Copia>& copie, const std::string& tieni) {
  for (std::size_t n = kUltime - 1; n < copie.size(); ++n) try {
      if (copie[n].nome != tieni) eliminaCartella(cartellaCopie(cartella) / copie[n].nome);
    } catch (const RuntimeFailure&) {
      // It stays until the next time.
    }
}

void conserva(const Programma& programma, GenereCopia genere, const Copia* perTornareA) {
  const auto& cartella = programma.cartella;
  const auto oggi = programma.servizi.oggi();
  auto copie = copieSenzaContenuto(cartella);
  std::erase_if(copie, [&](const auto& copia) { return copia.genere != genere; });
  int numero = 1;
  for (const auto& copia : copie)
    if (copia.giorno == oggi) numero = std::max(numero, copia.numero + 1);
  if (perTornareA == nullptr && numero > 1) return;
  const auto tutti = leggiTutti(luogo(cartella, genere), genere);
  const auto stessa = [&](const auto& copia) {
    return tiene(cartellaCopie(cartella) / copia.nome, genere, tutti);
  };
  if (tutti.empty() || std::ranges::any_of(copie, stessa)) return;
  richiediPosto(cartella.radice(), tutti);
  scriviCartella(cartellaCopie(cartella) / nomeCopia(genere, oggi, numero), tutti);
  sfoltisci(cartella, copie, perTornareA == nullptr ? "" : perTornareA->nome);
}

/// Keeps what is there, once a day; to go back to a copy whenever something would be lost. Nothing, or why it
/// could not be done.
std::optional<std::string> provaAConservare(const Programma& programma, GenereCopia genere,
                                            const Copia* perTornareA = nullptr) {
  try {
    const BloccoCartella blocco(programma.cartella.radice());
    conserva(programma, genere, perTornareA);
    return std::nullopt;
  } catch (const RuntimeFailure& failure) {
    return failure.what();
  } catch (const fs::filesystem_error& errore) {
    return failureDiSistema(errore.code(), "copie").what();
  }
}

void guardaDentro(Copia& copia, const FilePerNome& tutti) {
  for (const auto& [nome, ottetti] : tutti)
    if (copia.genere == GenereCopia::Archivio) {
      ArchivioEstrazioni archivio;
      std::ranges::copy(ottetti, archivio.ottetti().begin());
      const auto giorni = std::as_const(archivio).ottetti().first(ArchivioEstrazioni::MaxEstrazioni);
      copia.estrazioni = static_cast<int>(std::ranges::find(giorni, 0) - giorni.begin());
      if (copia.estrazioni > 0) copia.ultima = archivio.DataEstrazione(copia.estrazioni);
    } else {
      FileMetodo metodo;
      std::ranges::copy(ottetti, metodo.ottetti().begin());
      ++copia.metodi;
      for (int slot = 1; slot <= FileMetodo::Slot; ++slot)
        copia.previsioni += metodo.EstrazioneCalcolo(slot) != 0;
    }
}

}  // namespace

void faiCopia(const Programma& programma, GenereCopia genere) {
  if (const auto motivo = provaAConservare(programma, genere))
    programma.servizi.segnala("Non c'è una copia " + std::string(diChe(genere)) + " di prima: " + *motivo +
                              ".");
}

std::vector<Copia> elencoCopie(const CartellaProgramma& cartella) {
  auto copie = copieSenzaContenuto(cartella);
  for (auto& copia : copie) try {
      guardaDentro(copia, leggiTutti(cartellaCopie(cartella) / copia.nome, copia.genere));
    } catch (const RuntimeFailure&) {
      copia.estrazioni = copia.metodi = 0;  // one that can't be read is in the list all the same
    }
  return copie;
}

bool ripristinaCopia(Programma& programma, const std::string& nome) {
  return inUnPasso(programma, [&] {
    const auto copie = copieSenzaContenuto(programma.cartella);
    const auto copia = std::ranges::find(copie, nome, &Copia::nome);
    if (copia == copie.end()) throw Rifiuto{"Non c'è nessuna copia di nome \"" + nome + "\"!"};
    const auto tutti = leggiTutti(cartellaCopie(programma.cartella) / nome, copia->genere);
    if (tutti.empty()) throw Rifiuto{"La copia \"" + nome + "\" è vuota!"};
    if (const auto motivo = provaAConservare(programma, copia->genere, &*copia))
      throw Rifiuto{"Prima va fatta una copia di quel che c'è ora, e non è possibile: " + *motivo +
                    ".\nNon è cambiato niente."};
    const auto dove = luogo(programma.cartella, copia->genere);
    const auto presenti = leggiTutti(dove, copia->genere);
    sostituisciTutti(dove, presenti, tutti);
  });
}

std::string contenuto(const Copia& copia) {
  if (copia.genere == GenereCopia::Metodi)
    return std::to_string(copia.metodi) + " metodi, " + std::to_string(copia.previsioni) + " previsioni";
  return std::to_string(copia.estrazioni) + " estrazioni" +
         (copia.ultima.empty() ? "" : ", l'ultima del " + copia.ultima);
}

Tabella tabellaDelle(const std::vector<Copia>& copie) {
  constexpr auto kNumero = Colonna::Tipo::Numero;
  Tabella tabella{{{"Copia"},
                   {"Giorno", Colonna::Tipo::Giorno},
                   {"Estrazioni", kNumero},
                   {"Ultima", Colonna::Tipo::Giorno},
                   {"Metodi", kNumero},
                   {"Previsioni", kNumero}},
                  {}};
  for (const auto& una : copie) {
    const auto giornata = std::to_string(giorno(una.giorno)) + "/" + std::to_string(mese(una.giorno)) + "/" +
                          std::to_string(anno(una.giorno));
    if (una.genere == GenereCopia::Archivio)
      tabella.righe.push_back({una.nome, giornata, una.estrazioni, una.ultima, {}, {}});
    else
      tabella.righe.push_back({una.nome, giornata, {}, {}, una.metodi, una.previsioni});
  }
  return tabella;
}

}  // namespace vaticlo
