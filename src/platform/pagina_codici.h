#pragma once

#include <string>
#include <string_view>

namespace vaticlo {

/// Appends a UTF-8 text to `pagina` in the 8-bit code page of the report files (Windows-1252). A character
/// outside the page, or a byte that is no UTF-8, becomes "?".
void aggiungiInPagina(std::string& pagina, std::string_view testo);

/// A text of the code page in UTF-8. The five bytes that the page leaves undefined become "?".
[[nodiscard]] std::string daPagina(std::string_view pagina);

}  // namespace vaticlo
