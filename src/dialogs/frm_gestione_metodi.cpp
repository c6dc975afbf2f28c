#include "dialogs/frm_gestione_metodi.h"

#include "methods/cartella_metodi.h"
#include "methods/catalogo.h"
#include "operations/gestione_metodi.h"

namespace vaticlo {

frmGestioneMetodi::frmGestioneMetodi(Programma& programma, Cornice& cornice)
    : Finestra(cornice), programma_(programma) {
  Caption("Modifica Metodo");
  cmbMetodo.DropDown = [this] { cmbMetodo.riempi(esistenti()); };
  cmbMetodo.Click = [this] { cmbMetodo_Click(); };
  btnRinomina.Click = [this] { btnRinomina_Click(); };
  btnElimina.Click = [this] { btnElimina_Click(); };
  btnEsci.Click = [this] { btnEsci_Click(); };
}

void frmGestioneMetodi::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({3300, 5400, 900, 3500});
  cmbMetodo.DropDown();
}

void frmGestioneMetodi::cmbMetodo_Click() { txtNome.Text(cmbMetodo.Text()); }

void frmGestioneMetodi::btnRinomina_Click() {
  const auto nome = cmbMetodo.Text();
  if (!conferma("Rinominare il metodo \"" + nome + "\"?", Risposta::Si)) return;
  if (GestioneMetodi(programma_).rinomina(nome, txtNome.Text())) fatto("Il metodo è stato rinominato!");
}

void frmGestioneMetodi::btnElimina_Click() {
  const auto nome = cmbMetodo.Text();
  if (!conferma("Eliminare il metodo \"" + nome + "\" con tutte le sue previsioni?", Risposta::No)) return;
  if (GestioneMetodi(programma_).elimina(nome)) fatto("Il metodo è stato eliminato!");
}

void frmGestioneMetodi::btnEsci_Click() { cornice().chiudi(*this); }

bool frmGestioneMetodi::conferma(const std::string& domanda, Risposta predefinita) {
  if (cmbMetodo.ListIndex() < 0) {
    programma_.servizi.mostra(
        {"Nessun metodo selezionato!", "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
    return false;
  }
  return programma_.servizi.mostra({domanda, "Attenzione", Genere::Domanda, Icona::Nessuna, predefinita}) ==
         Risposta::Si;
}

void frmGestioneMetodi::fatto(const std::string& testo) {
  programma_.servizi.mostra({testo});
  cmbMetodo.Text("");
  cmbMetodo.riempi(esistenti());
  txtNome.Text("");
}

std::vector<std::string> frmGestioneMetodi::esistenti() const {
  auto nomi = metodiOfferti(programma_.cartella);
  std::erase_if(nomi, [this](const auto& nome) { return !esisteMetodo(programma_.cartella, nome); });
  return nomi;
}

}  // namespace vaticlo
