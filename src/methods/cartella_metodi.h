#pragma once

#include <filesystem>
#include <string_view>

#include "platform/cartella.h"

namespace vaticlo {

/// Where the methods of a program folder lie, a file each.
[[nodiscard]] std::filesystem::path cartellaMetodi(const CartellaProgramma& cartella);

/// The file of a method: its name without surrounding blanks, with ".dat" after it. Fails with
/// Errore::NomeFile for a name that would lead out of the folder of the methods.
[[nodiscard]] std::filesystem::path fileMetodo(const CartellaProgramma& cartella, std::string_view nome);

[[nodiscard]] bool esisteMetodo(const CartellaProgramma& cartella, std::string_view nome);

}  // namespace vaticlo
