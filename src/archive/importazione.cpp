#include "archive/importazione.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <utility>

#include "archive/data.h"
#include "archive/ruota.h"
#include "platform/conversione.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

// The abbreviations of the public file, in the order of the wheel table: not those of the program's own
// reports.
constexpr std::array<std::string_view, kRuote> kSiglePubbliche = {"BA", "CA", "FI", "GE", "MI", "NA",
                                                                  "PA", "RM", "TO", "VE", "RN"};
constexpr int kMassimoEstrazioni = ArchivioEstrazioni::MaxEstrazioni - 1;  // the archive needs one free slot
constexpr std::size_t kDiUnaCella = ArchivioEstrazioni::MaxEstrazioni;     // the same cell of all draws
constexpr std::string_view kForma =
    "attesa la forma aaaa/mm/gg, ruota e cinque numeri, separati da tabulazioni";

std::string_view senzaCoda(std::string_view testo, std::string_view bianchi) {
  return testo.substr(0, testo.find_last_not_of(bianchi) + 1);
}

class Lettore {
 public:
  void riga(int numeroRiga, std::string_view testo) {
    riga_ = numeroRiga;
    const auto campi = dividi(testo, '\t');
    if (campi.size() != 2 + ArchivioEstrazioni::Colonne) errore(std::string(kForma));
    prendiData(campi[0]);
    const int ruota = prendiRuota(campi[1]);
    for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k)
      archivio_(estrazioni_, ruota, k) = prendiNumero(campi[static_cast<std::size_t>(k) + 1], ruota, k);
  }

  /// The draws, oldest first.
  [[nodiscard]] ArchivioEstrazioni finito() && {
    if (indietro_)
      for (auto celle = archivio_.ottetti(); !celle.empty(); celle = celle.subspan(kDiUnaCella))
        std::ranges::reverse(celle.first(static_cast<std::size_t>(estrazioni_)));
    return std::move(archivio_);
  }

 private:
  [[noreturn]] void errore(const std::string& motivo) const { throw ErroreImportazione(riga_, motivo); }

  void prendiData(std::string_view testo) {
    if (testo.size() != 10 || testo[4] != '/' || testo[7] != '/') errore(std::string(kForma));
    const int a = cifre(testo.substr(0, 4)).value_or(0);
    const auto data =
        dataDiCalendario(cifre(testo.substr(8, 2)).value_or(0), cifre(testo.substr(5, 2)).value_or(0), a);
    if (!data || a < 1800 || a > 2099) errore("\"" + citazione(testo) + "\" non è una data valida");
    if (estrazioni_ > 0 && *data == data_) return;
    const bool prima = estrazioni_ > 0 && *data < data_;
    if (estrazioni_ == 1) indietro_ = prima;
    if (estrazioni_ > 1 && prima != indietro_)
      errore(std::string("la data è ") + (prima ? "precedente" : "successiva") +
             " a quella della riga prima");
    if (estrazioni_ == kMassimoEstrazioni)
      errore("più di " + std::to_string(kMassimoEstrazioni) + " estrazioni");
    data_ = *data;
    ruote_.reset();
    ++estrazioni_;
    archivio_.scriviData(estrazioni_, *data, a / 100);
  }

  int prendiRuota(std::string_view sigla) {
    const auto posto = std::find(kSiglePubbliche.begin(), kSiglePubbliche.end(), sigla);
    if (posto == kSiglePubbliche.end()) errore("ruota sconosciuta \"" + citazione(sigla) + "\"");
    const auto indice = static_cast<std::size_t>(posto - kSiglePubbliche.begin());
    if (ruote_[indice]) errore("la ruota " + std::string(sigla) + " è ripetuta nella stessa estrazione");
    ruote_.set(indice);
    return static_cast<int>(indice) + 1;
  }

  std::uint8_t prendiNumero(std::string_view testo, int ruota, int k) const {
    const int valore = testo.size() > 2 ? 0 : cifre(testo).value_or(0);
    if (valore < 1 || valore > kNumeri) errore("\"" + citazione(testo) + "\" non è un numero da 1 a 90");
    for (int prima = 1; prima < k; ++prima)
      if (archivio_(estrazioni_, ruota, prima) == valore)
        errore("il numero " + std::to_string(valore) + " è ripetuto nella stessa ruota");
    return static_cast<std::uint8_t>(valore);
  }

  ArchivioEstrazioni archivio_;
  std::bitset<kRuote> ruote_;
  Data data_{};
  int estrazioni_ = 0;
  bool indietro_ = false;  // the newest draw comes first
  int riga_ = 0;
};

}  // namespace

ArchivioEstrazioni importaEstrazioni(std::string_view testo, const std::function<void(int)>& avanzamento) {
  if (inUtf16(testo)) throw ErroreImportazione("il file è in UTF-16: va salvato in UTF-8");
  testo = senzaCoda(senzaMarca(testo), " \r\n");
  if (testo.empty()) throw ErroreImportazione(1, "il file è vuoto");
  Lettore lettore;
  const auto tutto = testo.size();
  int percento = 0;
  for (int numeroRiga = 1; !testo.empty(); ++numeroRiga) {
    const auto fine = std::min(testo.find('\n'), testo.size());
    const auto riga = senzaCoda(testo.substr(0, fine), " \r");
    testo.remove_prefix(std::min(fine + 1, testo.size()));
    lettore.riga(numeroRiga, riga);
    const auto fatto = static_cast<int>((tutto - testo.size()) * 100 / tutto);
    if (avanzamento && fatto > std::exchange(percento, fatto)) avanzamento(fatto);
  }
  return std::move(lettore).finito();
}

std::string riassunto(const ArchivioEstrazioni& importato) {
  const int ultima = importato.PrimoIndiceLibero() - 1;
  return std::to_string(ultima) + " estrazioni, dal " + importato.DataEstrazione(1) + " al " +
         importato.DataEstrazione(ultima);
}

}  // namespace vaticlo
