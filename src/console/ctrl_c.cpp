#include "console/ctrl_c.h"

#include <csignal>

namespace vaticlo {

namespace {
volatile std::sig_atomic_t interruzione = 0;
}

CtrlC::CtrlC() : prima_(std::signal(SIGINT, [](int) { interruzione = 1; })) { interruzione = 0; }

CtrlC::~CtrlC() { std::signal(SIGINT, prima_); }

bool CtrlC::premuto() { return interruzione != 0; }

}  // namespace vaticlo
