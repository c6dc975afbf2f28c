#include "forms/controlli.h"

#include <algorithm>

#include "platform/failure.h"

namespace vaticlo {

void BarraScorrimento::Max(int massimo) {
  max_ = massimo;
  cambiato();
  if (valore_ > std::max(min_, max_)) Value(std::max(min_, max_));
}

void BarraScorrimento::Value(int valore) {
  if (valore < min_ || valore > std::max(min_, max_)) throw RuntimeFailure(Errore::ValoreProprieta);
  if (valore == valore_) return;
  valore_ = valore;
  cambiato();
  if (Change) Change();
}

void Elenco::Clear() {
  voci_.clear();
  indice_ = -1;
  testo_.clear();
  cambiato();
}

void Elenco::AddItem(std::string testo, int itemData) {
  voci_.push_back({std::move(testo), itemData});
  cambiato();
}

void Elenco::riempi(std::vector<std::string> testi) {
  voci_.clear();
  indice_ = -1;
  for (auto& testo : testi) {
    if (testo == testo_) indice_ = static_cast<int>(voci_.size());
    voci_.push_back({std::move(testo)});
  }
  cambiato();
}

void Elenco::ListIndex(int indice) {
  if (indice != indice_) scegli(indice);
}

void Elenco::scegli(int indice) {
  if (indice < 0 || static_cast<std::size_t>(indice) >= voci_.size())
    throw RuntimeFailure(Errore::ValoreProprieta);
  indice_ = indice;
  testo_ = voci_[static_cast<std::size_t>(indice)].testo;
  cambiato();
  if (Click) Click();
}

void Elenco::Text(const std::string& testo) {
  if (testo == testo_) return;
  testo_ = testo;
  indice_ = -1;
  cambiato();
}

void Elenco::digita(const std::string& testo) {
  Text(testo);
  if (Change) Change();
}

int Elenco::ItemDataScelta() const {
  if (indice_ < 0) throw RuntimeFailure(Errore::Indice);
  return voci_[static_cast<std::size_t>(indice_)].ItemData;
}

void SelettoreData::scegli(const Data& data) {
  if (data == Value()) return;
  Value(data);
  if (Change) Change();
}

}  // namespace vaticlo
