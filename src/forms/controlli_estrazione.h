#pragma once

#include <array>

#include "archive/clsgestione.h"
#include "forms/controlli.h"

namespace vaticlo {

/// The draw that a scroll bar stands for: its value is one above the draw's number, and 1 and 2 both stand
/// for draw 1.
[[nodiscard]] inline int estrazioneDellaBarra(const BarraScorrimento& barra) {
  return barra.Value() != 1 ? barra.Value() - 1 : 1;
}

/// The controls that show one draw, as the draw store reaches them: number, date, 55 fields, and the scroll
/// bar that walks the draws.
class ControlliEstrazione : public ModuloEstrazione, public SchedaEstrazione {
 public:
  Etichetta lblnestr, lbldataestr;
  std::array<CampoTesto, kCampiEstrazione> txtestr;
  BarraScorrimento VScroll1;

  [[nodiscard]] std::string txtestr_Text(int f) const override;
  void txtestr_Mostra(int f, const std::string& testo) override;
  [[nodiscard]] std::optional<Data> mcdatecombo1_Value() const override { return std::nullopt; }
  [[nodiscard]] std::string lbldataestr_Caption() const override { return lbldataestr.Caption(); }
  void lbldataestr_Caption(const std::string& testo) override { lbldataestr.Caption(testo); }
  void lblnestr_Caption(const std::string& testo) override { lblnestr.Caption(testo); }
  void VScroll1_Max(int massimo) override { VScroll1.Max(massimo); }
  void VScroll1_Value(int valore) override { VScroll1.Value(valore); }
};

}  // namespace vaticlo
