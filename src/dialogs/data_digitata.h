#pragma once

#include <string>

#include "forms/controlli.h"
#include "platform/servizi.h"

namespace vaticlo {

/// The focus is about to leave a date picker with a text that was typed there: a date up to the latest one
/// becomes the picker's. True when the focus must stay there, with the old date; a message has said why.
[[nodiscard]] bool trattieneData(SelettoreData& selettore, const std::string& digitata, Servizi& servizi);

}  // namespace vaticlo
