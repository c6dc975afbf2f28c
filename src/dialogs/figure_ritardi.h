#pragma once

#include <array>
#include <string>

#include "analysis/caso_ritardi.h"
#include "analysis/ritardi.h"
#include "forms/grafico.h"
#include "platform/tabella.h"

namespace vaticlo {

/// By what numbers or pairs are compared in a picture.
enum class MisuraRitardi { Ritardo, Massimo, Frequenza };
inline constexpr std::array kMisureRitardi = {MisuraRitardi::Ritardo, MisuraRitardi::Massimo,
                                              MisuraRitardi::Frequenza};

/// The column of the table that holds a measure.
[[nodiscard]] std::size_t colonnaDella(MisuraRitardi misura);

/// All rows, with what chance gives for their delays.
[[nodiscard]] Tabella tabellaColCaso(const Ritardi& ritardi, Sorte sorte, const CasoDeiRitardi& caso);

/// Bars of the ninety rows with the most of a measure, beside what chance gives. `dove`: "su Bari".
[[nodiscard]] Disegno disegnoDei(const Ritardi& ritardi, Sorte sorte, const CasoDeiRitardi& caso,
                                 MisuraRitardi misura, const std::string& dove);

/// What chance gives, in plain sentences.
[[nodiscard]] std::string fraseDei(const Ritardi& ritardi, Sorte sorte, const CasoDeiRitardi& caso,
                                   const std::string& dove);

}  // namespace vaticlo
