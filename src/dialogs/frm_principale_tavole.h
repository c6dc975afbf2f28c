#pragma once

#include <span>
#include <string_view>

namespace vaticlo {

/// What a menu entry does.
enum class Comando {
  Sottomenu,
  InserisciEstrazione,
  ModificaEstrazione,
  Aggiorna,
  Vaticla,
  Statistica,
  CreaMetodo,
  ModificaMetodo,
  CreaPrevisione,
  ModificaPrevisione,
  InGioco,
  Vincenti,
  Somdif,
  Importa,
  PaginaEstrazioni,
  PaginaRegole,
  Guida,
  Informazioni,
};

/// An entry of the menu, in tree order. Level 1 is the bar.
struct VoceMenu {
  std::string_view nome;
  int livello;
  std::string_view caption;
  Comando comando;
  std::string_view tasto = {};  ///< a key of its own
};
[[nodiscard]] std::span<const VoceMenu> tavolaMenu();

/// A button of the toolbar, with the item keys of its drop-down part where it has one. `immagine` is the key
/// of its picture in the image list.
struct PulsanteBarra {
  std::string_view chiave;
  std::string_view toolTip;
  std::string_view immagine;
  std::string_view calcolaPrevisione = {};
  std::string_view statistica = {};
};
[[nodiscard]] std::span<const PulsanteBarra> tavolaBarra();

inline constexpr std::string_view kCaptionCalcolaPrevisione = "Calcola Previsione";
inline constexpr std::string_view kCaptionGuida = "Guida";
inline constexpr std::string_view kCaptionStatistica = "Statistica";

}  // namespace vaticlo
