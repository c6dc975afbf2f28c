#include <iostream>
#include <map>

#include "archive/ruota.h"
#include "console/comandi/comandi.h"
#include "console/cornice_vuota.h"
#include "console/passo_muto.h"
#include "console/sessione.h"
#include "dialogs/frm_modifica.h"
#include "dialogs/frm_somdif.h"
#include "operations/copie.h"

namespace vaticlo::comandi {

namespace {

/// A draw typed in on the command line: the entry form's fields and its date picker.
class EstrazioneNuova : public ControlliEstrazione {
 public:
  std::optional<Data> data;
  [[nodiscard]] std::optional<Data> mcdatecombo1_Value() const override { return data; }
};

clsGestione gestione(Sessione& sessione) { return {sessione.programma().cartella, sessione.servizi}; }

void riempi(ControlliEstrazione& controlli, const std::vector<std::string>& numeri) {
  for (std::size_t f = 0; f < controlli.txtestr.size(); ++f) controlli.txtestr[f].Text(numeri.at(f));
}

void stampa(const ControlliEstrazione& estrazione) {
  std::cout << "Estrazione n° " << estrazione.lblnestr.Caption() << " del "
            << estrazione.lbldataestr.Caption() << '\n';
  for (std::size_t ruota = 0; ruota < kTavolaRuote.size(); ++ruota) {
    std::cout << kTavolaRuote[ruota].sigla;
    for (std::size_t k = 0; k < 5; ++k) std::cout << ' ' << estrazione.txtestr[ruota * 5 + k].Text();
    std::cout << '\n';
  }
}

}  // namespace

Esito estrazione(Sessione& sessione, const Argomenti& argomenti) {
  ControlliEstrazione controlli;
  gestione(sessione).Visualizza(controlli, argomenti.intero("N"));
  stampa(controlli);
  return kFatto;
}

Esito trova(Sessione& sessione, const Argomenti& argomenti) {
  const auto& testo = argomenti["TESTO"];
  CorniceVuota cornice;
  frmModifica frm(sessione.programma(), cornice);
  frm.Form_Load();
  frm.Form_Activate();
  sessione.servizi.preparaRisposta(testo);
  frm.btnTrova_Click();
  if (!testo.empty() && !sessione.servizi.rifiutato()) stampa(frm.estrazione);
  return kFatto;
}

Esito inserisci(Sessione& sessione, const Argomenti& argomenti) {
  EstrazioneNuova nuova;
  nuova.data = dataDaTesto(argomenti["DATA"]);
  if (!nuova.data) throw UsoErrato("DATA deve avere la forma gg/mm/aaaa, non \"" + argomenti["DATA"] + "\"");
  riempi(nuova, argomenti.tutti("NUMERI"));
  const int n = gestione(sessione).salva(nuova);
  std::cout << "Salvata l'estrazione n° " << n << '\n';
  return kFatto;
}

Esito modifica(Sessione& sessione, const Argomenti& argomenti) {
  const int n = argomenti.intero("N");
  const PassoMuto passo(sessione.programma().cartella);
  ControlliEstrazione controlli;
  gestione(sessione).Visualizza(controlli, n);
  riempi(controlli, argomenti.tutti("NUMERI"));
  gestione(sessione).salva(controlli, n);
  std::cout << "Salvata l'estrazione n° " << n << '\n';
  return kFatto;
}

Esito cancella(Sessione& sessione, const Argomenti& argomenti) {
  const int n = argomenti.intero("N");
  const PassoMuto passo(sessione.programma().cartella);
  const int ultima = ApriArchivio(sessione.programma().cartella).PrimoIndiceLibero() - 1;
  if (n < 1 || n > ultima) {
    sessione.servizi.mostra({"L'estrazione n° " + std::to_string(n) + " non c'è: l'archivio ne contiene " +
                                 std::to_string(ultima) + ".",
                             "Attenzione", Genere::Rifiuto});
    return kFatto;
  }
  faiCopia(sessione.programma(), GenereCopia::Archivio);
  ControlliEstrazione controlli;
  gestione(sessione).cancella(controlli, static_cast<std::int16_t>(n));
  std::cout << "Cancellata l'estrazione n° " << n << '\n';
  return kFatto;
}

Esito somdif(Sessione& sessione, const Argomenti& argomenti) {
  static const std::map<std::string, TipoSomDif> kTipi = {{"ciclometrica", TipoSomDif::Ciclometrica},
                                                          {"matematica", TipoSomDif::Matematica},
                                                          {"somma", TipoSomDif::Somma}};
  const auto tipo = kTipi.find(argomenti["--tipo"]);
  if (tipo == kTipi.end())
    throw UsoErrato("--tipo deve essere ciclometrica, matematica o somma, non \"" + argomenti["--tipo"] +
                    "\"");
  const int n = argomenti.intero("N");
  CorniceVuota cornice;
  frmSomdif frm(sessione.programma(), cornice);
  sessione.programma().globals.EstrazioneSomdif = n;
  frm.opzione_Click(tipo->second);
  for (std::size_t i = 0; i < kRuoteSomDif; ++i) {
    std::cout << kTavolaRuote[i].sigla;
    for (const auto& colonna : frm.colonne)
      std::cout << ' ' << colonna[i].Text() << (colonna[i].BackColor() == kGiallo ? "*" : "");
    std::cout << '\n';
  }
  return kFatto;
}

}  // namespace vaticlo::comandi
