#include "console/servizi_console.h"

#include <iostream>

#include "console/barra.h"
#include "platform/orologio.h"
#include "platform/scaricamento.h"

namespace vaticlo {

Risposta ServiziConsole::mostra(const Messaggio& messaggio) {
  if (messaggio.genere == Genere::Domanda) return Risposta::Si;
  std::cout << '[' << messaggio.titolo << "] " << messaggio.testo << '\n';
  rifiutato_ = rifiutato_ || messaggio.genere == Genere::Rifiuto;
  return Risposta::Ok;
}

std::string ServiziConsole::chiedi(const std::string& /*testo*/, const std::string& /*titolo*/) {
  return risposta_;
}

void ServiziConsole::stampa(const std::string& /*testo*/) {}

bool ServiziConsole::scarica(const std::string& indirizzo, const std::filesystem::path& destinazione) {
  return scaricaInFile(indirizzo, destinazione);
}

Scaricato ServiziConsole::preleva(const std::string& indirizzo, std::int64_t seModificatoDopo) {
  BarraSuTerminale barra;
  LimitiScaricamento limiti;
  limiti.avanzamento = [&barra](int percento) { barra.mostra(percento, 100); };
  auto scaricato = scaricaInMemoria(indirizzo, seModificatoDopo, limiti);
  barra.togli();
  return scaricato;
}

void ServiziConsole::segnala(const std::string& testo) { std::cerr << testo << '\n'; }

void ServiziConsole::apriPagina(const std::string& /*indirizzo*/) {}

std::chrono::year_month_day ServiziConsole::oggi() const { return dataLocale(); }

void ServiziConsole::eventiInAttesa() {
  if (eventi_) eventi_();
}

}  // namespace vaticlo
