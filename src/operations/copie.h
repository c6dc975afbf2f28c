#pragma once

#include <string>
#include <vector>

#include "archive/data.h"
#include "platform/tabella.h"
#include "program/programma.h"

namespace vaticlo {

/// What a copy is of.
enum class GenereCopia { Archivio, Metodi };

/// A dated copy of the archive or of all methods: a folder in `copie/` with the files as they were.
struct Copia {
  std::string nome;  ///< that of its folder: what it is of, its day, from the second one of a day on a number
  GenereCopia genere = GenereCopia::Archivio;
  Data giorno{};
  int numero = 1;      ///< among those of its day
  int estrazioni = 0;  ///< of the archive
  std::string ultima;  ///< the date of the last of them; empty without one
  int metodi = 0;      ///< of the methods
  int previsioni = 0;  ///< in all of them
};

/// Keeps what is there before something takes it away or writes over it: once a day, the last ten. Nothing is
/// kept where there is nothing, or when a copy holds the same already. It never fails: what keeps it from
/// making the copy is said in passing.
void faiCopia(const Programma& programma, GenereCopia genere);

/// The copies, the newest first.
[[nodiscard]] std::vector<Copia> elencoCopie(const CartellaProgramma& cartella);

/// Brings back what a copy holds; what was there is kept as a copy first. Methods that the copy has not are
/// gone afterwards. False, and the user told, when there is no such copy or what is there can't be kept.
/// Fails as scriviFile() and eliminaFile() do, and all is then as it was as far as the disk lets it.
bool ripristinaCopia(Programma& programma, const std::string& nome);

/// What a copy holds, in words (Italian).
[[nodiscard]] std::string contenuto(const Copia& copia);

/// The copies as rows.
[[nodiscard]] Tabella tabellaDelle(const std::vector<Copia>& copie);

}  // namespace vaticlo
