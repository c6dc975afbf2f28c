#include <iostream>
#include <map>

#include "archive/ruota.h"
#include "console/comandi/comandi.h"
#include "console/cornice_vuota.h"
#include "console/passo_muto.h"
#include "console/sessione.h"
#include "console/uscita.h"
#include "dialogs/frm_modifica.h"
#include "dialogs/frm_somdif.h"
#include "operations/copie.h"
#include "platform/testo.h"

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

/// The rows of a table as they were printed ever since: fields between single blanks, no heads.
void stampaRighe(const Tabella& tabella) {
  for (const auto& celle : tabella.righe) {
    for (std::size_t n = 0; n < celle.size(); ++n) std::cout << (n > 0 ? " " : "") << testoCella(celle[n]);
    std::cout << '\n';
  }
}

void mostra(const ControlliEstrazione& estrazione, const Argomenti& argomenti) {
  Tabella tabella{{{"Ruota"}, {"1°"}, {"2°"}, {"3°"}, {"4°"}, {"5°"}}, {}};
  auto ruote = Json::object();
  for (std::size_t ruota = 0; ruota < kTavolaRuote.size(); ++ruota) {
    const std::string sigla(kTavolaRuote[ruota].sigla);
    auto& riga = tabella.righe.emplace_back(1, sigla);
    for (std::size_t k = 0; k < 5; ++k) {
      riga.push_back(numeroOTesto(estrazione.txtestr[ruota * 5 + k].Text()));
      ruote[sigla].push_back(valore(riga.back()));
    }
  }
  const auto &numero = estrazione.lblnestr.Caption(), &data = estrazione.lbldataestr.Caption();
  stampa({.oggetto = {{"numero", valore(numeroOTesto(numero))}, {"data", data}, {"ruote", ruote}},
          .tabella = tabella,
          .testo =
              [&] {
                std::cout << "Estrazione n° " << numero << " del " << data << '\n';
                stampaRighe(tabella);
              }},
         argomenti);
}

/// The values that the window shows, those in yellow with an asterisk.
Tabella tabellaDelle(const frmSomdif& frm) {
  Tabella tabella{{{"Ruota"}}, {}};
  for (const auto& coppia : kCoppiePosizioni) tabella.colonne.push_back({std::string(coppia.testa)});
  for (std::size_t i = 0; i < kRuoteSomDif; ++i) {
    auto& riga = tabella.righe.emplace_back(1, std::string(kTavolaRuote[i].sigla));
    for (const auto& colonna : frm.colonne)
      riga.emplace_back(colonna[i].Text() + (colonna[i].BackColor() == kGiallo ? "*" : ""));
  }
  return tabella;
}

Json ruoteDelle(const frmSomdif& frm) {
  auto ruote = Json::object();
  for (std::size_t i = 0; i < kRuoteSomDif; ++i) {
    auto& ruota = ruote[std::string(kTavolaRuote[i].sigla)];
    for (const auto& colonna : frm.colonne) {
      ruota["valori"].push_back(valore(numeroOTesto(colonna[i].Text())));
      ruota["gialli"].push_back(colonna[i].BackColor() == kGiallo);
    }
  }
  return ruote;
}

}  // namespace

Esito estrazione(Sessione& sessione, const Argomenti& argomenti) {
  ControlliEstrazione controlli;
  gestione(sessione).Visualizza(controlli, argomenti.intero("N"));
  mostra(controlli, argomenti);
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
  if (!testo.empty() && !sessione.servizi.rifiutato()) mostra(frm.estrazione, argomenti);
  return kFatto;
}

Esito inserisci(Sessione& sessione, const Argomenti& argomenti) {
  EstrazioneNuova nuova;
  nuova.data = dataDaTesto(argomenti["DATA"]);
  if (!nuova.data)
    throw UsoErrato("DATA deve avere la forma gg/mm/aaaa, non \"" + citazione(argomenti["DATA"]) + "\"");
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
    throw UsoErrato("--tipo deve essere ciclometrica, matematica o somma, non \"" +
                    citazione(argomenti["--tipo"]) + "\"");
  const int n = argomenti.intero("N");
  CorniceVuota cornice;
  frmSomdif frm(sessione.programma(), cornice);
  sessione.programma().globals.EstrazioneSomdif = n;
  frm.opzione_Click(tipo->second);
  const auto tabella = tabellaDelle(frm);
  const bool teste = sessione.aTerminale || argomenti.seDato("--intestazioni");
  stampa({.oggetto = {{"numero", n},
                      {"data", frm.lbldataestr.Caption()},
                      {"tipo", tipo->first},
                      {"ruote", ruoteDelle(frm)}},
          .tabella = tabella,
          .testo = [&] { teste ? stampaAllineata(tabella) : stampaRighe(tabella); }},
         argomenti);
  return kFatto;
}

}  // namespace vaticlo::comandi
