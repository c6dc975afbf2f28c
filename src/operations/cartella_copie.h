#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "operations/copie.h"
#include "platform/cartella.h"
#include "platform/cartella_intera.h"

namespace vaticlo {

/// Where the copies lie, a folder each.
[[nodiscard]] std::filesystem::path cartellaCopie(const CartellaProgramma& cartella);

/// "archivio-2026-02-28", from the second one of a day on "archivio-2026-02-28-2".
[[nodiscard]] std::string nomeCopia(GenereCopia genere, const Data& giornata, int numero);

/// The copies by the names of their folders, without a look into them, the newest first.
[[nodiscard]] std::vector<Copia> copieSenzaContenuto(const CartellaProgramma& cartella);

/// Where the files lie that a copy is of.
[[nodiscard]] std::filesystem::path luogo(const CartellaProgramma& cartella, GenereCopia genere);

/// "dell'archivio", "dei metodi".
[[nodiscard]] std::string_view diChe(GenereCopia genere);

/// Grids by the names of their files: what a copy holds, or what there is to be copied. Failures of
/// elencaFile() and leggiFile().
[[nodiscard]] FilePerNome leggiTutti(const std::filesystem::path& cartella, GenereCopia genere);

}  // namespace vaticlo
