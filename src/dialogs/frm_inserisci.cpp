#include "dialogs/frm_inserisci.h"

#include "archive/ruota.h"
#include "dialogs/data_digitata.h"
#include "platform/conversione.h"

namespace vaticlo {

frmInserisci::frmInserisci(Programma& programma, Cornice& cornice)
    : Finestra(cornice), programma_(programma) {
  Caption("Inserimento Estrazioni");
  for (int f = 0; f < kCampiEstrazione; ++f) {
    auto& campo = txtestr.at(static_cast<std::size_t>(f));
    campo.Mask("##");
    campo.Text("  ");
    campo.Validate = [this, f] { return txtestr_Validate(f); };
  }
  mcdatecombo1.CausesValidation = false;  // the date can be chosen first
  mcdatecombo1.Validate = [this](const std::string& digitata) {
    return trattieneData(mcdatecombo1, digitata, programma_.servizi);
  };
  btnSalva.Click = [this] { btnSalva_Click(); };
  btnCancella.Click = [this] { btnCancella_Click(); };
  btnCancella.CausesValidation = false;  // leaving is always possible
}

void frmInserisci::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({5475, 7530, 500, 1750});
  mcdatecombo1.Value(programma_.servizi.oggi());
}

bool frmInserisci::txtestr_Validate(int f) {
  const auto numero = numeroDaTesto(txtestr_Text(f));
  if (!numero || *numero <= 0 || *numero > kNumeri) {
    programma_.servizi.mostra({"Inserire un valore valido compreso tra 1 e 90", "Attenzione", Genere::Rifiuto,
                               Icona::Esclamazione});
    return true;
  }
  // Meant: texts are compared, and only with the fields at the left. A digit typed in the right-hand place of
  // the mask is another text than the same digit in the left-hand place.
  for (int i = 1; i <= f % ArchivioEstrazioni::Colonne; ++i)
    if (txtestr_Text(f) == txtestr_Text(f - i)) {
      programma_.servizi.mostra({"''" + txtestr_Text(f) + "'' è stato già inserito come estratto nella ruota",
                                 "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
      return true;
    }
  return false;
}

void frmInserisci::btnSalva_Click() {
  const auto risposta =
      programma_.servizi.mostra({"Sei sicuro di voler salvare l'estrazione", "Attenzione", Genere::Domanda});
  if (risposta != Risposta::Si) return;
  const int n = clsGestione(programma_.cartella, programma_.servizi).salva(*this);
  programma_.servizi.fatto("Estrazione " + std::to_string(n) + " salvata");
  cornice().riapri(*this);
}

void frmInserisci::btnCancella_Click() { cornice().chiudi(*this); }

}  // namespace vaticlo
