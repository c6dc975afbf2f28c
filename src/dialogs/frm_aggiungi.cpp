#include "dialogs/frm_aggiungi.h"

#include <string>
#include <utility>

#include "dialogs/quanti.h"
#include "operations/importa_estrazioni.h"

namespace vaticlo {

namespace {

std::string inArchivio(const ArchivioEstrazioni& archivio) {
  const int ultima = archivio.PrimoIndiceLibero() - 1;
  if (ultima == 0) return "L'archivio è vuoto.";
  return "L'archivio contiene " + quanti(ultima, "estrazione", "estrazioni") + ", l'ultima del " +
         archivio.DataEstrazione(ultima) + ".";
}

std::string nuoveInParole(const Aggiunta& anteprima) {
  return anteprima.nuove() == 1 ? "1 estrazione, del " + anteprima.archivio.DataEstrazione(anteprima.dal)
                                : riassunto(anteprima);
}

std::string anteprimaInParole(const Aggiunta& anteprima) {
  return (anteprima.nuove() == 0 ? "Nessuna estrazione nuova."
                                 : "Da aggiungere: " + nuoveInParole(anteprima) + ".") +
         " Confrontate: " + std::to_string(anteprima.confrontate) + ".";
}

}  // namespace

frmAggiungi::frmAggiungi(Programma& programma, Cornice& cornice) : Finestra(cornice), programma_(programma) {
  Caption(kTitoloAggiungi);
  btnInternet.Click = [this] { btnInternet_Click(); };
  btnFile.Click = [this] { btnFile_Click(); };
  btnAggiungi.Click = [this] { btnAggiungi_Click(); };
  btnEsci.Click = [this] { btnEsci_Click(); };
  differenze.Titolo("Differenze tra archivio e testo");
}

void frmAggiungi::Form_Load() {
  prendiMisure({6600, 8400, 600, 1500});
  ricomincia();
}

void frmAggiungi::btnInternet_Click() {
  if (auto testo = estrazioniDaInternet(programma_, indirizzoStorico())) confronta(std::move(*testo));
}

void frmAggiungi::btnFile_Click() {
  const auto file = programma_.servizi.scegliFile(kTitoloAggiungi);
  if (file.empty()) return;
  if (auto testo = leggiOSpiega(programma_.servizi, file, kTitoloAggiungi)) confronta(std::move(*testo));
}

void frmAggiungi::btnAggiungi_Click() {
  if (!aggiunta_->scrivi()) {
    mostra();
    return;
  }
  const auto aggiunte = (aggiunta_->anteprima().nuove() == 1 ? "Aggiunta " : "Aggiunte ") +
                        nuoveInParole(aggiunta_->anteprima());
  ricomincia();
  cornice().estrazioniAggiunte();
  programma_.servizi.mostra({aggiunte, kTitoloAggiungi});
}

void frmAggiungi::btnEsci_Click() { cornice().chiudi(*this); }

void frmAggiungi::confronta(ArchivioEstrazioni testo) {
  ricomincia();
  auto preparata = AggiuntaEstrazioni::prepara(programma_, std::move(testo));
  if (!preparata) return;
  aggiunta_.emplace(std::move(*preparata));
  mostra();
}

void frmAggiungi::mostra() {
  const auto& anteprima = aggiunta_->anteprima();
  lblArchivio.Caption(inArchivio(ApriArchivio(programma_.cartella)));  // it may have changed meanwhile
  lblAnteprima.Caption(anteprimaInParole(anteprima));
  std::string avvertenze;
  for (const auto& frase : anteprima.avvertenze) avvertenze += (avvertenze.empty() ? "" : "\n") + frase;
  txtAvvertenze.Text(avvertenze);
  txtAvvertenze.Visible(!avvertenze.empty());
  const bool diverse = !anteprima.differenze.empty();
  differenze.mostra(tabellaDelle(anteprima.differenze));
  differenze.Visible(diverse);
  lblDifferenze.Visible(diverse);
  lblDifferenze.Caption(
      "Il testo e l'archivio non dicono le stesse cose (" + std::to_string(anteprima.differenze.size()) +
      "). Le estrazioni dell'archivio restano come sono; si correggono con Modifica Estrazione.");
  btnAggiungi.Caption(diverse ? "&Aggiungi lo stesso" : kAggiungi);
  btnAggiungi.Enabled(anteprima.nuove() > 0);
}

void frmAggiungi::ricomincia() {
  aggiunta_.reset();
  lblArchivio.Caption(inArchivio(ApriArchivio(programma_.cartella)));
  lblAnteprima.Caption("");
  txtAvvertenze.Visible(false);
  lblDifferenze.Visible(false);
  differenze.mostra(tabellaDelle({}));
  differenze.Visible(false);
  btnAggiungi.Caption(kAggiungi);
  btnAggiungi.Enabled(false);
}

}  // namespace vaticlo
