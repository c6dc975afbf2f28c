#include "operations/previsioni_metodo.h"

#include <algorithm>
#include <filesystem>

#include "methods/cartella_metodi.h"
#include "operations/copie.h"
#include "operations/un_passo.h"
#include "platform/failure.h"

namespace vaticlo {

namespace {

constexpr int kGiudicabili = FileMetodo::Slot - 1;  // a method with ten predictions is judged by nobody

bool piena(const FileMetodo& metodo, int slot) { return metodo.EstrazioneCalcolo(slot) != 0; }

bool uguali(const FileMetodo& uno, const FileMetodo& altro) {
  return std::ranges::equal(uno.ottetti(), altro.ottetti());
}

CambioMetodo leggi(const Programma& programma, const std::string& nome) {
  richiediMetodo(programma, nome);
  const auto griglia = LeggiMetodo(programma.cartella, nome);
  return {nome, griglia, griglia};
}

/// The slots in ascending order, each once; all of them hold a prediction.
std::vector<int> richiediPiene(const CambioMetodo& metodo, std::vector<int> slot) {
  std::sort(slot.begin(), slot.end());
  slot.erase(std::unique(slot.begin(), slot.end()), slot.end());
  for (const int s : slot)
    if (s < 1 || s > FileMetodo::Slot || !piena(metodo.prima, s))
      throw Rifiuto{"Il metodo \"" + metodo.nome + "\" non ha la previsione n." + std::to_string(s) + "!"};
  return slot;
}

void togliSlot(CambioMetodo& metodo, const std::vector<int>& slot) {
  metodo.dopo = {};
  for (int s = 1, posto = 1; s <= FileMetodo::Slot; ++s)
    if (!std::binary_search(slot.begin(), slot.end(), s)) CopiaSlot(metodo.prima, s, metodo.dopo, posto++);
}

void aggiungi(CambioMetodo& verso, const FileMetodo& da, const std::vector<int>& slot) {
  std::vector<int> liberi;
  for (int s = 1; s <= FileMetodo::Slot; ++s)
    if (!piena(verso.prima, s)) liberi.push_back(s);
  if (FileMetodo::Slot - liberi.size() + slot.size() > kGiudicabili)
    throw Rifiuto{"Nel metodo \"" + verso.nome +
                  "\" non c'è posto: con dieci previsioni non viene più giudicato!"};
  for (std::size_t n = 0; n < slot.size(); ++n) CopiaSlot(da, slot[n], verso.dopo, liberi[n]);
}

/// Writes all of them or, as far as the disk lets it, none.
void scrivi(const Programma& programma, const PassoPrevisioni& passo) {
  faiCopia(programma, GenereCopia::Metodi);
  for (std::size_t n = 0; n < passo.size(); ++n) try {
      ScriviMetodo(programma.cartella, passo[n].nome, passo[n].dopo);
    } catch (const RuntimeFailure&) {
      while (n-- > 0) ScriviMetodo(programma.cartella, passo[n].nome, passo[n].prima);
      throw;
    }
}

}  // namespace

CambioMetodo PrevisioniMetodo::leggiOrigine(const std::string& nome) const {
  auto origine = leggi(programma_, nome);
  if (vista_ && !uguali(*vista_, origine.prima))
    throw Rifiuto{"Il metodo \"" + nome + "\" è cambiato nel frattempo: riguardate le sue previsioni!"};
  return origine;
}

PassoPrevisioni PrevisioniMetodo::togli(const std::string& metodo, std::vector<int> slot) {
  PassoPrevisioni passo;
  inUnPasso(programma_, [&] {
    auto cambio = leggiOrigine(metodo);
    togliSlot(cambio, richiediPiene(cambio, std::move(slot)));
    scrivi(programma_, {cambio});
    passo.push_back(std::move(cambio));
  });
  return passo;
}

PassoPrevisioni PrevisioniMetodo::duplica(const std::string& metodo, std::vector<int> slot) {
  return copia(metodo, std::move(slot), metodo);
}

PassoPrevisioni PrevisioniMetodo::copia(const std::string& metodo, std::vector<int> slot,
                                        const std::string& verso) {
  PassoPrevisioni passo;
  inUnPasso(programma_, [&] {
    const auto origine = leggiOrigine(metodo);
    auto cambio = leggi(programma_, verso);
    aggiungi(cambio, origine.prima, richiediPiene(origine, std::move(slot)));
    scrivi(programma_, {cambio});
    passo.push_back(std::move(cambio));
  });
  return passo;
}

PassoPrevisioni PrevisioniMetodo::sposta(const std::string& metodo, std::vector<int> slot,
                                         const std::string& verso) {
  PassoPrevisioni passo;
  inUnPasso(programma_, [&] {
    auto origine = leggiOrigine(metodo), cambio = leggi(programma_, verso);
    const auto& cartella = programma_.cartella;
    if (std::filesystem::equivalent(fileMetodo(cartella, metodo), fileMetodo(cartella, verso)))
      throw Rifiuto{"La previsione è già nel metodo \"" + metodo + "\"!"};
    const auto piene = richiediPiene(origine, std::move(slot));
    aggiungi(cambio, origine.prima, piene);
    togliSlot(origine, piene);
    // The method that gains is written first: whatever stops the program, no prediction is lost.
    PassoPrevisioni fatto = {std::move(cambio), std::move(origine)};
    scrivi(programma_, fatto);
    passo = std::move(fatto);
  });
  return passo;
}

bool PrevisioniMetodo::annulla(const PassoPrevisioni& passo) {
  return inUnPasso(programma_, [&] {
    PassoPrevisioni indietro;
    for (const auto& [nome, prima, dopo] : passo) {
      if (!uguali(leggi(programma_, nome).prima, dopo))
        throw Rifiuto{"Il metodo \"" + nome + "\" è cambiato: non si può più annullare!"};
      indietro.insert(indietro.begin(), {nome, dopo, prima});
    }
    scrivi(programma_, indietro);
  });
}

}  // namespace vaticlo
