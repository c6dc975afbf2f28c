#include <archive.h>
#include <archive_entry.h>

#include "platform/spacchettamento.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {
namespace {

using File = std::vector<std::pair<std::string, std::string>>;

std::string zip(const File& file) {
  std::string ottetti(std::size_t{1} << 20, '\0');
  std::size_t usati = 0;
  auto* archivio = ::archive_write_new();
  ::archive_write_set_format_zip(archivio);
  ::archive_write_open_memory(archivio, ottetti.data(), ottetti.size(), &usati);
  for (const auto& [nome, testo] : file) {
    auto* voce = ::archive_entry_new();
    ::archive_entry_set_pathname(voce, nome.c_str());
    ::archive_entry_set_filetype(voce, nome.ends_with('/') ? AE_IFDIR : AE_IFREG);
    ::archive_entry_set_size(voce, static_cast<la_int64_t>(testo.size()));
    ::archive_write_header(archivio, voce);
    ::archive_write_data(archivio, testo.data(), testo.size());
    ::archive_entry_free(voce);
  }
  ::archive_write_free(archivio);
  ottetti.resize(usati);
  return ottetti;
}

const std::string kTesto = "uno due tre uno due tre uno due tre uno due tre";
// What gzip makes of it: gzip -n
const std::string kGzip(
    "\x1F\x8B\x08\x00\x00\x00\x00\x00\x00\x03\x2B\xCD\xCB\x57\x48\x29\x4D\x55\x28\x29\x4A\x55\x28\x25\xCC\x06"
    "\x00\xB2\xD6\x3D\x16\x2F\x00\x00\x00",
    35);

/// What comes out, or what is said instead.
std::string esito(const std::string& ottetti, std::size_t massimo = kMassimoTesto) {
  try {
    return spacchetta(ottetti, massimo);
  } catch (const ErrorePacchetto& errore) {
    return errore.what();
  }
}

TEST(Unpacking, GivesTheOneTextOfAPackedFile) {
  const struct {
    const char* nome;
    std::string ottetti, atteso;
  } casi[] = {
      {"no pack", kTesto, kTesto},
      {"nothing", "", ""},
      {"gzip", kGzip, kTesto},
      {"gzip twice", kGzip + kGzip, kTesto + kTesto},
      {"zip", zip({{"storico.txt", kTesto}}), kTesto},
      {"zip of a text among others",
       zip({{"a/", ""}, {"a/DATI.TXT", kTesto}, {"leggimi.md", "x"}, {"_/._DATI.txt", "x"}}), kTesto},
      {"zip of one file", zip({{"dati", kTesto}}), kTesto},
      {"zip of two texts", zip({{"a.txt", "x"}, {"b.txt", "x"}}), "nel file zip c'è più di un file di testo"},
      {"empty zip", zip({}), "nel file zip non c'è nessun file"}};
  for (const auto& caso : casi) EXPECT_EQ(esito(caso.ottetti), caso.atteso) << caso.nome;
  const auto lungo = kTesto.size();
  for (const auto& ottetti : {kGzip, zip({{"a.txt", kTesto}})}) {
    EXPECT_EQ(esito(ottetti, lungo), kTesto);
    EXPECT_THAT(esito(ottetti, lungo - 1), HasSubstr("contiene più di"));
  }
}

TEST(Unpacking, GivesNoOtherTextWhateverIsWrongWithAPackedFile) {
  for (const auto& intero : {kGzip, zip({{"storico.txt", kTesto}})})
    for (std::size_t n = 0; n < intero.size(); ++n) {
      for (const int bit : {1, 16, 128}) {
        auto rovinato = intero;
        rovinato[n] = static_cast<char>(rovinato[n] ^ bit);
        EXPECT_THAT(esito(rovinato), testing::AnyOf(kTesto, rovinato, HasSubstr("file compresso è rovinato"),
                                                    HasSubstr("zip non c'è nessun file")))
            << "bit " << bit << " of byte " << n;
      }
      const auto monco = intero.substr(0, n);
      EXPECT_THAT(esito(monco), testing::AnyOf(kTesto, monco, HasSubstr("file compresso è rovinato")))
          << "cut at " << n;
    }
}

}  // namespace
}  // namespace vaticlo::prova
