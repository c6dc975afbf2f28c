#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

namespace vaticlo {

/// What reading does with a file that is missing.
enum class SeManca {
  Crea,   ///< it is created empty; where it can't be, it reads as empty
  Vuoto,  ///< it reads as empty: one that was listed a moment ago and is gone does not come back
};

/// Reads as many bytes as `dati` holds. What a short file does not have is 0; what follows in a longer one is
/// left out. A file that may only be read is no failure. Fails with Errore::AccessoAlFile (no plain file
/// either), PercorsoNonTrovato (no folder) or DispositivoIO (reading went wrong).
void leggiFile(const std::filesystem::path& percorso, std::span<std::uint8_t> dati,
               SeManca seManca = SeManca::Crea);

/// What becomes of a file that is there already.
enum class Scrittura {
  Griglia,  ///< it takes the new bytes and keeps what it has beyond them
  Intera,   ///< it holds the new bytes and nothing else
  Nuova,    ///< there must be none: Errore::FileEsistente otherwise
};

/// Writes `dati` wholly or not at all. A new file is written beside, under a name that begins with ".",
/// brought to the disk and put in the place of the old one: whatever stops the program or the machine, the
/// file is as before or as after, and a reader never sees half of it. What a killed program leaves beside
/// goes with the next write of that file. The new file has the permissions of the old one and its owner where
/// the system allows it; a link stays a link, to the new file; other hard links keep the old one. Where
/// nothing can be put beside (a folder that can't be written, a tail beyond 64 MiB) the bytes go over the old
/// ones, which are put back on a failure.
/// Fails with Errore::DispositivoIO, DiscoPieno, AccessoAlFile (a file that can't be written is not replaced
/// either), PercorsoNonTrovato (no folder), FileEsistente or CartellaOccupata (another program holds the
/// folder); the file is then as it was. This has two limits. Where the bytes go over the old ones, a mixture
/// may be left by a kill -9, a signal that another thread of the program gets, or a disk that refuses the old
/// bytes too. Where a file system can't exchange two names, the new file may stay although the folder could
/// not be brought to the disk.
void scriviFile(const std::filesystem::path& percorso, std::span<const std::uint8_t> dati,
                Scrittura come = Scrittura::Griglia);

/// Gives a file another name, where there is no file yet. A name that leads to the same file (upper and lower
/// case, on some file systems) is taken. The new name is on the disk on return. Fails with
/// Errore::FileEsistente, FileNonTrovato, DispositivoIO, DiscoPieno, CartellaOccupata or AccessoAlFile: the
/// file then has its old name.
void rinominaFile(const std::filesystem::path& percorso, const std::filesystem::path& nuovo);

/// Takes a file away, from the disk too. Fails with Errore::FileNonTrovato, DispositivoIO, DiscoPieno,
/// CartellaOccupata or AccessoAlFile: it is still there then.
void eliminaFile(const std::filesystem::path& percorso);

/// Takes away what killed programs have left beside the files of a folder. Whoever calls holds the folder.
void togliResti(const std::filesystem::path& cartella);

/// The longest text that is taken from a user, in bytes: far more than any that makes sense.
inline constexpr std::size_t kMassimoTesto = std::size_t{64} << 20;

/// The whole content of a file that must exist. Fails with Errore::FileNonTrovato, or with TestoTroppoLungo
/// when it has more than `massimo` bytes. A pipe or a device, which may have no end, is read up to
/// kMassimoTesto at most.
[[nodiscard]] std::string contenutoFile(const std::filesystem::path& percorso,
                                        std::size_t massimo = std::string::npos - 1);

/// The content of a text file that the user names, up to kMassimoTesto. Where it is a pipe, whoever is to
/// write into it is waited for.
[[nodiscard]] std::string testoFornito(const std::filesystem::path& percorso);

}  // namespace vaticlo
