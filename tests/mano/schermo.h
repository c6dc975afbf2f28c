#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

struct _XDisplay;

namespace vaticlo::prova {

/// Starts a program, which dies with this one. Failing to start ends it with status 127.
[[nodiscard]] pid_t avvia(const std::vector<std::string>& comando);

struct Punto {
  int x, y;
};

/// An X server of its own with a window manager, and a hand before it: what it does reaches the programs as
/// events of a keyboard and a mouse, with the time between them that a hand needs. Throws std::runtime_error
/// when server or window manager do not start. Sets DISPLAY for this process and those it starts.
class Schermo {
 public:
  Schermo();
  Schermo(const Schermo&) = delete;
  Schermo& operator=(const Schermo&) = delete;
  ~Schermo();

  static constexpr int kPressione = 100;  // milliseconds

  /// Types a text; "\t", "\n" and "\b" are Tab, Enter and Backspace. Each key is held down for that long.
  void scrivi(const std::string& testo, int pressione = 0);
  void premi(const std::string& tasti, int pressione = 0);  ///< keys held together, as "Control_L+a"
  void punta(Punto punto);
  void clicca(Punto punto, unsigned pulsante = 1);

  /// What the program copies of the field that has the focus.
  [[nodiscard]] std::string copia();

  struct Attiva {
    unsigned long finestra = 0;
    std::string titolo;
  };
  [[nodiscard]] Attiva attiva() const;  ///< the window that the window manager has made active
  /// A point of a window as one of the screen.
  [[nodiscard]] Punto assoluto(unsigned long finestra, Punto punto) const;

 private:
  [[nodiscard]] std::string proprieta(unsigned long finestra, const char* nome) const;
  void tasto(unsigned long simbolo, bool giu, int dopo);

  pid_t server_ = 0, gestore_ = 0;
  _XDisplay* display_ = nullptr;
  unsigned long finestra_ = 0;  // of the clipboard
};

}  // namespace vaticlo::prova
