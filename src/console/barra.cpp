#include "console/barra.h"

#include <iostream>
#include <string>

#include "platform/processo.h"

namespace vaticlo {

namespace {
constexpr int kLarghezza = 50;
}

BarraSuTerminale::BarraSuTerminale() : terminale_(erroriSulTerminale()) {}

void BarraSuTerminale::mostra(int fatto, int tutto) {
  if (!terminale_ || tutto <= 0) return;
  const int percento = fatto * 100 / tutto;
  if (percento == percento_) return;
  percento_ = percento;
  const int piene = percento * kLarghezza / 100;
  std::cerr << "\r[" << std::string(static_cast<std::size_t>(piene), '#')
            << std::string(static_cast<std::size_t>(kLarghezza - piene), ' ') << "] " << percento << "%"
            << std::flush;
}

void BarraSuTerminale::togli() const {
  if (percento_ >= 0) std::cerr << '\r' << std::string(kLarghezza + 8, ' ') << '\r' << std::flush;
}

}  // namespace vaticlo
