#pragma once

#include <iostream>
#include <streambuf>

#include "console/riga_di_comando.h"
#include "console/sessione.h"
#include "ingresso.h"
#include "sostegno/cartella_prova.h"

namespace vaticlo::fuzz {

/// The console program in a folder of its own, which it says nothing of.
class ConsoleMuta {
 public:
  ConsoleMuta() {
    for (auto* uscita : {&std::cout, &std::cerr}) uscita->rdbuf(&muto_);
  }
  ConsoleMuta(const ConsoleMuta&) = delete;
  ConsoleMuta& operator=(const ConsoleMuta&) = delete;
  ~ConsoleMuta() {
    for (auto* uscita : {&std::cout, &std::cerr}) uscita->rdbuf(nullptr);
  }

  prova::ProgrammaProva p;

  Esito esegui(std::vector<std::string> parole) {
    parole.insert(parole.begin(), {"--cartella", p.radice.string()});
    return Sessione().esegui(riga_, parole, "");
  }
  /// Takes every file out of the folder.
  void svuota() const {
    for (const auto& file : std::filesystem::recursive_directory_iterator(p.radice))
      if (!file.is_directory()) std::filesystem::remove(file);
  }
  /// What a command leaves, whatever it was.
  void controlla() const {
    for (const auto& file : std::filesystem::recursive_directory_iterator(p.radice)) {
      const auto nome = file.path().filename().string();
      richiedi(!nome.starts_with("."), "nothing is left beside");
      const auto suo = file.path().lexically_relative(p.radice).string();
      if (suo == kFileArchivio)
        richiedi(file.file_size() == 0 || file.file_size() == ArchivioEstrazioni::Ottetti, "a whole archive");
      if (suo.starts_with("Metodi/") && file.is_regular_file())
        richiedi(file.file_size() == 0 || file.file_size() == FileMetodo::Ottetti, "a whole method");
    }
  }

 private:
  struct Muto : std::streambuf {
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const char_type* /*testo*/, std::streamsize n) override { return n; }
  };
  Muto muto_;
  RigaDiComando riga_{RigaDiComando::Luogo::Terminale};
};

inline std::string_view comeTesto(std::span<const std::uint8_t> ottetti) {
  return {reinterpret_cast<const char*>(ottetti.data()), ottetti.size()};
}

}  // namespace vaticlo::fuzz
