#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/file_accanto.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"
#include "platform/spostamento.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMassimaCoda = std::size_t{64} << 20;
constexpr int kMassimiLink = 40;

// Where the file is or is to be, so that a link stays one.
fs::path dietroILink(fs::path percorso) {
  std::error_code codice;
  for (int n = 0; n < kMassimiLink && fs::is_symlink(fs::symlink_status(percorso, codice)); ++n)
    percorso = percorso.parent_path() / fs::read_symlink(percorso, codice);
  return percorso;
}

fs::path cartellaDi(const fs::path& file) { return file.has_parent_path() ? file.parent_path() : "."; }

// Nothing when there is none. One that may not be written is not replaced either.
std::optional<Descrittore> apriVecchio(const fs::path& percorso) {
  try {
    return std::optional<Descrittore>(std::in_place, percorso, Apertura::Modifica);
  } catch (const RuntimeFailure& failure) {
    if (failure.errore() == Errore::FileNonTrovato) return std::nullopt;
    throw;
  }
}

std::size_t lunghezza(const Descrittore& file, const fs::path& percorso) {
  const auto lunga = file.lunghezza(percorso);
  if (!lunga) throw RuntimeFailure(Errore::AccessoAlFile, nomeFile(percorso));
  return *lunga;
}

std::string leggiPezzo(const Descrittore& file, std::size_t posto, std::size_t quanti,
                       const fs::path& percorso) {
  std::string pezzo(quanti, '\0');
  file.vaiA(posto, percorso);
  pezzo.resize(file.leggi({reinterpret_cast<std::uint8_t*>(pezzo.data()), quanti}, percorso));
  return pezzo;
}

// What frees the blocks of the old file lasts longer than writing the new one. Nobody waits for it.
void chiudiAParte(Descrittore vecchio) {
  try {
    std::thread([tenuto = std::move(vecchio)] {}).detach();
  } catch (const std::system_error&) {
    // Closed here instead.
  }
}

// As far as the disk lets it; the failure that made it necessary is the one to tell.
void rimetti(const Descrittore& file, std::string_view vecchi, std::size_t lungo, const fs::path& percorso) {
  try {
    file.vaiA(0, percorso);
    file.scrivi(vecchi, percorso);
    file.tagliaA(lungo, percorso);
    file.sincronizza(percorso);
  } catch (const RuntimeFailure&) {
  }
}

void scriviSulPosto(const Descrittore& file, std::string_view dati, bool intera, const fs::path& percorso) {
  const SegnaliFermi fermi;
  const auto lungo = lunghezza(file, percorso);
  const auto vecchi = leggiPezzo(file, 0, std::min(lungo, dati.size()), percorso);
  try {
    file.vaiA(0, percorso);
    file.scrivi(dati, percorso);
    file.sincronizza(percorso);
    if (intera && lungo > dati.size()) file.tagliaA(dati.size(), percorso);
  } catch (const RuntimeFailure&) {
    rimetti(file, vecchi, lungo, percorso);
    throw;
  }
}

}  // namespace

void scriviFile(const fs::path& percorso, std::span<const std::uint8_t> ottetti, Scrittura come) {
  const std::string_view dati(reinterpret_cast<const char*>(ottetti.data()), ottetti.size());
  const auto file = dietroILink(percorso);
  const auto cartella = cartellaDi(file);
  const BloccoCartella blocco(cartella);
  auto vecchio = apriVecchio(file);
  if (vecchio && come == Scrittura::Nuova) throw RuntimeFailure(Errore::FileEsistente, nomeFile(file));
  const auto lungo = vecchio ? lunghezza(*vecchio, file) : 0;
  const auto coda = come == Scrittura::Griglia && lungo > dati.size() ? lungo - dati.size() : 0;
  const bool accantoSiPuo = !vecchio || (coda <= kMassimaCoda && siPuoAggiungere(cartella));
  bool preso = false;
  if (accantoSiPuo) {
    FileAccanto accanto(file);
    if (vecchio) accanto.prendiPermessi(*vecchio);
    accanto.scrivi(dati);
    if (coda > 0) accanto.scrivi(leggiPezzo(*vecchio, dati.size(), coda, file));
    accanto.finisci();
    if (come == Scrittura::Nuova) return accanto.prendiPostoLibero();
    preso = accanto.prendiIlPosto(vecchio, blocco);
  }
  if (!preso) return scriviSulPosto(*vecchio, dati, come == Scrittura::Intera, file);
  if (vecchio) chiudiAParte(std::move(*vecchio));
}

void rinominaFile(const fs::path& percorso, const fs::path& nuovo) {
  const BloccoCartella blocco(cartellaDi(nuovo));
  std::error_code ignorato;
  auto codice = sposta(percorso, nuovo, Posto::Libero);
  if (codice == std::errc::file_exists && fs::equivalent(percorso, nuovo, ignorato))
    codice = sposta(percorso, nuovo, Posto::Qualunque);
  if (codice == std::errc::file_exists) throw RuntimeFailure(Errore::FileEsistente, nomeFile(nuovo));
  if (codice) throw failureDiSistema(codice, percorso);
  try {
    blocco.sincronizza();
  } catch (const RuntimeFailure&) {
    [[maybe_unused]] const auto tornato = sposta(nuovo, percorso, Posto::Qualunque);
    throw;
  }
}

void eliminaFile(const fs::path& percorso) {
  const BloccoCartella blocco(cartellaDi(percorso));
  // Under a hidden name it can come back until the folder is on the disk.
  const auto nascosto = FileAccanto::nomeAccanto(percorso);
  togliFile(nascosto);
  rinominaFile(percorso, nascosto);
  togliFile(nascosto);
}

}  // namespace vaticlo
