#pragma once

#include <span>
#include <string_view>

namespace vaticlo {

class frmPrincipale;

/// What a menu entry or a button of the toolbar does.
using Azione = void (*)(frmPrincipale& principale);

/// An entry of the menu, in tree order. Level 1 is the bar. One without a caption separates those before it
/// from those after it.
struct VoceMenu {
  std::string_view nome;
  int livello;
  std::string_view caption;
  Azione azione;                ///< none: the entries of the next level that follow are its submenu
  std::string_view tasto = {};  ///< a key of its own
};
[[nodiscard]] std::span<const VoceMenu> tavolaMenu();

/// A button of the toolbar, with the item keys of its drop-down part where it has one. `immagine` is the key
/// of its picture in the image list.
struct PulsanteBarra {
  std::string_view chiave;
  std::string_view toolTip;
  std::string_view immagine;
  Azione azione = nullptr;  ///< of the main part; without one it does nothing
  std::string_view calcolaPrevisione = {};
  std::string_view statistica = {};
};
[[nodiscard]] std::span<const PulsanteBarra> tavolaBarra();

inline constexpr std::string_view kCaptionCalcolaPrevisione = "Calcola Previsione";
inline constexpr std::string_view kCaptionGuida = "Guida";
inline constexpr std::string_view kCaptionStatistica = "Statistica";

}  // namespace vaticlo
