#include "forms/prospetto.h"

#include <algorithm>
#include <chrono>
#include <compare>
#include <string_view>
#include <utility>
#include <variant>

#include "archive/data.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

/// What a field is compared by: nothing, a number, or a text.
using Chiave = std::variant<std::monostate, double, std::string>;

std::string perConfronto(const std::string& testo) { return formaDiConfronto(testo).value_or(testo); }

Chiave chiave(const Cella& cella, Colonna::Tipo tipo) {
  if (const auto* intero = std::get_if<int>(&cella)) return static_cast<double>(*intero);
  if (const auto* decimale = std::get_if<double>(&cella)) return *decimale;
  const auto* testo = std::get_if<std::string>(&cella);
  if (testo == nullptr || testo->empty()) return {};
  if (tipo != Colonna::Tipo::Giorno) return perConfronto(*testo);
  const auto data = dataDaTesto(*testo);
  if (!data) return {};
  return static_cast<double>(std::chrono::sys_days(*data).time_since_epoch().count());
}

bool cifra(char c) { return c >= '0' && c <= '9'; }

std::string_view togliNumero(std::string_view& testo) {
  const auto fine = std::find_if_not(testo.begin(), testo.end(), cifra);
  auto numero = testo.substr(0, static_cast<std::size_t>(fine - testo.begin()));
  testo.remove_prefix(numero.size());
  numero.remove_prefix(std::min(numero.find_first_not_of('0'), numero.size()));
  return numero;
}

// Numbers inside a text count as numbers: "Metodo 2" comes before "Metodo 10".
std::strong_ordering naturale(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    if (cifra(a.front()) && cifra(b.front())) {
      const auto x = togliNumero(a), y = togliNumero(b);
      if (const auto esito = x.size() <=> y.size(); esito != 0) return esito;
      if (const auto esito = x <=> y; esito != 0) return esito;
      continue;
    }
    if (const auto esito = static_cast<unsigned char>(a.front()) <=> static_cast<unsigned char>(b.front());
        esito != 0)
      return esito;
    a.remove_prefix(1);
    b.remove_prefix(1);
  }
  return a.size() <=> b.size();
}

bool precede(const Chiave& a, const Chiave& b) {
  if (a.index() != b.index()) return a.index() < b.index();
  if (const auto* testo = std::get_if<std::string>(&a)) return naturale(*testo, std::get<std::string>(b)) < 0;
  return a < b;
}

}  // namespace

void Prospetto::mostra(Tabella tabella) {
  if (tabella == tabella_) return;
  std::vector<std::string> nomi;
  nomi.reserve(scelte_.size());
  for (const auto riga : scelte_) nomi.push_back(testoCella(cella(riga, 0)));
  tabella_ = std::move(tabella);
  if (ordine_.colonna && *ordine_.colonna >= tabella_.colonne.size()) ordine_ = {};
  scelte_.clear();
  for (Riga riga = 0; riga < tabella_.righe.size() && !nomi.empty(); ++riga)
    if (std::find(nomi.begin(), nomi.end(), testoCella(cella(riga, 0))) != nomi.end())
      scelte_.push_back(riga);
  if (quante_ == Scelta::Una && scelte_.size() > 1) scelte_.resize(1);
  disponi();
  cambiato();
}

void Prospetto::ordina(Ordine ordine) {
  if (ordine == ordine_ || (ordine.colonna && *ordine.colonna >= tabella_.colonne.size())) return;
  ordine_ = ordine;
  disponi();
  cambiato();
}

void Prospetto::filtra(const std::string& testo) {
  auto filtro = perConfronto(std::string(senzaBlanchi(testo)));
  if (filtro == filtro_) return;
  filtro_ = std::move(filtro);
  const auto prima = scelte_.size();
  disponi();
  cambiato();
  if (scelte_.size() != prima && Change) Change();
}

void Prospetto::scegli(const std::vector<Riga>& righe) {
  auto nuove = traLeMostrate(righe);
  if (quante_ == Scelta::Una && nuove.size() > 1) nuove.resize(1);
  if (nuove == scelte_) return;
  scelte_ = std::move(nuove);
  cambiato();
  if (Change) Change();
}

void Prospetto::apri(Riga riga) {
  scegli({riga});
  if (scelta() == riga && Apri) Apri();
}

std::optional<Prospetto::Riga> Prospetto::scelta() const {
  if (scelte_.empty()) return std::nullopt;
  return scelte_.front();
}

void Prospetto::disponi() {
  mostrate_.clear();
  for (Riga riga = 0; riga < tabella_.righe.size(); ++riga)
    if (passa(tabella_.righe[riga])) mostrate_.push_back(riga);
  if (const auto colonna = ordine_.colonna) {
    const auto tipo = tabella_.colonne[*colonna].tipo;
    std::vector<Chiave> chiavi;
    chiavi.reserve(tabella_.righe.size());
    for (const auto& celle : tabella_.righe) chiavi.push_back(chiave(celle[*colonna], tipo));
    std::stable_sort(mostrate_.begin(), mostrate_.end(), [&](Riga a, Riga b) {
      const bool vuotaA = chiavi[a].index() == 0, vuotaB = chiavi[b].index() == 0;
      if (vuotaA || vuotaB) return !vuotaA && vuotaB;
      return ordine_.crescente ? precede(chiavi[a], chiavi[b]) : precede(chiavi[b], chiavi[a]);
    });
  }
  scelte_ = traLeMostrate(scelte_);
  ++edizione_;
}

bool Prospetto::passa(const std::vector<Cella>& celle) const {
  if (filtro_.empty()) return true;
  for (std::size_t n = 0; n < celle.size(); ++n)
    if ((n == 0 || tabella_.colonne[n].tipo != Colonna::Tipo::Numero) &&
        perConfronto(testoCella(celle[n])).find(filtro_) != std::string::npos)
      return true;
  return false;
}

std::vector<Prospetto::Riga> Prospetto::traLeMostrate(const std::vector<Riga>& righe) const {
  std::vector<bool> cercate(tabella_.righe.size(), false);
  for (const auto riga : righe)
    if (riga < cercate.size()) cercate[riga] = true;
  std::vector<Riga> trovate;
  for (const auto riga : mostrate_)
    if (cercate[riga]) trovate.push_back(riga);
  return trovate;
}

Tabella Prospetto::con(const std::vector<Riga>& righe) const {
  Tabella scelta{tabella_.colonne, {}};
  scelta.righe.reserve(righe.size());
  for (const auto riga : righe) scelta.righe.push_back(tabella_.righe[riga]);
  return scelta;
}

}  // namespace vaticlo
