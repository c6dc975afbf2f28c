// Times one step of the scroll bar in the check window: read, show, check, report loaded, painted. Beside it
// the time that reading the same files alone takes. Prints medians.
#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "archive/archivio.h"
#include "cartella_grande.h"
#include "desktop/servizi_desktop.h"
#include "desktop/vista_principale.h"
#include "methods/catalogo.h"
#include "methods/metodo.h"

namespace {

constexpr int kPassi = 300;

double mediana(std::vector<double> valori) {
  std::nth_element(valori.begin(), valori.begin() + kPassi / 2, valori.end());
  return valori[kPassi / 2];
}

template <class Lavoro>
double millisecondi(Lavoro lavoro) {
  QElapsedTimer orologio;
  orologio.start();
  lavoro();
  return static_cast<double>(orologio.nsecsElapsed()) / 1e6;
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace vaticlo;
  QApplication applicazione(argc, argv);
  const QTemporaryDir cartella;
  ServiziDesktop servizi;
  Programma programma(cartella.path().toStdString(), servizi);
  creaCartellaGrande(programma.cartella, 7270, 100);
  const Confine confine;
  frmPrincipale principale(programma);
  VistaPrincipaleQt finestra(principale, confine);
  finestra.show();
  principale.comando("mnuMetodi");
  QApplication::processEvents();
  auto* barra = finestra.findChild<QScrollBar*>(QStringLiteral("VScroll1"));

  std::vector<double> passi, letture;
  for (int n = 0; n < kPassi; ++n) {
    passi.push_back(millisecondi([&] {
      barra->triggerAction(QAbstractSlider::SliderSingleStepSub);
      QApplication::processEvents();
      finestra.grab();  // everything painted, once more than needed
    }));
    letture.push_back(millisecondi([&] {
      (void)ApriArchivio(programma.cartella);
      for (const auto& nome : CaricaElencoMetodi(programma.cartella, {}))
        (void)LeggiMetodo(programma.cartella, nome);
    }));
  }
  std::printf(
      "a step of the scroll bar, 100 methods: %.2f ms\nreading the same files alone:         %.2f ms\n",
      mediana(passi), mediana(letture));
  return 0;
}
