#include "dialogs/frm_insprev.h"
#include "platform/blocco.h"
#include "platform/conversione.h"
#include "platform/failure.h"
#include "platform/testo.h"

namespace vaticlo {

void frmInsPrev::btnElabora_Click() {
  if (!salva()) return;
  programma_.servizi.mostra({"La previsione è stata salvata!"});
  cornice().riapri(*this);
}

bool frmInsPrev::salva() {
  try {
    if (rifiutaCampiVuoti()) return false;
    if (!programma_.cartella.esisteMetodo(cmbMetodo.Text()))
      return rifiuta("Non esiste il file del metodo selezionato!", Icona::Nessuna);

    const BloccoCartella blocco(programma_.cartella.radice());
    auto metodo = LeggiMetodo(programma_.cartella, cmbMetodo.Text());
    int slot = 0;
    if (programma_.globals.PrevisioneInModifica) {
      slot = cmbPrevisione.ItemDataScelta();
      for (int campo = 0; campo < FileMetodo::Campi; ++campo)
        for (int pos = 1; pos <= FileMetodo::Posizioni; ++pos) metodo(slot, campo, pos) = 0;
    } else {
      slot = primoSlotLibero(metodo);
      if (slot == 0) throw RifiutoPrevisione("Il metodo contiene già dieci previsioni!");
    }

    const auto data = dataDaTesto(estrazione.lbldataestr.Caption());
    if (!data) throw RuntimeFailure(Errore::TipoNonCorrispondente);
    scriviEstrazione(metodo, slot, inIntero16(estrazione.lblnestr.Caption()), *data);
    scriviTesti(metodo, slot, testi());
    ScriviMetodo(programma_.cartella, cmbMetodo.Text(), metodo);
    return true;
  } catch (const RifiutoPrevisione& rifiuto) {
    return rifiuta(rifiuto.what());
  } catch (const RuntimeFailure&) {
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

// A prediction on a draw below number 100 has hundreds 0 and counts as free, and of its slot only the draw,
// the date and the telephone number are cleared: the next save goes over it, and what stood behind the ends
// of the new lists reads as part of them. Meant.
int frmInsPrev::primoSlotLibero(const FileMetodo& metodo) const {
  for (int slot = 1; slot <= FileMetodo::Slot; ++slot)
    if (metodo(slot, kCampoEstrazione, 1) == 0) return slot;
  return 0;
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
