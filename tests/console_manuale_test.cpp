#include "console/manuale.h"
#include "sostegno/console_prova.h"

namespace vaticlo::prova {
namespace {

// In bold, with hyphens that can be copied.
std::string grassetto(const std::string& nome) {
  std::string uscita = "\\fB";
  for (const char c : nome) uscita += c == '-' ? std::string("\\-") : std::string(1, c);
  return uscita + "\\fR";
}

TEST(Manuale, NamesEveryCommandAndOption) {
  const auto tavola = tavolaComandi();
  const auto pagina = paginaDiManuale(tavola);
  for (const auto& comando : tavola) {
    if (comando.fai == nullptr) continue;
    EXPECT_THAT(pagina, HasSubstr("\n" + grassetto(comando.nome)));
    for (const auto& parametro : comando.parametri)
      if (parametro.nome.starts_with("--")) {
        EXPECT_THAT(pagina, HasSubstr("\n" + grassetto(parametro.nome) + "\n"));
      }
  }
}

}  // namespace
}  // namespace vaticlo::prova
