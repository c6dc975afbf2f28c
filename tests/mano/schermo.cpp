#include "mano/schermo.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <utility>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "mano/attesa.h"

namespace vaticlo::prova {

namespace {

void termina(pid_t processo) {
  if (processo <= 0) return;
  kill(processo, SIGKILL);
  waitpid(processo, nullptr, 0);
}

}  // namespace

pid_t avvia(const std::vector<std::string>& comando) {
  std::vector<char*> argomenti;
  for (const auto& parola : comando) argomenti.push_back(const_cast<char*>(parola.c_str()));
  argomenti.push_back(nullptr);
  const pid_t processo = fork();
  if (processo != 0) return processo;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  execvp(argomenti[0], argomenti.data());
  _exit(127);
}

Schermo::Schermo() {
  std::array<int, 2> tubo{};
  if (pipe(tubo.data()) != 0) throw std::runtime_error("no pipe");
  server_ = avvia({"Xvfb", "-displayfd", std::to_string(tubo[1]), "-screen", "0", "1600x1200x24", "-dpi",
                   "96", "-nolisten", "tcp", "-noreset"});
  close(tubo[1]);
  std::string numero;  // the server writes it when it is ready, or closes the pipe when it fails
  for (char cifra = 0; read(tubo[0], &cifra, 1) == 1 && cifra != '\n';) numero += cifra;
  close(tubo[0]);
  if (numero.empty()) throw std::runtime_error("Xvfb does not start: is the package xvfb installed?");
  setenv("DISPLAY", (":" + numero).c_str(), 1);
  setenv("QT_QPA_PLATFORM", "xcb", 1);
  display_ = XOpenDisplay(nullptr);
  if (display_ == nullptr) throw std::runtime_error("no connection to the X server");
  XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });  // a window may be gone when it is asked
  finestra_ = XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 1, 1, 0, 0, 0);
  gestore_ = avvia({"openbox", "--sm-disable"});
  attendi("openbox: is the package installed?",
          [this] { return !proprieta(DefaultRootWindow(display_), "_NET_SUPPORTING_WM_CHECK").empty(); });
}

Schermo::~Schermo() {
  termina(gestore_);
  XCloseDisplay(display_);
  termina(server_);
}

void Schermo::tasto(unsigned long simbolo, bool giu, int dopo) {
  const auto codice = XKeysymToKeycode(display_, simbolo);
  if (codice == 0) throw std::runtime_error("no such key");
  XTestFakeKeyEvent(display_, codice, giu ? True : False, static_cast<unsigned long>(dopo));
}

void Schermo::scrivi(const std::string& testo, int pressione) {
  for (const char c : testo)
    premi(c == '\t'   ? "Tab"
          : c == '\n' ? "Return"
          : c == '\b' ? "BackSpace"
          : c == ' '  ? "space"
          : c == '/'  ? "slash"
          : c == '-'  ? "minus"
          : c == '.'  ? "period"
                      : std::string(1, c),
          pressione);
}

void Schermo::premi(const std::string& tasti, int pressione) {
  std::istringstream nomi(tasti);
  std::vector<unsigned long> simboli;
  for (std::string nome; std::getline(nomi, nome, '+');) simboli.push_back(XStringToKeysym(nome.c_str()));
  for (const auto simbolo : simboli) tasto(simbolo, true, 0);
  std::reverse(simboli.begin(), simboli.end());
  for (const auto simbolo : simboli) tasto(simbolo, false, std::exchange(pressione, 0));
  XSync(display_, False);
}

void Schermo::punta(Punto punto) {
  XTestFakeMotionEvent(display_, 0, punto.x, punto.y, 0);
  XSync(display_, False);
}

void Schermo::clicca(Punto punto, unsigned pulsante) {
  punta(punto);
  XTestFakeButtonEvent(display_, pulsante, True, 0);
  XTestFakeButtonEvent(display_, pulsante, False, kPressione);
  XSync(display_, False);
}

std::string Schermo::copia() {
  const auto appunti = XInternAtom(display_, "CLIPBOARD", False);
  XSetSelectionOwner(display_, appunti, finestra_, CurrentTime);
  premi("Control_L+a");
  premi("Control_L+c");
  attendi("a copy of a field", [&] { return XGetSelectionOwner(display_, appunti) != finestra_; });
  XConvertSelection(display_, appunti, XInternAtom(display_, "UTF8_STRING", False),
                    XInternAtom(display_, "COPIA", False), finestra_, CurrentTime);
  attendi("its text", [&] {
    XEvent evento;
    return XCheckTypedWindowEvent(display_, finestra_, SelectionNotify, &evento) == True;
  });
  return proprieta(finestra_, "COPIA");
}

Schermo::Attiva Schermo::attiva() const {
  const auto radice = proprieta(DefaultRootWindow(display_), "_NET_ACTIVE_WINDOW");
  if (radice.size() < sizeof(unsigned long)) return {};
  const auto finestra = *reinterpret_cast<const unsigned long*>(radice.data());
  return {finestra, finestra == 0 ? std::string() : proprieta(finestra, "_NET_WM_NAME")};
}

Punto Schermo::assoluto(unsigned long finestra, Punto punto) const {
  Window ignorata = 0;
  XTranslateCoordinates(display_, finestra, DefaultRootWindow(display_), punto.x, punto.y, &punto.x, &punto.y,
                        &ignorata);
  return punto;
}

std::string Schermo::proprieta(unsigned long finestra, const char* nome) const {
  Atom tipo = 0;
  int formato = 0;
  unsigned long elementi = 0, restanti = 0;
  unsigned char* dati = nullptr;
  if (XGetWindowProperty(display_, finestra, XInternAtom(display_, nome, False), 0, 1024, False,
                         AnyPropertyType, &tipo, &formato, &elementi, &restanti, &dati) != Success ||
      dati == nullptr)
    return {};
  const std::size_t misura = formato == 32 ? sizeof(long) : formato == 16 ? sizeof(short) : 1;
  std::string valore(reinterpret_cast<const char*>(dati), elementi * misura);
  XFree(dati);
  return valore;
}

}  // namespace vaticlo::prova
