#include "console/parole.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

/// A line, and its words in brackets or what is wrong with it.
struct Caso {
  const char* nome;
  std::string riga, attese;
};

void PrintTo(const Caso& caso, std::ostream* uscita) { *uscita << caso.nome; }

class Parole : public testing::TestWithParam<Caso> {};

TEST_P(Parole, AreQuotedAsInAShell) {
  const auto letta = paroleDellaRiga(GetParam().riga);
  std::string trovate = letta.errore;
  for (const auto& parola : letta.parole) trovate += "[" + parola + "]";
  EXPECT_EQ(trovate, GetParam().attese);
}

const Caso kParole[] = {
    {"Comment", "  # trova 1", ""},
    {"Blanks", "trova  1\t2\r", "[trova][1][2]"},
    {"EmptyAndInside", "'' x'y  z'\"a b\"", "[][xy  za b]"},
    {"Backslash", "a\\ b \\\"", "[a b][\"]"},
    {"InsideQuotes", R"("a\"b\\c\d" '\')", R"([a"b\c\d][\])"},
    {"OpenSingle", "'a", "virgolette non chiuse"},
    {"OpenDouble", "\"a\\\"", "virgolette non chiuse"},
    {"BackslashAtTheEnd", "a \\", "finisce con una barra rovesciata: un comando sta su una riga sola"}};

INSTANTIATE_TEST_SUITE_P(, Parole, testing::ValuesIn(kParole), perNome);

}  // namespace
}  // namespace vaticlo::prova
