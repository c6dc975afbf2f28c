#include "archive/aggiunta.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <utility>

#include "archive/importazione.h"
#include "archive/ruota.h"

namespace vaticlo {

namespace {

constexpr int kMassimoSalto = 14;  // days between two draws; there was always one in a week

std::optional<Data> dataDi(const ArchivioEstrazioni& archivio, int i) {
  return dataDaTesto(archivio.DataEstrazione(i));
}

std::string numeroEData(const ArchivioEstrazioni& archivio, int i) {
  return "la n° " + std::to_string(i) + " del " + archivio.DataEstrazione(i);
}

Cinquina cinquina(const ArchivioEstrazioni& archivio, int i, int ruota) {
  Cinquina numeri{};
  for (std::size_t k = 0; k < numeri.size(); ++k) numeri[k] = archivio(i, ruota, static_cast<int>(k) + 1);
  return numeri;
}

void copiaEstrazione(const ArchivioEstrazioni& da, int i, ArchivioEstrazioni& a, int posto) {
  for (int j = 0; j < ArchivioEstrazioni::Righe; ++j)
    for (int k = 1; k <= ArchivioEstrazioni::Colonne; ++k) a(posto, j, k) = da(i, j, k);
}

std::string numeri(const Cinquina& cinquina) {
  if (std::ranges::all_of(cinquina, [](int numero) { return numero == 0; })) return "";
  std::string testo;
  for (const int numero : cinquina) testo += (testo.empty() ? "" : " ") + std::to_string(numero);
  return testo;
}

/// Puts the two side by side.
class Confronto {
 public:
  Confronto(const ArchivioEstrazioni& archivio, const ArchivioEstrazioni& testo)
      : archivio_(archivio), testo_(testo), ultima_(archivio.PrimoIndiceLibero() - 1) {
    for (int k = 1, fine = testo.PrimoIndiceLibero(); k < fine; ++k) nelTesto_[dataDi(testo, k).value()] = k;
    if (ultima_ == 0) return;
    fine_ = dataDi(archivio, ultima_);
    if (!fine_)
      throw ErroreImportazione("l'ultima estrazione dell'archivio, " + numeroEData(archivio, ultima_) +
                               ", non ha una data valida");
  }

  Aggiunta fai() && {
    std::ranges::copy(archivio_.ottetti(), esito_.archivio.ottetti().begin());
    confronta();
    aggiungi();
    avverti();
    return std::move(esito_);
  }

 private:
  void confronta() {
    for (int i = 1; i <= ultima_; ++i) {
      const auto data = dataDi(archivio_, i);
      if (!data) continue;
      const auto stessa = nelTesto_.find(*data);
      if (stessa == nelTesto_.end()) {
        if (!nelTesto_.empty() && *data > inizio() && *data < nelTesto_.rbegin()->first)
          soloQui_.push_back(i);
        continue;
      }
      if (*data > *fine_)
        throw ErroreImportazione("le date dell'archivio non sono in ordine: " + numeroEData(archivio_, i) +
                                 ", viene prima dell'ultima, " + numeroEData(archivio_, ultima_));
      ++esito_.confrontate;
      confrontaRuote(i, stessa->second);
      inComune_.push_back(stessa->second);
    }
  }
  void confrontaRuote(int i, int k) {
    for (int ruota = 1; ruota <= kRuote; ++ruota)
      if (const auto qui = cinquina(archivio_, i, ruota), la = cinquina(testo_, k, ruota); qui != la)
        esito_.differenze.push_back({archivio_.DataEstrazione(i), ruota, qui, la});
  }

  void aggiungi() {
    std::ranges::sort(inComune_);
    esito_.dal = ultima_ + 1;
    esito_.al = ultima_;
    // What is missing before a text that begins later is said of the text.
    auto prima = fine_ && !nelTesto_.empty() && inizio() > *fine_ ? std::nullopt : fine_;
    for (const auto& [data, k] : nelTesto_) {
      if (fine_ && data <= *fine_) {
        if (!std::ranges::binary_search(inComune_, k)) soloNelTesto_.push_back(k);
        continue;
      }
      if (esito_.al + 1 >= ArchivioEstrazioni::MaxEstrazioni)
        throw ErroreImportazione("nell'archivio non c'è posto: tiene al massimo " +
                                 std::to_string(ArchivioEstrazioni::MaxEstrazioni - 1) + " estrazioni");
      copiaEstrazione(testo_, k, esito_.archivio, ++esito_.al);
      if (prima && (std::chrono::sys_days{data} - std::chrono::sys_days{*prima}).count() > kMassimoSalto)
        avverti("Tra l'estrazione n° " + std::to_string(esito_.al - 1) + " e la n° " +
                std::to_string(esito_.al) + " passano più di due settimane: dal " +
                esito_.archivio.DataEstrazione(esito_.al - 1) + " al " +
                esito_.archivio.DataEstrazione(esito_.al) + ".");
      prima = data;
    }
  }

  void avverti() {
    if (ultima_ == 0 || nelTesto_.empty()) return;
    const int primaTesto = nelTesto_.begin()->second, ultimaTesto = nelTesto_.rbegin()->second;
    if (nelTesto_.rbegin()->first < *fine_)
      avverti("Il testo finisce il " + testo_.DataEstrazione(ultimaTesto) +
              ", prima dell'ultima estrazione dell'archivio, " + numeroEData(archivio_, ultima_) + ".");
    if (inizio() > *fine_)
      avverti("Il testo comincia il " + testo_.DataEstrazione(primaTesto) +
              ", dopo l'ultima estrazione dell'archivio, " + numeroEData(archivio_, ultima_) +
              ": non si può confrontare, e le estrazioni di mezzo, se ce ne sono, mancheranno. Cercate un "
              "testo che cominci prima.");
    else if (const auto prima = dataDi(archivio_, 1); prima && *prima < inizio())
      avverti("Il testo comincia il " + testo_.DataEstrazione(primaTesto) +
              ": le estrazioni precedenti dell'archivio non sono confrontate.");
    if (!soloQui_.empty())
      avverti("Estrazioni dell'archivio che il testo non ha: " + std::to_string(soloQui_.size()) + " (" +
              elenco(archivio_, soloQui_) + ").");
    if (!soloNelTesto_.empty())
      avverti("Estrazioni del testo che l'archivio non ha: " + std::to_string(soloNelTesto_.size()) +
              ", la prima del " + testo_.DataEstrazione(soloNelTesto_.front()) +
              "; non vengono aggiunte, perché le altre cambierebbero numero.");
  }
  void avverti(std::string frase) { esito_.avvertenze.push_back(std::move(frase)); }

  [[nodiscard]] static std::string elenco(const ArchivioEstrazioni& archivio, const std::vector<int>& quali) {
    std::string testo;
    for (std::size_t n = 0; n < std::min<std::size_t>(quali.size(), 3); ++n)
      testo += (n > 0 ? ", " : "") + numeroEData(archivio, quali[n]);
    return testo + (quali.size() > 3 ? "…" : "");
  }
  [[nodiscard]] Data inizio() const { return nelTesto_.begin()->first; }

  const ArchivioEstrazioni& archivio_;
  const ArchivioEstrazioni& testo_;
  const int ultima_;
  std::optional<Data> fine_;
  std::map<Data, int> nelTesto_;
  std::vector<int> inComune_, soloQui_, soloNelTesto_;
  Aggiunta esito_;
};

}  // namespace

Aggiunta preparaAggiunta(const ArchivioEstrazioni& archivio, const ArchivioEstrazioni& testo) {
  return Confronto(archivio, testo).fai();
}

std::string riassunto(const Aggiunta& aggiunta) {
  return std::to_string(aggiunta.nuove()) + " estrazioni, dal " +
         aggiunta.archivio.DataEstrazione(aggiunta.dal) + " al " +
         aggiunta.archivio.DataEstrazione(aggiunta.al);
}

std::string inParole(const RuotaDiversa& differenza) {
  const auto detta = [](const Cinquina& cinquina) {
    const auto testo = numeri(cinquina);
    return testo.empty() ? "nessun numero" : testo;
  };
  return differenza.data + " " + std::string(SiglaRuota(differenza.ruota)) + ": archivio " +
         detta(differenza.archivio) + ", testo " + detta(differenza.testo);
}

Tabella tabellaDelle(const std::vector<RuotaDiversa>& differenze) {
  Tabella tabella{{{"Data", Colonna::Tipo::Giorno}, {"Ruota"}, {"Archivio"}, {"Testo"}}, {}};
  for (const auto& una : differenze)
    tabella.righe.push_back(
        {una.data, std::string(SiglaRuota(una.ruota)), numeri(una.archivio), numeri(una.testo)});
  return tabella;
}

}  // namespace vaticlo
