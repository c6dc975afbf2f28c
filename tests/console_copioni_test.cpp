#include <fstream>
#include <regex>
#include <stdexcept>

#include "platform/rapporto.h"
#include "sostegno/console_prova.h"

namespace vaticlo::prova {
namespace {

/// A command, or a file to write, and what is said of it.
struct Passo {
  std::string comando, detto = {};
  std::vector<std::string> errori = {};
  int stato = 0;
};

struct Caso {
  std::string nome;
  std::vector<Passo> passi;
};

/// The cases of a script. "== " begins one with its name, "$ " a command, "> " a file with its text, "< " a
/// report and what is in it. After a command stands what it says ("..." for any lines), "! " a part of what
/// it says of an error, "? " its status when that is not 0. What comes before the first case is done before
/// each. "DATI" is the folder of the scripts.
std::vector<Caso> casiDi(const std::filesystem::path& file) {
  std::vector<Caso> casi(1);
  std::ifstream testo(file);
  for (std::string riga; std::getline(testo, riga);) {
    const auto resto = riga.size() < 2 ? "" : riga.substr(2);
    if (riga.starts_with("== "))
      casi.push_back({riga.substr(3), casi[0].passi});
    else if (riga.starts_with("$ ") || riga.starts_with("> ") || riga.starts_with("< "))
      casi.back().passi.push_back({riga.starts_with("$") ? resto : riga});
    else if (riga.starts_with("# "))
      continue;
    else if (riga.starts_with("! "))
      casi.back().passi.back().errori.push_back(resto);
    else if (riga.starts_with("? "))
      casi.back().passi.back().stato = std::stoi(resto);
    else
      casi.back().passi.back().detto += riga + "\n";
  }
  casi.erase(casi.begin());
  if (casi.empty()) throw std::runtime_error("no case in " + file.string());
  return casi;
}

/// Whether the text is the one expected, in which "..." stands for any lines. Neither carriage returns nor
/// empty lines at the end count.
bool uguali(std::string testo, std::string atteso) {
  std::erase(testo, '\r');
  for (auto* t : {&testo, &atteso}) t->erase(t->find_last_not_of('\n') + 1);
  std::size_t posto = 0, salti = 0;
  for (std::size_t salto = 0; (salto = atteso.find("...")) != std::string::npos; ++salti) {
    const auto trovato = testo.find(atteso.substr(0, salto), posto);
    if (trovato == std::string::npos || (salti == 0 && trovato != 0)) return false;
    posto = trovato + salto;
    atteso.erase(0, salto + 3);
  }
  testo.erase(0, posto);
  return salti == 0 ? testo == atteso : testo.ends_with(atteso);
}

class Copione : public Console {
 public:
  explicit Copione(Caso caso) : caso_(std::move(caso)) {}
  void TestBody() override {
    for (const auto& passo : caso_.passi) {
      SCOPED_TRACE(passo.comando);
      if (passo.comando.starts_with("> ")) {
        p.scrivi(passo.comando.substr(2), passo.detto);
        continue;
      }
      if (passo.comando.starts_with("< ")) {
        EXPECT_TRUE(uguali(testoRapporto(p.radice / passo.comando.substr(2)), passo.detto));
        continue;
      }
      EXPECT_EQ(esegui(std::regex_replace(passo.comando, std::regex("DATI"), VATICLO_COPIONI)), passo.stato);
      EXPECT_TRUE(uguali(detto, passo.detto)) << detto;
      for (const auto& parte : passo.errori) EXPECT_THAT(errori, HasSubstr(parte));
      EXPECT_EQ(errori.empty(), passo.errori.empty()) << errori;
    }
  }

 private:
  Caso caso_;
};

const bool kRegistrati = [] {
  for (const char* nome : {"comandi", "rapporti", "analisi", "giocate", "aggiunta"})
    for (const auto& caso : casiDi(std::filesystem::path(VATICLO_COPIONI) / (std::string(nome) + ".txt")))
      testing::RegisterTest(nome, caso.nome.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                            [caso]() -> Console* { return new Copione(caso); });
  return true;
}();

}  // namespace
}  // namespace vaticlo::prova
