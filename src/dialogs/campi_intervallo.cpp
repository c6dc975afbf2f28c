#include "dialogs/campi_intervallo.h"

#include "dialogs/estremo_digitato.h"
#include "platform/conversione.h"

namespace vaticlo {

CampiIntervallo::CampiIntervallo(Programma& programma) : programma_(programma) {
  for (auto& campo : txtestr)
    campo.Change = [this] {
      mostraDate(ApriArchivio(programma_.cartella));
      if (Change) Change();
    };
}

void CampiIntervallo::prendi(const ArchivioEstrazioni& archivio) {
  ultima_ = archivio.PrimoIndiceLibero() - 1;
  txtestr[0].Text("1");
  txtestr[1].Text(std::to_string(ultima_));
  mostraDate(archivio);
}

void CampiIntervallo::segui(const ArchivioEstrazioni& archivio) {
  const bool finoAllUltima = txtestr[1].Text() == std::to_string(ultima_);
  ultima_ = archivio.PrimoIndiceLibero() - 1;
  if (finoAllUltima) txtestr[1].Text(std::to_string(ultima_));
  mostraDate(archivio);
}

std::optional<IntervalloEstrazioni> CampiIntervallo::intervallo() const {
  const auto dal = numero(0), al = numero(1);
  if (!dal || !al || *dal > *al) return std::nullopt;
  return IntervalloEstrazioni{*dal, *al};
}

std::optional<IntervalloEstrazioni> CampiIntervallo::leggi() {
  if (const auto letto = intervallo()) return letto;
  const auto dal = numero(0), al = numero(1);
  const std::string testo = ultima_ < 1   ? kSenzaEstrazioni
                            : !dal || !al ? "Il numero di un'estrazione dev'essere compreso tra 1 e " +
                                                std::to_string(ultima_) + "!"
                                          : "La prima estrazione non può venire dopo l'ultima!";
  programma_.servizi.mostra({testo, "Attenzione", Genere::Rifiuto, Icona::Esclamazione});
  (dal && !al ? txtestr[1] : txtestr[0]).SetFocus();
  return std::nullopt;
}

std::optional<int> CampiIntervallo::numero(std::size_t campo) const {
  return interoTra(txtestr.at(campo).Text(), 1, ultima_);
}

void CampiIntervallo::mostraDate(const ArchivioEstrazioni& archivio) {
  if (const auto scelto = intervallo())
    lblDate.Caption("dal " + archivio.DataEstrazione(scelto->dal) + " al " +
                    archivio.DataEstrazione(scelto->al));
  else
    lblDate.Caption(ultima_ < 1 ? "l'archivio è vuoto" : "da 1 a " + std::to_string(ultima_));
}

}  // namespace vaticlo
