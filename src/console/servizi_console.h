#pragma once

#include <functional>
#include <string>

#include "platform/servizi.h"

namespace vaticlo {

/// The services of a program without windows: messages go to standard output, a Yes/No question is answered
/// Yes and not printed, an input box gets the text prepared for it; what is said in passing goes to standard
/// error.
class ServiziConsole : public Servizi {
 public:
  Risposta mostra(const Messaggio& messaggio) override;
  std::string chiedi(const std::string& testo, const std::string& titolo) override;
  std::filesystem::path scegliFile(const std::string& /*titolo*/) override { return {}; }
  void avanzamento(const std::string& /*lavoro*/, int /*percento*/) override {}
  void stampa(const std::string& testo) override;
  bool scarica(const std::string& indirizzo, const std::filesystem::path& destinazione) override;
  Scaricato preleva(const std::string& indirizzo, std::int64_t seModificatoDopo) override;
  void segnala(const std::string& testo) override;
  void apriPagina(const std::string& indirizzo) override;
  [[nodiscard]] std::chrono::year_month_day oggi() const override;
  void eventiInAttesa() override;
  void ridisegna() override {}

  /// What the next input box is answered with.
  void preparaRisposta(std::string risposta) { risposta_ = std::move(risposta); }
  /// What runs whenever the logic yields to pending events.
  void eventi(std::function<void()> eventi) { eventi_ = std::move(eventi); }

  /// A refusal has been shown since dimentica().
  [[nodiscard]] bool rifiutato() const { return rifiutato_; }
  void dimentica() { rifiutato_ = false; }

 private:
  std::string risposta_;
  std::function<void()> eventi_;
  bool rifiutato_ = false;
};

}  // namespace vaticlo
