#include "platform/percorso.h"

namespace vaticlo {

std::filesystem::path percorsoDa(std::string_view testo) { return testo; }

std::string testoDi(const std::filesystem::path& percorso) { return percorso.native(); }

bool portaFuori(std::string_view nome) { return nome.find_first_of(std::string_view("/\0", 2)) != nome.npos; }

}  // namespace vaticlo
