// The fields of the prediction editor into cells and back. Of numbers that are none of the game much may be
// lost on the way; bets of the game are read as they were typed, and written again they give the same cells.
#include "archive/ruota.h"
#include "ingresso.h"
#include "methods/testi_campi.h"

namespace vaticlo::fuzz {
namespace {

constexpr int kSlot = 3;

// An odd grid, so that a cell that is touched shows.
FileMetodo griglia() {
  FileMetodo metodo;
  int n = 0;
  for (auto& cella : metodo.ottetti()) cella = static_cast<std::uint8_t>(++n * 7);
  SvuotaSlot(metodo, kSlot);
  return metodo;
}

bool scrive(FileMetodo& metodo, const TestiPrevisione& testi) {
  try {
    return riesce([&] { scriviTesti(metodo, kSlot, testi); });
  } catch (const RifiutoPrevisione&) {
    return false;
  }
}

void altriComePrima(FileMetodo metodo) {
  SvuotaSlot(metodo, kSlot);
  richiedi(std::ranges::equal(metodo.ottetti(), griglia().ottetti()), "the other slots stay");
}

template <class Elemento>
std::string lista(Ingresso& ingresso, const std::string& separatore, int minimo, int massimo,
                  Elemento elemento) {
  std::string testo;
  for (int n = minimo + ingresso.ottetto() % (massimo - minimo + 1); n > 0; --n)
    testo += (testo.empty() ? "" : separatore) + elemento();
  return testo;
}

TestiPrevisione delGioco(Ingresso& in) {
  const auto numero = [&] { return std::to_string(1 + in.ottetto() % kNumeri); };
  const auto gruppo = [&] { return lista(in, "-", 2, 5, numero); };
  const auto duecifre = [&] { return std::to_string(10 + in.ottetto() % 90); };
  TestiPrevisione testi;
  if (in.ottetto() % 2 != 0) testi.numero = "899" + lista(in, "", 1, 5, [&] { return "." + duecifre(); });
  testi.ruote =
      lista(in, "-", 1, kTutte, [&] { return std::string(SiglaRuotaTutte(1 + in.ottetto() % kTutte)); });
  testi.colpi = std::to_string(in.ottetto());
  testi.ambate = lista(in, ";", 0, 90, numero);
  testi.ambi = lista(in, ";", 0, 59, [&] { return numero() + "-" + numero(); });
  testi.sup = lista(in, ";", 0, 50, gruppo);
  return testi;
}

bool uguali(const TestiPrevisione& a, const TestiPrevisione& b) {
  return a.numero == b.numero && a.ruote == b.ruote && a.colpi == b.colpi && a.ambate == b.ambate &&
         a.ambi == b.ambi && a.sup == b.sup;
}

}  // namespace
}  // namespace vaticlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t ottetti) {
  using namespace vaticlo;
  using namespace vaticlo::fuzz;
  auto metodo = griglia();
  Ingresso ingresso(dati, ottetti);
  if (ingresso.ottetto() % 2 == 0) {
    TestiPrevisione testi;
    for (auto* testo : {&testi.numero, &testi.ruote, &testi.colpi, &testi.ambate, &testi.ambi, &testi.sup})
      *testo = ingresso.testo();
    if (scrive(metodo, testi)) riesce([&] { (void)leggiTesti(metodo, kSlot); });
    altriComePrima(metodo);
    return 0;
  }
  const auto testi = delGioco(ingresso);
  const bool scritto = scrive(metodo, testi);
  altriComePrima(metodo);
  TestiPrevisione letti;
  // A list that takes all cells can't be read back.
  if (!scritto || !riesce([&] { letti = leggiTesti(metodo, kSlot); })) return 0;
  richiedi(uguali(letti, testi), "what was typed is read");
  auto ancora = griglia();
  richiedi(scrive(ancora, letti), "what was read is written");
  richiedi(std::ranges::equal(ancora.ottetti(), metodo.ottetti()), "the same cells");
  return 0;
}
