#include "operations/copie.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <tuple>
#include <utility>

#include "archive/archivio.h"
#include "methods/cartella_metodi.h"
#include "methods/metodo.h"
#include "operations/un_passo.h"
#include "platform/blocco.h"
#include "platform/cartella_intera.h"
#include "platform/conversione.h"
#include "platform/descrittore.h"
#include "platform/due_cifre.h"
#include "platform/failure.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"
#include "platform/testo.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kUltime = 10;
constexpr std::size_t kMargine = std::size_t{256} << 10;  // what a file system needs besides the bytes

struct Natura {
  std::string_view nome;
  std::string_view detta;
  std::size_t griglia;  // bytes of a file that are read by anybody
};

const Natura& natura(GenereCopia genere) {
  static constexpr std::array<Natura, 2> kNature = {
      {{"archivio", "dell'archivio", ArchivioEstrazioni::Ottetti},
       {"metodi", "dei metodi", FileMetodo::Ottetti}}};
  return kNature.at(static_cast<std::size_t>(genere));
}

fs::path cartellaCopie(const CartellaProgramma& cartella) { return cartella.file("copie"); }

/// Where the files of that kind lie.
fs::path luogo(const CartellaProgramma& cartella, GenereCopia genere) {
  return genere == GenereCopia::Archivio ? cartella.radice() : cartellaMetodi(cartella);
}

std::string nomeDi(GenereCopia genere, const Data& giornata, int numero) {
  return std::string(natura(genere).nome) + "-" + std::to_string(anno(giornata)) + "-" +
         dueCifre(mese(giornata)) + "-" + dueCifre(giorno(giornata)) +
         (numero > 1 ? "-" + std::to_string(numero) : "");
}

/// The copy of a folder of that name; nothing for any other folder.
std::optional<Copia> copiaDiNome(const std::string& nome) {
  const auto parti = dividi(nome, '-');
  if (parti.size() != 4 && parti.size() != 5) return std::nullopt;
  const auto valore = [&](std::size_t n) { return n < parti.size() ? cifre(parti[n]).value_or(0) : 1; };
  const auto giornata = dataDiCalendario(valore(3), valore(2), valore(1));
  for (const auto genere : {GenereCopia::Archivio, GenereCopia::Metodi})
    if (giornata && nomeDi(genere, *giornata, valore(4)) == nome)
      return Copia{.nome = nome, .genere = genere, .giorno = *giornata, .numero = valore(4), .ultima = {}};
  return std::nullopt;
}

/// The copies by their folders, without a look into them, the newest first.
std::vector<Copia> copieSenzaContenuto(const CartellaProgramma& cartella) {
  std::vector<Copia> copie;
  std::error_code codice;
  for (fs::directory_iterator voce(cartellaCopie(cartella), codice), fine; !codice && voce != fine;
       voce.increment(codice))
    if (auto copia = copiaDiNome(nomeFile(voce->path())); copia && voce->is_directory(codice))
      copie.push_back(std::move(*copia));
  std::sort(copie.begin(), copie.end(), [](const auto& una, const auto& altra) {
    return std::tie(altra.giorno, altra.numero, una.genere) < std::tie(una.giorno, una.numero, altra.genere);
  });
  return copie;
}

bool diMetodo(const std::string& file) { return file.find(".dat") != std::string::npos; }

/// Grids by the names of their files: what a copy holds, or what there is to be copied.
FilePerNome leggiTutti(const fs::path& cartella, GenereCopia genere) {
  FilePerNome tutti;
  for (const auto& nome : elencaFile(cartella))
    if (genere == GenereCopia::Metodi ? diMetodo(nome) : nome == kFileArchivio)
      leggiFile(cartella / percorsoDa(nome), tutti.try_emplace(nome, natura(genere).griglia).first->second);
  // An archive without a draw is none.
  if (genere == GenereCopia::Archivio && !tutti.empty())
    if (tutti.begin()->second.front() == 0) tutti.clear();
  return tutti;
}

// The operation that follows needs as much room again: no copy takes it away from it.
void richiediPosto(const fs::path& dove, const FilePerNome& tutti) {
  std::uintmax_t servono = 0;
  for (const auto& [nome, ottetti] : tutti) servono += ottetti.size() + 4096;
  if (fs::space(dove).available < 2 * servono + kMargine) throw RuntimeFailure(Errore::DiscoPieno);
}

void sfoltisci(const CartellaProgramma& cartella, GenereCopia genere, const std::string& appenaFatta) {
  auto altre = copieSenzaContenuto(cartella);
  std::erase_if(altre, [&](const auto& una) { return una.genere != genere || una.nome == appenaFatta; });
  std::error_code ignorato;
  for (std::size_t n = kUltime - 1; n < altre.size(); ++n)
    fs::remove_all(cartellaCopie(cartella) / altre[n].nome, ignorato);
}

void conserva(const Programma& programma, GenereCopia genere, bool unaAlGiorno) {
  const auto& cartella = programma.cartella;
  const auto oggi = programma.servizi.oggi();
  auto copie = copieSenzaContenuto(cartella);
  std::erase_if(copie, [&](const auto& copia) { return copia.genere != genere; });
  int numero = 1;
  for (const auto& copia : copie)
    if (copia.giorno == oggi) numero = std::max(numero, copia.numero + 1);
  if (unaAlGiorno && numero > 1) return;
  const auto tutti = leggiTutti(luogo(cartella, genere), genere);
  const auto stessa = [&](const auto& copia) {
    return leggiTutti(cartellaCopie(cartella) / copia.nome, genere) == tutti;
  };
  if (tutti.empty() || std::ranges::any_of(copie, stessa)) return;
  richiediPosto(cartella.radice(), tutti);
  const auto nome = nomeDi(genere, oggi, numero);
  scriviCartella(cartellaCopie(cartella) / nome, tutti);
  sfoltisci(cartella, genere, nome);
}

void provaAConservare(const Programma& programma, GenereCopia genere, bool unaAlGiorno) {
  const auto avvisa = [&](const std::string& motivo) {
    programma.servizi.segnala("Non c'è una copia " + std::string(natura(genere).detta) +
                              " di prima: " + motivo + ".");
  };
  try {
    const BloccoCartella blocco(programma.cartella.radice());
    conserva(programma, genere, unaAlGiorno);
  } catch (const RuntimeFailure& failure) {
    avvisa(failure.what());
  } catch (const fs::filesystem_error& errore) {
    avvisa(failureDiSistema(errore.code(), "copie").what());
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

void faiCopia(const Programma& programma, GenereCopia genere) { provaAConservare(programma, genere, true); }

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
    provaAConservare(programma, copia->genere, false);
    const auto dove = luogo(programma.cartella, copia->genere);
    const auto presenti = leggiTutti(dove, copia->genere);
    for (const auto& [file, ottetti] : tutti)
      if (const auto presente = presenti.find(file);
          presente == presenti.end() || presente->second != ottetti)
        scriviFile(dove / percorsoDa(file), ottetti);
    if (copia->genere == GenereCopia::Archivio) return;
    // On some file systems a method of the copy may lie under the name that it has had meanwhile.
    const auto dellaCopia = [&](const std::string& file) {
      return tutti.contains(file) || std::ranges::any_of(tutti, [&](const auto& altro) {
               std::error_code ignorato;
               return fs::equivalent(dove / percorsoDa(file), dove / percorsoDa(altro.first), ignorato);
             });
    };
    for (const auto& file : elencaFile(dove)) {
      std::error_code codice;
      if (diMetodo(file) && !dellaCopia(file)) fs::remove(dove / percorsoDa(file), codice);
      if (codice) throw RuntimeFailure(Errore::AccessoAlFile, file);
    }
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
