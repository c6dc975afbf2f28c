#include "operations/sostituzione.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "platform/failure.h"
#include "platform/file_intero.h"
#include "platform/percorso.h"

namespace vaticlo {

namespace fs = std::filesystem;

namespace {

class Sostituzione {
 public:
  Sostituzione(const fs::path& dove, const FilePerNome& presenti) : dove_(dove), presenti_(presenti) {}

  void fai(const FilePerNome& nuovi) {
    try {
      std::set<std::string> rimasti;
      for (const auto& [file, ottetti] : nuovi) {
        const auto presente = cerca(file);
        if (presente != presenti_.end()) rimasti.insert(presente->first);
        metti(file, ottetti, presente);
      }
      for (const auto& [file, ottetti] : presenti_)
        if (!rimasti.contains(file)) togli(file, ottetti);
    } catch (const RuntimeFailure&) {
      tornaIndietro();
      throw;
    }
  }

 private:
  // On some file systems a method of the copy may lie under the name that it has had meanwhile.
  [[nodiscard]] FilePerNome::const_iterator cerca(const std::string& file) const {
    const auto suo = presenti_.find(file);
    std::error_code ignorato;
    if (suo != presenti_.end() || !fs::exists(dove_ / percorsoDa(file), ignorato)) return suo;
    return std::ranges::find_if(presenti_, [&](const auto& altro) {
      return fs::equivalent(dove_ / percorsoDa(file), dove_ / percorsoDa(altro.first), ignorato);
    });
  }

  void metti(const std::string& file, const std::vector<std::uint8_t>& ottetti,
             FilePerNome::const_iterator presente) {
    const auto percorso = dove_ / percorsoDa(file);
    if (presente == presenti_.end()) {
      scriviFile(percorso, ottetti);
      indietro_.emplace_back([percorso] { eliminaFile(percorso); });
    } else if (presente->second != ottetti) {
      scriviFile(percorso, ottetti);
      indietro_.emplace_back([percorso, &prima = presente->second] { scriviFile(percorso, prima); });
    }
  }

  void togli(const std::string& file, const std::vector<std::uint8_t>& ottetti) {
    const auto percorso = dove_ / percorsoDa(file);
    eliminaFile(percorso);
    indietro_.emplace_back([percorso, &ottetti] { scriviFile(percorso, ottetti); });
  }

  void tornaIndietro() {
    for (; !indietro_.empty(); indietro_.pop_back()) try {
        indietro_.back()();
      } catch (const RuntimeFailure&) {
        // The others still can.
      }
  }

  const fs::path& dove_;
  const FilePerNome& presenti_;
  std::vector<std::function<void()>> indietro_;
};

}  // namespace

void sostituisciTutti(const fs::path& dove, const FilePerNome& presenti, const FilePerNome& nuovi) {
  togliResti(dove);
  Sostituzione(dove, presenti).fai(nuovi);
}

}  // namespace vaticlo
