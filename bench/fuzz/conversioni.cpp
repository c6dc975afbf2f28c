// A text as a number, as a date, as a date typed into a picker, as a name and as a quotation.
#include <cmath>

#include "archive/data.h"
#include "dialogs/data_digitata.h"
#include "ingresso.h"
#include "platform/conversione.h"
#include "platform/pagina_codici.h"
#include "platform/testo.h"
#include "sostegno/cartella_prova.h"

namespace vaticlo::fuzz {
namespace {

void numeri(std::string_view testo) {
  const auto numero = numeroDaTesto(testo);
  if (numero) {
    std::string comune(senzaBlanchi(testo));
    std::replace(comune.begin(), comune.end(), ',', '.');
    const double suo = std::strtod(comune.c_str(), nullptr);
    richiedi(*numero == suo, "the number of the text");
    const auto ancora = numeroDaTesto(testoDiNumero(*numero));
    richiedi(!ancora || std::abs(*ancora - *numero) <= 1e-14 * std::abs(*numero), "the text of the number");
  }
  const auto intero = [&](auto leggi, double minimo, double massimo) {
    const bool riuscito =
        riesce([&] { richiedi(std::abs(leggi(testo) - *numero) <= 0.5, "the nearest whole number"); });
    richiedi(riuscito == (numero && std::nearbyint(*numero) >= minimo && std::nearbyint(*numero) <= massimo),
             "a whole number in its range");
  };
  intero(inByte, 0, 255);
  intero(inIntero16, -32768, 32767);
  if (const auto valore = cifre(testo)) richiedi(numero && *valore == *numero, "digits are a number");
}

void date(std::string_view testo) {
  const auto data = dataDaTesto(testo), digitata = dataDigitata(testo);
  richiedi(!data || data == digitata, "a date may be typed as it is written");
  if (digitata) {
    std::array<char, 16> scritta{};
    std::snprintf(scritta.data(), scritta.size(), "%d/%d/%04d", giorno(*digitata), mese(*digitata),
                  anno(*digitata));
    richiedi(digitata->ok() && dataDaTesto(scritta.data()) == digitata, "the date of the text");
  }
  SelettoreData selettore;
  prova::ServiziProva servizi;
  selettore.MaxDate(Data{std::chrono::year{2026}, std::chrono::March, std::chrono::day{14}});
  const bool presa = digitata && *digitata <= *selettore.MaxDate();
  richiedi(trattieneData(selettore, std::string(testo), servizi) == !presa, "the focus stays");
  richiedi(servizi.messaggi.empty() == presa, "whoever is held is told why");
  richiedi(selettore.Value() == (presa ? digitata : std::nullopt), "the date that was typed");
}

void testi(std::string_view testo) {
  const auto citato = citazione(testo);
  richiedi(citato.size() <= 60 * 4 + 3 && formaDiConfronto(citato), "a short quotation in UTF-8");
  richiedi(std::ranges::none_of(citato, [](unsigned char c) { return c < ' ' || c == 0x7F; }),
           "no control character");
  std::string pagina;
  aggiungiInPagina(pagina, testo);
  std::string ancora;
  aggiungiInPagina(ancora, daPagina(pagina));
  richiedi(ancora == pagina, "the page of a text");
  (void)maiuscolo(testo);
  (void)formaDiConfronto(testo);
}

}  // namespace
}  // namespace vaticlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t ottetti) {
  using namespace vaticlo::fuzz;
  const auto testo = Ingresso(dati, ottetti).tutto();
  numeri(testo);
  date(testo);
  testi(testo);
  return 0;
}
