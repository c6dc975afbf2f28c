#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analysis/quadro.h"
#include "archive/archivio.h"
#include "dialogs/estremo_digitato.h"
#include "forms/controlli.h"
#include "forms/finestra.h"
#include "forms/prospetto.h"
#include "methods/metodo.h"
#include "operations/previsioni_metodo.h"
#include "program/programma.h"

namespace vaticlo {

/// All methods at a glance, over some draws of the archive; and the predictions of one of them, which are
/// taken away, copied and moved, each step to be taken back. What it shows is read anew each time the window
/// is activated; where a method has changed meanwhile no step touches it.
class frmQuadro : public Finestra {
 public:
  frmQuadro(Programma& programma, Cornice& cornice);

  void Form_Load() override;
  void Form_Activate() override;
  void archivioNuovo() override;
  [[nodiscard]] bool occupata() const override { return inCorso_; }
  /// The fields of the range are left: a number or a date becomes a draw. True when it is neither.
  [[nodiscard]] bool txtDal_Validate();
  [[nodiscard]] bool txtAl_Validate();
  void btnArchivio_Click();
  void txtFiltro_Change();
  void metodi_Change();
  void metodi_Apri();
  void previsioni_Change();
  void btnVerifica_Click();
  void btnCaso_Click();
  void btnTogli_Click();
  void btnCopia_Click();
  void btnSposta_Click();
  void btnDuplica_Click();
  void btnAnnulla_Click();
  void btnEsci_Click();

  Etichetta Label1{"Estrazioni da&lla n°"}, Label2{"alla &n°"}, lblDal, lblAl;
  CampoTesto txtDal, txtAl, txtFiltro;
  Pulsante btnArchivio{"T&utto l'archivio", "Giudica le previsioni di tutte le estrazioni"};
  Prospetto metodi, previsioni{Prospetto::Scelta::Diverse};
  Etichetta lblMetodi, lblPrevisioni, lblNota, lblFatto;
  Avanzamento prgbar;
  Pulsante btnCaso{"Con&fronta...", "Confronta il metodo con il caso"};
  Pulsante btnVerifica{"&Verifica", "Apre la verifica sull'estrazione della previsione"};
  Pulsante btnTogli{"&Togli", "Toglie dal metodo le previsioni selezionate"};
  Pulsante btnCopia{"&Copia in...", "Copia le previsioni selezionate in un altro metodo"};
  Pulsante btnSposta{"&Sposta in...", "Sposta le previsioni selezionate in un altro metodo"};
  Pulsante btnDuplica{"&Duplica", "Copia le previsioni selezionate in fondo allo stesso metodo"};
  Pulsante btnAnnulla{"&Annulla", ""};
  Pulsante btnEsci{"&Esci", "Chiudi la finestra"};

 private:
  /// What a step works on, as the user saw it when it began.
  struct Bersaglio {
    std::string metodo;
    FileMetodo griglia;
    std::vector<int> slot;
  };
  struct Fatto {
    std::string testo;  ///< "spostata la previsione n. 3 da «A» a «B»"
    PassoPrevisioni passo;
  };

  void tuttoArchivio();
  void aggiorna();
  [[nodiscard]] std::vector<RigaQuadro> giudica(const std::vector<std::string>& nomi);
  void mostraMetodi();
  void mostraPrevisioni();
  void mostraIntervallo();
  void mostraPulsanti();
  [[nodiscard]] std::string riassunto() const;
  [[nodiscard]] std::string nota(const RigaQuadro& riga) const;
  /// False, the user told and the old draw shown again, when the text is no draw.
  [[nodiscard]] bool leggiEstremo(CampoTesto& campo, int& estremo, Estremo quale);
  [[nodiscard]] const RigaQuadro* rigaScelta() const;
  [[nodiscard]] std::optional<Bersaglio> bersaglio() const;
  [[nodiscard]] std::string chiediMetodo(const std::string& domanda, const std::string& titolo,
                                         const std::string& tranne) const;
  void passo(const std::string& testo, const Bersaglio& bersaglio,
             const std::function<PassoPrevisioni(PrevisioniMetodo&)>& fai);
  /// Runs what may fail or be refused, tells a failure, and shows what there is now. True when it was done.
  bool prova(const std::function<bool()>& fai);
  /// Tells what a step has done; an empty text when it has done nothing.
  void racconta(const std::string& fatto);
  void rifiuta(const std::string& testo) const;

  Programma& programma_;
  ArchivioEstrazioni archivio_;
  int ultima_ = 0;
  IntervalloEstrazioni intervallo_;
  std::vector<RigaQuadro> righe_;
  std::optional<FileMetodo> griglia_;  ///< of the method whose predictions are shown
  std::vector<Fatto> fatti_;
  bool inCorso_ = false;
};

}  // namespace vaticlo
