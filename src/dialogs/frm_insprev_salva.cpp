#include "dialogs/frm_insprev.h"
#include "methods/cartella_metodi.h"
#include "operations/copie.h"
#include "platform/blocco.h"
#include "platform/conversione.h"
#include "platform/failure.h"
#include "platform/testo.h"

namespace vaticlo {

void frmInsPrev::btnElabora_Click() {
  if (!salva()) return;
  programma_.servizi.mostra({"La previsione è stata salvata!"});
  ricomincia();
}

// The window that follows is of the same variant, whoever has set the value meanwhile.
void frmInsPrev::ricomincia() {
  programma_.globals.PrevisioneInModifica = modifica_;
  cornice().riapri(*this);
}

bool frmInsPrev::salva() {
  try {
    if (rifiutaCampiVuoti()) return false;
    if (!esisteMetodo(programma_.cartella, cmbMetodo.Text()))
      return rifiuta("Non esiste il file del metodo selezionato!", Icona::Nessuna);

    const BloccoCartella blocco(programma_.cartella.radice());
    auto metodo = LeggiMetodo(programma_.cartella, cmbMetodo.Text());
    int slot = 0;
    if (modifica_) {
      slot = cmbPrevisione.ItemDataScelta();
      SvuotaSlot(metodo, slot);
    } else {
      slot = PrimoSlotLibero(metodo);
      if (slot == 0) throw RifiutoPrevisione("Il metodo contiene già dieci previsioni!");
    }

    const auto data = dataDaTesto(estrazione.lbldataestr.Caption());
    if (!data) throw RuntimeFailure(Errore::TipoNonCorrispondente);
    scriviEstrazione(metodo, slot, inIntero16(estrazione.lblnestr.Caption()), *data);
    scriviTesti(metodo, slot, testi());
    if (modifica_) faiCopia(programma_, GenereCopia::Metodi);
    ScriviMetodo(programma_.cartella, cmbMetodo.Text(), metodo);
    return true;
  } catch (const RifiutoPrevisione& rifiuto) {
    return rifiuta(rifiuto.what());
  } catch (const RuntimeFailure& failure) {
    if (failure.errore() == Errore::CartellaOccupata) throw;  // nothing is wrong with what was typed
    return rifiuta("Errore nella creazione del metodo!");
  }
}

bool frmInsPrev::rifiutaCampiVuoti() {
  const auto vuoto = [](const std::string& testo) { return senzaBlanchi(testo).empty(); };
  if (vuoto(cmbMetodo.Text()))
    return !rifiuta("Bisogna scegliere il metodo al quale deve appartenere la previsione!");
  if (vuoto(txtRuote.Text())) return !rifiuta("Attenzione scegliere almeno una ruota di gioco!");
  if (vuoto(txtAmbate.Text()) && vuoto(txtAmbi.Text()) && vuoto(txtSup.Text()))
    return !rifiuta("Scegliere almeno una combinazione da giocare!");
  return false;
}

TestiPrevisione frmInsPrev::testi() const {
  return {.numero = txtNum.Text(),
          .ruote = txtRuote.Text(),
          .colpi = cmbColpi.Text(),
          .ambate = txtAmbate.Text(),
          .ambi = txtAmbi.Text(),
          .sup = txtSup.Text()};
}

}  // namespace vaticlo
