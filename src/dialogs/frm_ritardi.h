#pragma once

#include <array>
#include <optional>
#include <string>

#include "analysis/caso_ritardi.h"
#include "analysis/ritardi.h"
#include "dialogs/campi_intervallo.h"
#include "dialogs/figure_ritardi.h"
#include "forms/controlli.h"
#include "forms/finestra.h"
#include "forms/grafico.h"
#include "forms/prospetto.h"
#include "program/programma.h"

namespace vaticlo {

/// Frequencies and delays of the numbers or the pairs of a wheel over a range of draws, beside what chance
/// gives: shown anew with every choice.
class frmRitardi : public Finestra {
 public:
  frmRitardi(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void archivioNuovo() override;
  void cmbRuota_Click() { calcola(); }
  void optSorte_Click(Sorte sorte);
  void optMisura_Click(MisuraRitardi misura);
  void btnCancella_Click() { cornice().chiudi(*this); }

  Riquadro Frame2{"&Ruota"};
  Elenco cmbRuota;  ///< the wheels and "Tutte", their codes as item data
  Riquadro Frame3{"Che cosa"};
  std::array<Opzione, 2> optSorte;  ///< numbers, pairs
  CampiIntervallo estrazioni;
  std::array<Opzione, kMisureRitardi.size()> optMisura;
  Etichetta lblFrase;
  Etichetta lblMemoria{
      "Le estrazioni non hanno memoria: un numero in ritardo non è più vicino degli altri a uscire."};
  Grafico grafico;
  Prospetto righe;
  Pulsante btnCancella{"Es&ci", "Chiudi la finestra"};

 private:
  void calcola();
  void disegna();
  [[nodiscard]] std::string dove() const;

  /// What is shown: the choices may be others already, while there is no range.
  struct Mostrati {
    Sorte sorte;
    std::string dove;
    Ritardi ritardi;
    CasoDeiRitardi caso;
  };

  Programma& programma_;
  Sorte sorte_ = Sorte::Numeri;
  MisuraRitardi misura_ = MisuraRitardi::Ritardo;
  std::optional<Mostrati> mostrati_;
};

}  // namespace vaticlo
