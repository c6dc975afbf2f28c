#include "analysis/metodi_giudicati.h"

#include <algorithm>
#include <limits>

#include "methods/decodifica.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

constexpr int kUltimoPossibile = std::numeric_limits<std::int16_t>::max();

struct NessunaNota : EsitoColpo {
  void ambata(int /*numero*/, int /*ruota*/) override {}
  void ambo(int /*a*/, int /*b*/, int /*ruota*/) override {}
  void amboTutte(int /*a*/, int /*b*/, int /*ruota*/) override {}
  void sorte(const std::vector<int>& /*usciti*/, int /*ruota*/) override {}
};

/// The predictions of one method on one draw, in the order of their slots.
class Giudice {
 public:
  explicit Giudice(const ArchivioEstrazioni& archivio)
      : archivio_(archivio), regole_(archivio), ultima_(archivio.PrimoIndiceLibero() - 1) {}

  void nuovaEstrazione() {
    decodificatore_ = {};
    interrotta_ = false;
  }

  [[nodiscard]] PrevisioneGiudicata giudica(const FileMetodo& metodo, int slot) {
    PrevisioneGiudicata giudicata;
    giudicata.slot = slot;
    giudicata.estrazione = metodo.EstrazioneCalcolo(slot);
    try {
      decodificatore_.DecodificaPrevisione(metodo, slot, previsione_);
      giudicata.colpi = previsione_.Colpi;
      giudicata.nellaStatistica = !interrotta_;
      giudicata.esito = giudicaPrevisione(previsione_, regole_, ultima_, nessunaNota_);
      if (previsione_.EstrazioneCalcolo + previsione_.Colpi <= ultima_)
        giudicata.conclusa = pianoDi(previsione_, archivio_);
    } catch (const RuntimeFailure&) {
      interrotta_ = true;
    }
    return giudicata;
  }

 private:
  const ArchivioEstrazioni& archivio_;
  RegoleVincita regole_;
  int ultima_;
  Previsione previsione_;
  Decodificatore decodificatore_;
  NessunaNota nessunaNota_;
  bool interrotta_ = false;
};

}  // namespace

std::vector<MetodoGiudicato> giudicaMetodi(const CartellaProgramma& cartella,
                                           const ArchivioEstrazioni& archivio,
                                           const std::vector<std::string>& elenco,
                                           IntervalloEstrazioni intervallo) {
  const int dal = std::max(intervallo.dal, 0), al = std::min(intervallo.al, kUltimoPossibile);
  MetodiDellaCorsa metodi(cartella, elenco, dal, al, SeGuasto::SiSalta);
  const auto& letti = metodi.letti();
  std::vector<MetodoGiudicato> giudicati;
  giudicati.reserve(elenco.size());
  for (std::size_t n = 0; n < elenco.size(); ++n) {
    giudicati.push_back({elenco[n], letti[n], {}});
    giudicati.back().previsioni.reserve(static_cast<std::size_t>(letti[n].previsioni));
  }

  Giudice giudice(archivio);
  for (int d = dal; d <= al; ++d) {
    auto corrente = elenco.size();
    metodi.scorri(d, [&](const FileMetodo& metodo, int slot, std::size_t indice) {
      if (indice != corrente) giudice.nuovaEstrazione();
      corrente = indice;
      giudicati[indice].previsioni.push_back(giudice.giudica(metodo, slot));
    });
  }
  return giudicati;
}

}  // namespace vaticlo
