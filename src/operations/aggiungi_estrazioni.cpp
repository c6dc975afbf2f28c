#include "operations/aggiungi_estrazioni.h"

#include <algorithm>
#include <utility>

#include "archive/importazione.h"
#include "operations/importa_estrazioni.h"
#include "operations/un_passo.h"

namespace vaticlo {

namespace {

void rifiuta(Servizi& servizi, const std::string& testo) {
  servizi.mostra(
      {testo + " L'archivio è rimasto com'era.", kTitoloAggiungi, Genere::Rifiuto, Icona::Esclamazione});
}

// What a network sends that wants to be asked first.
bool paginaWeb(const std::string& contenuto) {
  const auto inizio = contenuto.find_first_not_of(" \t\r\n");
  return inizio != std::string::npos && contenuto[inizio] == '<';
}

}  // namespace

std::string indirizzoStorico() { return VATICLO_STORICO; }

std::optional<ArchivioEstrazioni> estrazioniDaInternet(Programma& programma, const std::string& indirizzo) {
  auto& tenuto = programma.storico;
  if (tenuto.indirizzo != indirizzo) tenuto = {};
  const auto scaricato = programma.servizi.preleva(indirizzo, tenuto.modificato);
  if (scaricato.esito == Scaricato::Esito::Fallito) {
    rifiuta(programma.servizi, "Le estrazioni non si possono scaricare: " + scaricato.motivo + ".");
    return std::nullopt;
  }
  const bool nuovo = scaricato.esito == Scaricato::Esito::Arrivato;
  const auto& contenuto = nuovo ? scaricato.contenuto : tenuto.contenuto;
  try {
    auto estrazioni = estrazioniDa(contenuto);
    if (nuovo) tenuto = {indirizzo, scaricato.modificato, scaricato.contenuto};
    return estrazioni;
  } catch (const ErroreImportazione& errore) {
    rifiuta(
        programma.servizi,
        paginaWeb(contenuto)
            ? "Al posto delle estrazioni è arrivata una pagina web: se la rete chiede un accesso, apritela "
              "prima con il browser."
            : std::string("Il testo che è arrivato non va bene: ") + errore.what() + ".");
    return std::nullopt;
  }
}

AggiuntaEstrazioni::AggiuntaEstrazioni(Programma& programma, ArchivioEstrazioni testo)
    : programma_(programma),
      testo_(std::move(testo)),
      confrontato_(ApriArchivio(programma.cartella)),
      anteprima_(preparaAggiunta(confrontato_, testo_)) {}

std::optional<AggiuntaEstrazioni> AggiuntaEstrazioni::prepara(Programma& programma,
                                                              ArchivioEstrazioni testo) {
  try {
    return AggiuntaEstrazioni(programma, std::move(testo));
  } catch (const ErroreImportazione& errore) {
    rifiuta(programma.servizi, std::string("Non si può aggiungere niente: ") + errore.what() + ".");
    return std::nullopt;
  }
}

bool AggiuntaEstrazioni::scrivi() {
  return inUnPasso(programma_, [this] {
    auto presente = ApriArchivio(programma_.cartella);
    if (!std::ranges::equal(presente.ottetti(), confrontato_.ottetti())) {
      try {
        anteprima_ = preparaAggiunta(presente, testo_);
      } catch (const ErroreImportazione& errore) {
        throw Rifiuto{std::string("Intanto l'archivio è cambiato: ") + errore.what() + "."};
      }
      confrontato_ = std::move(presente);
      throw Rifiuto{"Intanto l'archivio è cambiato: le estrazioni sono state confrontate di nuovo."};
    }
    sostituisciArchivio(programma_, anteprima_.archivio);
  });
}

}  // namespace vaticlo
