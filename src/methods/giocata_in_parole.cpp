#include "methods/giocata_in_parole.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "archive/ruota.h"
#include "platform/conversione.h"
#include "platform/testo.h"

namespace vaticlo {

namespace {

constexpr const char* kPunto = " · ";

/// What is wrong with the fields, in the words of the line below them.
struct Sbaglio {
  std::string testo;
};

std::string unisci(const std::vector<std::string>& voci, const char* tra) {
  std::string testo;
  for (const auto& voce : voci) testo += (testo.empty() ? "" : tra) + voce;
  return testo;
}

std::string numero(std::string_view testo, char separatore) {
  const auto pulito = senzaBlanchi(testo);
  if (pulito.empty()) throw Sbaglio{"manca un numero: l'elenco finisce o ha due separatori di seguito"};
  const auto valore = cifre(pulito);
  if (!valore)
    throw Sbaglio{"\"" + citazione(pulito) + "\" non è un numero: qui si separano con \"" + separatore +
                  "\""};
  if (*valore < 1 || *valore > kNumeri)
    throw Sbaglio{citazione(pulito) + " non è un numero del Lotto: vanno da 1 a 90"};
  return std::to_string(*valore);
}

std::string ruota(std::string_view parola) {
  const auto cercata = maiuscolo(senzaBlanchi(parola));
  for (int codice = 1; codice <= kRuote; ++codice)
    if (cercata == maiuscolo(SiglaRuota(codice)))
      return std::string(kTavolaRuote.at(static_cast<std::size_t>(codice - 1)).nome);
  for (const auto& una : kTavolaRuote)
    if (cercata == maiuscolo(una.nome))
      throw Sbaglio{std::string(una.nome) + " si scrive " + std::string(una.sigla)};
  if (cercata == "RM") throw Sbaglio{"Roma si scrive Ro"};
  if (cercata == "RN" || cercata == "NZ") throw Sbaglio{"la Nazionale si scrive Naz"};
  throw Sbaglio{"\"" + citazione(senzaBlanchi(parola)) +
                "\" non è una ruota: Ba Ca Fi Ge Mi Na Pa Ro To Ve Naz Tutte, separate con \"-\""};
}

/// Groups of `minimo` to `massimo` different numbers.
std::vector<std::string> gruppi(std::string_view testo, const char* nome, std::size_t minimo,
                                std::size_t massimo) {
  std::vector<std::string> letti;
  for (const auto gruppo : dividi(testo, ';')) {
    std::vector<std::string> numeri;
    for (const auto uno : dividi(gruppo, '-')) {
      numeri.push_back(numero(uno, '-'));
      if (std::count(numeri.begin(), numeri.end(), numeri.back()) > 1)
        throw Sbaglio{"il " + numeri.back() + " è due volte in " + citazione(gruppo)};
    }
    if (numeri.size() < minimo || numeri.size() > massimo)
      throw Sbaglio{"\"" + citazione(gruppo) + "\" non è " + nome};
    letti.push_back(unisci(numeri, "-"));
  }
  return letti;
}

/// The bets and the wheels of fields that are right so far; parts that are empty are left out.
std::vector<std::string> parti(const TestiPrevisione& testi) {
  std::vector<std::string> ambate, ruote;
  bool tutte = false;
  for (const auto una : dividi(testi.ambate, ';')) ambate.push_back(numero(una, ';'));
  const auto ambi = gruppi(senzaBlanchi(testi.ambi), "un ambo: due numeri, come 15-50", 2, 2);
  const auto sup = gruppi(testi.sup, "una combinazione: da due a cinque numeri, come 15-50-66", 2, 5);
  for (const auto parola : dividi(senzaBlanchi(testi.ruote), '-')) {
    if (maiuscolo(senzaBlanchi(parola)) == maiuscolo(SiglaRuotaTutte(kTutte)))
      tutte = true;
    else
      ruote.push_back(ruota(parola));
  }

  std::vector<std::string> lette;
  if (!ambate.empty()) lette.push_back((ambate.size() == 1 ? "ambata " : "ambate ") + unisci(ambate, ", "));
  if (!ambi.empty()) lette.push_back((ambi.size() == 1 ? "ambo " : "ambi ") + unisci(ambi, ", "));
  if (!sup.empty())
    lette.push_back((sup.size() == 1 ? "combinazione " : "combinazioni ") + unisci(sup, ", "));
  if (!ruote.empty()) lette.push_back(unisci(ruote, ", "));
  if (tutte) {
    if (ambi.empty()) throw Sbaglio{"Tutte vale per gli ambi secchi soltanto, e qui non ce ne sono"};
    if (ruote.empty()) throw Sbaglio{"con Tutte ci vuole anche una ruota, come Ba-Tutte"};
    lette.emplace_back("gli ambi anche su tutte le ruote");
  }
  return lette;
}

bool vuote(const TestiPrevisione& testi) {
  return testi.ruote.empty() && testi.ambate.empty() && testi.ambi.empty() && testi.sup.empty();
}

}  // namespace

std::string puntateInParole(const TestiPrevisione& testi) {
  try {
    return unisci(parti(testi), kPunto);
  } catch (const Sbaglio&) {
    return testi.ruote;  // stored by hand, against what a bet is: its wheels at least
  }
}

GiocataInParole giocataInParole(const TestiPrevisione& testi) {
  if (vuote(testi)) return {};
  try {
    auto lette = parti(testi);
    if (testi.ambate.empty() && testi.ambi.empty() && testi.sup.empty())
      return {"Manca la giocata: ambate, ambi secchi o sorti superiori", true};
    if (testi.ruote.empty()) return {"Mancano le ruote: per esempio Ba-Ca", true};
    lette.push_back(testi.colpi + (testi.colpi == "1" ? " colpo" : " colpi"));
    return {"Si gioca: " + unisci(lette, kPunto), false};
  } catch (const Sbaglio& sbaglio) {
    auto testo = sbaglio.testo;
    if (testo[0] >= 'a' && testo[0] <= 'z') testo[0] = static_cast<char>(testo[0] - 'a' + 'A');
    return {testo, true};
  }
}

}  // namespace vaticlo
