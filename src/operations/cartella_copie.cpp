#include "operations/cartella_copie.h"

#include <algorithm>
#include <array>
#include <optional>
#include <system_error>
#include <tuple>
#include <utility>

#include "archive/archivio.h"
#include "methods/cartella_metodi.h"
#include "methods/metodo.h"
#include "platform/conversione.h"
#include "platform/due_cifre.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"
#include "platform/testo.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

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

/// The copy of a folder of that name; nothing for any other folder.
std::optional<Copia> copiaDiNome(const std::string& nome) {
  const auto parti = dividi(nome, '-');
  if (parti.size() != 4 && parti.size() != 5) return std::nullopt;
  const auto valore = [&](std::size_t n) { return n < parti.size() ? cifre(parti[n]).value_or(0) : 1; };
  const auto giornata = dataDiCalendario(valore(3), valore(2), valore(1));
  for (const auto genere : {GenereCopia::Archivio, GenereCopia::Metodi})
    if (giornata && nomeCopia(genere, *giornata, valore(4)) == nome)
      return Copia{.nome = nome, .genere = genere, .giorno = *giornata, .numero = valore(4), .ultima = {}};
  return std::nullopt;
}

bool diMetodo(const std::string& file) { return file.find(".dat") != std::string::npos; }

}  // namespace

fs::path cartellaCopie(const CartellaProgramma& cartella) { return cartella.file("copie"); }

fs::path luogo(const CartellaProgramma& cartella, GenereCopia genere) {
  return genere == GenereCopia::Archivio ? cartella.radice() : cartellaMetodi(cartella);
}

std::string_view diChe(GenereCopia genere) { return natura(genere).detta; }

std::string nomeCopia(GenereCopia genere, const Data& giornata, int numero) {
  return std::string(natura(genere).nome) + "-" + std::to_string(anno(giornata)) + "-" +
         dueCifre(mese(giornata)) + "-" + dueCifre(giorno(giornata)) +
         (numero > 1 ? "-" + std::to_string(numero) : "");
}

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

FilePerNome leggiTutti(const fs::path& cartella, GenereCopia genere) {
  FilePerNome tutti;
  for (const auto& nome : elencaFile(cartella))
    if (genere == GenereCopia::Metodi ? diMetodo(nome) : nome == kFileArchivio)
      leggiFile(cartella / percorsoDa(nome), tutti.try_emplace(nome, natura(genere).griglia).first->second,
                SeManca::Vuoto);
  // An archive without a draw is none.
  if (genere == GenereCopia::Archivio && !tutti.empty())
    if (tutti.begin()->second.front() == 0) tutti.clear();
  return tutti;
}

}  // namespace vaticlo
