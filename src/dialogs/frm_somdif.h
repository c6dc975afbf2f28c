#pragma once

#include <array>

#include "archive/clsgestione.h"
#include "forms/controlli.h"
#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

/// The sum and distance view of one draw: ten wheels, ten pairs of positions, equal values of a column in
/// yellow.
class frmSomdif : public Finestra {
 public:
  frmSomdif(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override;
  void VScroll1_Change();
  void opzione_Click(TipoSomDif tipo);
  void btnTrova_Click();
  void btnAnnulla_Click();
  /// Shows the values of a draw for the option that is on.
  void visualizza(int n);

  using Colonna = std::array<CampoTesto, kRuoteSomDif>;

  Etichetta Label1{"Estrazione n°"}, lblnestr, Label13{"del"}, lbldataestr;
  std::array<Colonna, kCoppiePosizioni.size()>
      colonne;  ///< txtestr, txtestr1 to txtestr9: index is the wheel - 1
  Opzione optdistciclo, optdistmat, optsommat;
  Etichetta Label28{"Distanza Ciclometrica"}, Label27{"Distanza Matematica"}, Label26{"Somma Matematica"};
  BarraScorrimento VScroll1;
  Pulsante btnTrova{"", "Cerca Estrazione"};
  Pulsante btnAnnulla{"&Annulla", "Chiudi la finestra"};

 private:
  /// The window as the sum and distance view sees it.
  class ValoriMostrati : public SchedaSomDif {
   public:
    explicit ValoriMostrati(frmSomdif& frm) : frm_(frm) {}
    [[nodiscard]] std::optional<TipoSomDif> opzione() const override;
    void lbldataestr_Caption(const std::string& testo) override { frm_.lbldataestr.Caption(testo); }
    void lblnestr_Caption(const std::string& testo) override { frm_.lblnestr.Caption(testo); }
    void txtestr_Mostra(int colonna, int i, const std::string& testo) override;
    void txtestr_Giallo(int colonna, int i) override;

   private:
    frmSomdif& frm_;
  };

  /// The window as the search by date sees it. Meant: a search made for 55 fields, of which this window has
  /// ten, those of its first column (guide: "Somma e distanza").
  class EstrazioneTrovata : public SchedaEstrazione {
   public:
    explicit EstrazioneTrovata(frmSomdif& frm) : frm_(frm) {}
    void txtestr_Mostra(int f, const std::string& testo) override;
    void lbldataestr_Caption(const std::string& testo) override { frm_.lbldataestr.Caption(testo); }
    void lblnestr_Caption(const std::string& testo) override { frm_.lblnestr.Caption(testo); }
    void VScroll1_Max(int massimo) override { frm_.VScroll1.Max(massimo); }
    void VScroll1_Value(int valore) override { frm_.VScroll1.Value(valore); }

   private:
    frmSomdif& frm_;
  };

  void mostraUltima();
  void tuttoGrigio();

  Programma& programma_;
  ValoriMostrati valori_{*this};
  EstrazioneTrovata trovata_{*this};
};

}  // namespace vaticlo
