#include "dialogs/frm_modifica.h"

#include "dialogs/ricerca_estrazione.h"
#include "operations/copie.h"
#include "platform/conversione.h"

namespace vaticlo {

frmModifica::frmModifica(Programma& programma, Cornice& cornice) : Finestra(cornice), programma_(programma) {
  Caption("Modifica Estrazione");
  for (auto& campo : estrazione.txtestr) campo.InvioComeTab = true;
  estrazione.VScroll1.Change = [this] { VScroll1_Change(); };
  btnSalva.Click = [this] { btnSalva_Click(); };
  btnCancella.Click = [this] { btnCancella_Click(); };
  btnTrova.Click = [this] { btnTrova_Click(); };
  btnTrova.tasto = kTastoCerca;
  btnAnnulla.Click = [this] { btnAnnulla_Click(); };
}

void frmModifica::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({5475, 7935, 500, 1550});
}

void frmModifica::Form_Activate() {
  auto& corrente = programma_.globals.EstrazioneCorrente;
  corrente = ApriArchivio(programma_.cartella).PrimoIndiceLibero();
  estrazione.VScroll1.Max(corrente);
  // Meant: a bar that moves shows the last draw; when it is at its end already the free slot after it is
  // shown (guide: "La finestra Modifica Estrazione e le altre").
  estrazione.VScroll1.Value(estrazione.VScroll1.Max());
  visualizza(corrente);
}

void frmModifica::VScroll1_Change() {
  programma_.globals.EstrazioneCorrente = estrazioneDellaBarra(estrazione.VScroll1);
  visualizza(programma_.globals.EstrazioneCorrente);
}

void frmModifica::btnSalva_Click() {
  const auto risposta = programma_.servizi.mostra(
      {"Sei sicuro di voler modificare l'estrazione corrente", "Attenzione", Genere::Domanda});
  if (risposta != Risposta::Si) return;
  const int n = clsGestione(programma_.cartella, programma_.servizi)
                    .salva(estrazione, programma_.globals.EstrazioneCorrente);
  programma_.servizi.fatto("Estrazione " + std::to_string(n) + " salvata");
}

void frmModifica::btnCancella_Click() {
  const auto risposta =
      programma_.servizi.mostra({"Sei sicuro di voler cancellare l'estrazione selezionata", "Attenzione",
                                 Genere::Domanda, Icona::Nessuna, Risposta::No});
  if (risposta != Risposta::Si) return;
  faiCopia(programma_, GenereCopia::Archivio);
  const auto n = inIntero16(estrazione.lblnestr.Caption());
  clsGestione(programma_.cartella, programma_.servizi).cancella(estrazione, n);
  programma_.servizi.fatto("Estrazione " + std::to_string(n) + " cancellata");
  cornice().riapri(*this);
}

void frmModifica::btnTrova_Click() {
  cercaEstrazione(programma_, estrazione.VScroll1, estrazione, [this](int x) { visualizza(x); });
}

void frmModifica::btnAnnulla_Click() { cornice().chiudi(*this); }

void frmModifica::visualizza(int n) {
  clsGestione(programma_.cartella, programma_.servizi).Visualizza(estrazione, n);
}

}  // namespace vaticlo
