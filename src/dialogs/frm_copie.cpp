#include "dialogs/frm_copie.h"

#include <string>

#include "operations/importa_estrazioni.h"

namespace vaticlo {

frmCopie::frmCopie(Programma& programma, Cornice& cornice) : Finestra(cornice), programma_(programma) {
  Caption("Torna a una Copia");
  copie.Titolo("Copie");
  copie.Change = [this] { copie_Change(); };
  copie.Apri = [this] { btnRipristina_Click(); };
  btnRipristina.Click = [this] { btnRipristina_Click(); };
  btnEsci.Click = [this] { btnEsci_Click(); };
}

void frmCopie::Form_Load() {
  prendiMisure({5400, 9900, 600, 1000});
  rileggi();
  if (elenco_.empty())
    lblNota.Caption(lblNota.Caption() + " Per ora non ce n'è nessuna.");
  else
    copie.scegli({0});
}

void frmCopie::copie_Change() { btnRipristina.Enabled(copie.scelta().has_value()); }

void frmCopie::btnRipristina_Click() {
  const auto scelta = copie.scelta();
  if (!scelta) return;
  const auto copia = elenco_.at(*scelta);
  const bool archivio = copia.genere == GenereCopia::Archivio;
  const auto domanda = "Tornare alla copia " + copia.nome + " (" + contenuto(copia) +
                       ")? Di quel che c'è ora viene fatta prima un'altra copia." +
                       (archivio ? std::string("\n\n") + kNumeriDelleEstrazioni : "");
  if (programma_.servizi.mostra({domanda, "Attenzione", Genere::Domanda, Icona::Nessuna, Risposta::No}) !=
      Risposta::Si)
    return;
  if (!ripristinaCopia(programma_, copia.nome)) return;
  // What the other windows show of the methods may be gone.
  if (archivio)
    cornice().archivioNuovo();
  else
    cornice().chiudiAltre(*this);
  rileggi();
  programma_.servizi.mostra({"Ripristinata la copia " + copia.nome, Caption()});
}

void frmCopie::btnEsci_Click() { cornice().chiudi(*this); }

void frmCopie::rileggi() {
  elenco_ = elencoCopie(programma_.cartella);
  copie.mostra(tabellaDelle(elenco_));
  copie_Change();
}

}  // namespace vaticlo
