#include "platform/libreria.h"

#include <dlfcn.h>

namespace vaticlo {

Libreria::Libreria(const char* nome) : libreria_(::dlopen(nome, RTLD_NOW | RTLD_LOCAL)) {}

void* Libreria::indirizzo(const char* nome) const {
  return libreria_ == nullptr ? nullptr : ::dlsym(libreria_, nome);
}

}  // namespace vaticlo
