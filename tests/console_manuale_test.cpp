#include <cstdlib>

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

/// What bash offers behind these words, the last of which is being typed.
class Completamento : public Console {
 protected:
  std::string offerte(const std::string& parole) {
    p.scrivi("completa.bash", completamento("bash", tavolaComandi()));
    // In place of the program, a command that knows two methods.
    p.scrivi(
        "prova.bash",
        "finto() { printf '%s\\n' 'Ambi di Bari' Ritardatari; }\ncompopt() { :; }\nsource completa.bash\n"
        "COMP_WORDS=(finto " +
            parole +
            "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_vaticlo_cli\n"
            "printf '%s|' \"${COMPREPLY[@]}\" > offerte\n");
    const auto comando = "cd '" + p.radice.string() + "' && bash prova.bash";
    EXPECT_EQ(std::system(comando.c_str()), 0);
    return p.contenuto("offerte");
  }
};

TEST_F(Completamento, OffersCommandsOptionsAndMethods) {
  EXPECT_EQ(offerte("quad"), "quadro|");
  EXPECT_EQ(offerte("previsione s"), "sposta|");
  EXPECT_EQ(offerte("--cartella /da/qualche/parte vin"), "vincenti|");
  EXPECT_EQ(offerte("previsione mostra ''"), "Ambi\\ di\\ Bari|Ritardatari|");
  EXPECT_EQ(offerte("verifica 3 --metodo Rit"), "Ritardatari|");
  EXPECT_EQ(offerte("caso 1 2 --p"), "--prove|");
  EXPECT_EQ(offerte("somdif 2 --tipo ''"), "ciclometrica|matematica|somma|");
  EXPECT_EQ(offerte("ritardi T"), "To|Tutte|");
}

}  // namespace
}  // namespace vaticlo::prova
