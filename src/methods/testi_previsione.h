#pragma once

#include <string>

#include "platform/rapporto.h"
#include "program/previsione.h"

namespace vaticlo {

/// The wheels of a prediction, joined by "-"; "Tutte" comes last whatever its place in the stored list.
[[nodiscard]] std::string testoRuote(const Previsione& previsione);

/// " Numero di Telefono di previsione: …", when there is one.
void scriviTelefono(FileRapporto& rapporto, const Previsione& previsione);

/// The lines " Ruote: ", " Ambate: ", " Ambi Secchi: " and " Sorti Superiori: "; the first one always, the
/// others when their list is not empty.
void scriviGiocate(FileRapporto& rapporto, const Previsione& previsione);

/// The hit lines of the reports that tell each hit in a line of its own.
[[nodiscard]] std::string rigaAmbata(int numero, int ruota, int colpo);
[[nodiscard]] std::string rigaAmbo(int a, int b, int ruota, int colpo);
[[nodiscard]] std::string rigaAmboTutte(int a, int b, int ruota, int colpo);
/// `inizio` (" Terno in sorti superiori"), the numbers found, the wheel and the colpo: "° colpo" with a
/// blank, unlike the lines above.
[[nodiscard]] std::string rigaNumeri(const std::string& inizio, const std::vector<int>& usciti, int ruota,
                                     int colpo);

/// How the hit line of a combination begins, for two to five numbers found.
[[nodiscard]] std::string inizioSorte(std::size_t usciti);

inline constexpr const char* kRigaChiusura = "___________________________________";

}  // namespace vaticlo
