#pragma once

#include <string>

namespace vaticlo {

class Finestra;

/// What a dialog asks of the main window that holds it.
class Cornice {
 public:
  virtual ~Cornice() = default;
  /// Closes every other child window.
  virtual void chiudiAltre(Finestra& tranne) = 0;
  /// Closes the window; the object outlives the event that is running in it.
  virtual void chiudi(Finestra& finestra) = 0;
  /// Closes the window in the same way and opens it anew.
  virtual void riapri(Finestra& finestra) = 0;
  /// Opens the viewer of the two lists of a statistics run, or brings it up again.
  virtual void apriRisultati() = 0;
  /// Opens the check on a draw with a method chosen, and leaves the window that asks for it open.
  virtual void apriVerifica(const Finestra& chiede, const std::string& metodo, int estrazione) = 0;
  /// Opens the comparison of a method with chance, and leaves the window that asks open.
  virtual void apriConfronto(const Finestra& chiede, const std::string& metodo) = 0;
  /// Long work begins or ends in a window, which is `occupata` meanwhile: the main window takes no command,
  /// and the other windows take no input.
  virtual void lavoro(bool inCorso) = 0;
  /// The archive was replaced as a whole; draws were added at its end: the open windows are told.
  virtual void archivioNuovo() = 0;
  virtual void estrazioniAggiunte() = 0;
};

/// Size of a child window and its place beside the main window's top left corner, in twips (15 are a pixel at
/// 96 dpi).
struct Misure {
  int altezza, larghezza, sopra, sinistra;
};

/// The logic of a child window: named controls, event procedures as member functions, no toolkit.
class Finestra {
 public:
  explicit Finestra(Cornice& cornice) : cornice_(cornice) {}
  Finestra(const Finestra&) = delete;
  Finestra& operator=(const Finestra&) = delete;
  virtual ~Finestra() = default;

  /// Runs once, before the window is shown.
  virtual void Form_Load() = 0;
  /// Runs each time the window becomes the active one.
  virtual void Form_Activate() {}
  /// The archive was replaced as a whole. A window that could write one of the old draws closes, one that
  /// works with the draws takes the new last one.
  virtual void archivioNuovo() {}
  /// Draws were added at the end of the archive; all others are as they were. A window that works with the
  /// draws takes the new last one.
  virtual void estrazioniAggiunte() { archivioNuovo(); }
  /// Long work is under way inside one of its events: it can't be closed and no other window opened.
  [[nodiscard]] virtual bool occupata() const { return false; }
  /// Asks such work to end soon.
  virtual void interrompi() {}

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  [[nodiscard]] const Misure& misure() const { return misure_; }

 protected:
  [[nodiscard]] Cornice& cornice() const { return cornice_; }
  void Caption(std::string caption) { caption_ = std::move(caption); }
  void prendiMisure(Misure misure) { misure_ = misure; }

 private:
  Cornice& cornice_;
  std::string caption_;
  Misure misure_{};
};

}  // namespace vaticlo
