#include "dialogs/frm_metodi.h"

#include "dialogs/gestione_metodi.h"
#include "methods/catalogo.h"

namespace vaticlo {

frmMetodi::frmMetodi(Programma& programma, Cornice& cornice) : Finestra(cornice), programma_(programma) {
  Caption("Modifica Metodo");
  cmbMetodo.DropDown = [this] { cmbMetodo.riempi(esistenti()); };
  cmbMetodo.Click = [this] { cmbMetodo_Click(); };
  btnRinomina.Click = [this] { btnRinomina_Click(); };
  btnElimina.Click = [this] { btnElimina_Click(); };
  btnEsci.Click = [this] { btnEsci_Click(); };
}

void frmMetodi::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({3300, 5400, 900, 3500});
  cmbMetodo.DropDown();
}

void frmMetodi::cmbMetodo_Click() { txtNome.Text(cmbMetodo.Text()); }

void frmMetodi::btnRinomina_Click() {
  const auto nome = cmbMetodo.Text();
  if (!conferma("Rinominare il metodo \"" + nome + "\"?")) return;
  if (GestioneMetodi(programma_).rinomina(nome, txtNome.Text())) fatto("Il metodo è stato rinominato!");
}

void frmMetodi::btnElimina_Click() {
  const auto nome = cmbMetodo.Text();
  if (!conferma("Eliminare il metodo \"" + nome + "\" con tutte le sue previsioni?")) return;
  if (GestioneMetodi(programma_).elimina(nome)) fatto("Il metodo è stato eliminato!");
}

void frmMetodi::btnEsci_Click() { cornice().chiudi(*this); }

bool frmMetodi::conferma(const std::string& domanda) {
  if (cmbMetodo.ListIndex() < 0) {
    programma_.servizi.mostra(
        {"Nessun metodo selezionato!", "Attenzione", Pulsanti::Ok, Icona::Esclamazione});
    return false;
  }
  return programma_.servizi.mostra({domanda, "Attenzione", Pulsanti::SiNo}) == Risposta::Si;
}

void frmMetodi::fatto(const std::string& testo) {
  programma_.servizi.mostra({testo});
  cmbMetodo.Text("");
  cmbMetodo.riempi(esistenti());
  txtNome.Text("");
}

std::vector<std::string> frmMetodi::esistenti() const {
  auto nomi = metodiOfferti(programma_.cartella);
  std::erase_if(nomi, [this](const auto& nome) { return !programma_.cartella.esisteMetodo(nome); });
  return nomi;
}

}  // namespace vaticlo
