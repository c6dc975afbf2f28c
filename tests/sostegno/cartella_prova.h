#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "methods/cartella_metodi.h"
#include "platform/percorso.h"
#include "platform/scaricamento.h"
#include "program/programma.h"

namespace vaticlo::prova {

/// Services that give the answers a test has set and remember what they were asked.
class ServiziProva : public Servizi {
 public:
  Risposta mostra(const Messaggio& messaggio) override {
    messaggi.push_back(messaggio);
    return messaggio.genere == Genere::Domanda ? risposta : Risposta::Ok;
  }
  std::string chiedi(const std::string& testo, const std::string& titolo) override {
    domande.push_back({testo, titolo});
    return digitato;
  }
  std::filesystem::path scegliFile(const std::string& /*titolo*/) override { return scelto; }
  void avanzamento(const std::string& /*lavoro*/, int percento) override { percenti.push_back(percento); }
  void stampa(const std::string& testo) override { stampati.push_back(testo); }
  bool scarica(const std::string& indirizzo, const std::filesystem::path& destinazione) override {
    scaricati.push_back(indirizzo + " " + destinazione.filename().string());
    return true;
  }
  Scaricato preleva(const std::string& indirizzo, std::int64_t seModificatoDopo) override {
    return scaricaInMemoria(indirizzo, seModificatoDopo);
  }
  void segnala(const std::string& testo) override { segnalati.push_back(testo); }
  void fatto(const std::string& testo) override { fatti.push_back(testo); }
  void apriPagina(const std::string& indirizzo) override { pagine.push_back(indirizzo); }
  [[nodiscard]] std::chrono::year_month_day oggi() const override { return giornoDiOggi; }
  void eventiInAttesa() override {
    ++pause;
    if (allaPausa) allaPausa();
  }
  void ridisegna() override { eventiInAttesa(); }

  /// The texts of the message boxes so far, as "[title] text".
  [[nodiscard]] std::vector<std::string> detti() const {
    std::vector<std::string> testi;
    for (const auto& messaggio : messaggi) testi.push_back("[" + messaggio.titolo + "] " + messaggio.testo);
    return testi;
  }

  Risposta risposta = Risposta::Si;
  std::string digitato;
  std::filesystem::path scelto;
  std::chrono::year_month_day giornoDiOggi{std::chrono::year{2026}, std::chrono::March, std::chrono::day{14}};
  std::function<void()> allaPausa;
  std::vector<Messaggio> messaggi;
  std::vector<std::pair<std::string, std::string>> domande;
  std::vector<std::string> stampati, scaricati, segnalati, fatti, pagine;
  std::vector<int> percenti;
  int pause = 0;
};

/// A program in a folder of its own under the temporary files, with `Metodi` in it, gone at the end.
struct ProgrammaProva {
  ProgrammaProva() { std::filesystem::create_directories(cartellaMetodi(cartella())); }
  ProgrammaProva(const ProgrammaProva&) = delete;
  ProgrammaProva& operator=(const ProgrammaProva&) = delete;
  ~ProgrammaProva() {
    std::error_code ignorato;
    std::filesystem::remove_all(radice, ignorato);
  }

  ServiziProva servizi;
  std::filesystem::path radice =
      std::filesystem::temp_directory_path() /
      ("vaticlo-" + std::to_string(std::random_device{}()) + std::to_string(std::random_device{}()));
  Programma programma{radice, servizi};

  [[nodiscard]] const CartellaProgramma& cartella() const { return programma.cartella; }
  [[nodiscard]] Globals& globals() { return programma.globals; }
  /// The bytes of a file of the folder; an empty text when there is none.
  [[nodiscard]] std::string contenuto(std::string_view nome) const {
    std::ifstream file(radice / percorsoDa(nome), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  [[nodiscard]] bool esiste(std::string_view nome) const {
    return std::filesystem::exists(radice / percorsoDa(nome));
  }
  void scrivi(std::string_view nome, std::string_view ottetti) const {
    std::ofstream(radice / percorsoDa(nome), std::ios::binary) << ottetti;
  }
};

}  // namespace vaticlo::prova
