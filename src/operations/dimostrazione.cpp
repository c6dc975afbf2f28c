#include "operations/dimostrazione.h"

#include <algorithm>
#include <array>
#include <map>
#include <ostream>
#include <random>

#include "archive/regole.h"
#include "archive/ruota.h"
#include "methods/testi_campi.h"
#include "platform/blocco.h"

namespace vaticlo {

namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr int kEstrazioni = 360;
// Before the first day that the statistics offer.
constexpr Data kPrima{std::chrono::year{1999}, std::chrono::December, std::chrono::day{31}};
constexpr unsigned kSeme = 90;

// Tuesday, Thursday, Friday and Saturday.
bool giornoDiEstrazione(sys_days giorno) {
  const unsigned settimana = std::chrono::weekday{giorno}.c_encoding();
  return settimana == 2 || settimana >= 4;
}

ArchivioEstrazioni inventaEstrazioni() {
  ArchivioEstrazioni archivio;
  std::mt19937 caso(kSeme);
  sys_days giorno = kPrima;
  for (int i = 1; i <= kEstrazioni; ++i, giorno += days{1}) {
    while (!giornoDiEstrazione(giorno)) giorno += days{1};
    const Data data{giorno};
    archivio.scriviData(i, data, anno(data) / 100);
    for (int ruota = 1; ruota <= kRuote; ++ruota) {
      // An urn of ninety without replacement.
      std::array<std::uint8_t, kNumeri> urna;
      for (std::size_t n = 0; n < urna.size(); ++n) urna[n] = static_cast<std::uint8_t>(n + 1);
      for (std::size_t k = 0; k < 5; ++k) {
        std::swap(urna[k], urna[k + caso() % (urna.size() - k)]);
        archivio(i, ruota, static_cast<int>(k) + 1) = urna[k];
      }
    }
  }
  return archivio;
}

/// Finds bets by what the invented draws hold.
class Inventore {
 public:
  explicit Inventore(const ArchivioEstrazioni& archivio) : archivio_(archivio), regole_(archivio) {}

  [[nodiscard]] std::string uscito(int estrazione, int ruota, int k) const {
    return std::to_string(archivio_(estrazione, ruota, k));
  }
  /// A number that does not come out on the wheel in the draws after `estrazione`, as far as there are any.
  [[nodiscard]] std::string mancato(int estrazione, int ruota, int colpi) const {
    const int ultima = std::min(estrazione + colpi, kEstrazioni);
    for (int numero = 1; numero <= kNumeri; ++numero) {
      bool esce = false;
      for (int d = estrazione + 1; d <= ultima; ++d) esce = esce || regole_.ambata(numero, ruota, d);
      if (!esce) return std::to_string(numero);
    }
    return std::to_string(kNumeri);
  }

 private:
  const ArchivioEstrazioni& archivio_;
  RegoleVincita regole_;
};

struct PrevisioneInventata {
  int estrazione;
  TestiPrevisione testi;
};

std::vector<PrevisioneInventata> previsioniMetodo1(const Inventore& i) {
  const int v = kEstrazioni;
  return {
      {v - 45, {"899.12.34", "Ba-Ca", "10", i.uscito(v - 42, 1, 2), "", ""}},
      {v - 45, {"", "Na", "9", i.mancato(v - 45, 6, 9), "", ""}},
      {v - 30,
       {"899.11.22", "Ro-Tutte", "12", "", i.uscito(v - 26, 9, 1) + "-" + i.uscito(v - 26, 9, 4), ""}},
      {v - 4, {"899.12.34", "Mi", "10", i.mancato(v - 4, 5, 10), "", ""}},
      {v - 1, {"", "To-Ve", "8", i.uscito(v, 9, 3), "", ""}},
  };
}

std::vector<PrevisioneInventata> previsioniMetodo2(const Inventore& i) {
  const int v = kEstrazioni;
  const auto terno = i.uscito(v - 40, 3, 1) + "-" + i.uscito(v - 40, 3, 3) + "-" + i.uscito(v - 40, 3, 5);
  return {
      {v - 45, {"", "Fi", "12", "", "", terno + "-" + i.mancato(v - 45, 3, 12)}},
      {v - 20, {"899.21.08", "Ge", "6", i.mancato(v - 20, 4, 6), "", ""}},
      {v - 2, {"", "Pa-Naz", "9", i.mancato(v - 2, 7, 9), "", ""}},
  };
}

FileMetodo metodoCon(const ArchivioEstrazioni& archivio, const std::vector<PrevisioneInventata>& previsioni) {
  FileMetodo metodo;
  int slot = 0;
  for (const auto& previsione : previsioni) {
    scriviEstrazione(metodo, ++slot, previsione.estrazione,
                     dataDaTesto(archivio.DataEstrazione(previsione.estrazione)).value());
    scriviTesti(metodo, slot, previsione.testi);
  }
  return metodo;
}

// The archive is written last. Until then a method may hold the predictions of a demonstration that was
// stopped half-way, and this one ends it.
bool scrivi(const CartellaProgramma& cartella, const ArchivioEstrazioni& archivio,
            const std::map<std::string, FileMetodo>& metodi) {
  const BloccoCartella blocco(cartella.radice());
  if (ApriArchivio(cartella).PrimoIndiceLibero() > 1) return false;
  for (const auto& [nome, nuovo] : metodi) {
    const auto metodo = LeggiMetodo(cartella, nome);
    if (metodo.EstrazioneCalcolo(1) != 0 && !std::ranges::equal(metodo.ottetti(), nuovo.ottetti()))
      return false;
  }
  for (const auto& [nome, nuovo] : metodi) ScriviMetodo(cartella, nome, nuovo);
  ScriviArchivio(cartella, archivio);
  return true;
}

}  // namespace

void creaDimostrazione(Programma& programma, std::ostream& uscita) {
  const auto archivio = inventaEstrazioni();
  const Inventore inventore(archivio);
  const auto metodo1 = previsioniMetodo1(inventore), metodo2 = previsioniMetodo2(inventore);
  if (!scrivi(programma.cartella, archivio,
              {{"Metodo 1", metodoCon(archivio, metodo1)}, {"Metodo 2", metodoCon(archivio, metodo2)}})) {
    programma.servizi.mostra(
        {"La cartella contiene già estrazioni o previsioni: la dimostrazione non le tocca.", "Attenzione",
         Genere::Rifiuto});
    return;
  }
  uscita << "Create " << kEstrazioni << " estrazioni, dal " << archivio.DataEstrazione(1) << " al "
         << archivio.DataEstrazione(kEstrazioni) << ", e " << metodo1.size() + metodo2.size()
         << " previsioni in \"Metodo 1\" e \"Metodo 2\".\n"
         << "Le estrazioni sono inventate: servono a provare il programma.\n"
         << "Da provare: verifica " << metodo1.front().estrazione << "\n";
}

}  // namespace vaticlo
