#pragma once

#include "console/parole.h"
#include "console/sessione.h"
#include "sostegno/logica.h"

namespace vaticlo::prova {

/// The console in the folder of a test.
class Console : public testing::Test {
 protected:
  /// Runs a command line and keeps what it says. "@" stands for the folder, "NUMERI" for 1 to 55.
  int esegui(std::string riga) {
    std::string numeri;
    for (int n = 1; n <= 55; ++n) numeri += std::to_string(n) + " ";
    for (const auto& [segno, testo] :
         {std::pair{std::string("@"), p.radice.generic_string()}, {"NUMERI", numeri}})
      if (const auto posto = riga.find(segno); posto != std::string::npos)
        riga.replace(posto, segno.size(), testo);
    auto parole = paroleDellaRiga(riga).parole;
    parole.insert(parole.begin(), {"--cartella", testoDi(p.radice)});
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const int stato = sessione.esegui(parole);
    std::cout.clear();
    detto = testing::internal::GetCapturedStdout();
    errori = testing::internal::GetCapturedStderr();
    return stato;
  }
  int eseguiFile(const std::string& comandi) {
    p.scrivi("comandi.txt", comandi);
    return esegui("esegui @/comandi.txt");
  }
  ProgrammaProva p;
  Sessione sessione;
  std::string detto, errori;
};

}  // namespace vaticlo::prova
