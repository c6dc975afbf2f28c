#pragma once

#include <QImage>
#include <QMap>
#include <QRect>
#include <QString>

#include "mano/schermo.h"
#include "sostegno/scenario.h"

namespace vaticlo::prova {

/// Where the named widgets of a child window lie in the main window, and its frame as "titolo" and "chiudi".
using Mappa = QMap<QString, QRect>;

/// The program, running as a process of its own in a folder of its own, with its main window open.
class SessioneX {
 public:
  SessioneX(Schermo& schermo, const ArchivioProva& archivio);
  ~SessioneX();

  /// Opens a child window by its button of the toolbar.
  void apri(const QString& chiave);
  void clicca(const QString& nome, double parte = 0.5, unsigned pulsante = 1);  ///< at that part of its width
  void punta(const QString& nome);
  void ferma() const;     ///< the process takes no events any more ...
  void riprendi() const;  ///< ... and all that have come meanwhile
  /// Waits until a box with that title is before the main window; and until none is.
  void attendiRiquadro(const std::string& titolo = "Attenzione");
  void attendiPrincipale();
  [[nodiscard]] QImage immagine(const QString& nome);
  [[nodiscard]] int estrazioni() const { return ApriArchivio(p.cartella()).PrimoIndiceLibero() - 1; }

  ProgrammaProva p;

 private:
  [[nodiscard]] QRect area(const QString& nome);

  Schermo& schermo_;
  pid_t processo_;
  unsigned long principale_ = 0;
  Mappa mappa_;
};

}  // namespace vaticlo::prova
