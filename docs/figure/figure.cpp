// Takes the pictures of the user's guide: vaticlo_figure FOLDER. The main window works on invented draws, on
// a day of its own, and goes through the guide's worked example; each window is pictured on its way.

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QShortcut>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <utility>

#include "archive/archivio.h"
#include "desktop/applicazione.h"
#include "desktop/servizi_desktop.h"
#include "desktop/vista_principale.h"
#include "desktop/vista_splash.h"
#include "dialogs/frm_principale.h"
#include "methods/cartella_metodi.h"
#include "operations/copie.h"
#include "operations/dimostrazione.h"

namespace vaticlo {

namespace {

constexpr const char* kMetodo = "La mia prova";

/// The desktop's services on a day that stays the same, with a server that always answers.
class ServiziFigure : public ServiziDesktop {
 public:
  [[nodiscard]] std::chrono::year_month_day oggi() const override {
    return {std::chrono::year{2001}, std::chrono::September, std::chrono::day{23}};
  }
  bool scarica(const std::string& /*indirizzo*/, const std::filesystem::path& /*dove*/) override {
    return true;
  }
  Scaricato preleva(const std::string& /*indirizzo*/, std::int64_t /*seModificatoDopo*/) override {
    return {.esito = Scaricato::Esito::Arrivato, .contenuto = pubblicate};
  }
  std::filesystem::path scegliFile(const std::string& /*titolo*/) override { return fileDaImportare; }

  std::filesystem::path fileDaImportare;
  std::string pubblicate;  // what the public archive holds
};

[[noreturn]] void ferma(const QString& perche) {
  std::cerr << perche.toStdString() << '\n';
  std::_Exit(EXIT_FAILURE);
}

class Fotografo {
 public:
  Fotografo(Programma& programma, ServiziDesktop& servizi, QString uscita)
      : uscita_(std::move(uscita)), principale_(programma) {
    servizi.padre(&finestra_);
    finestra_.show();
  }

  void tutte();
  QPixmap principale();

 private:
  void salva(const QString& nome, const QPixmap& figura) const {
    if (!figura.save(uscita_ + '/' + nome + QStringLiteral(".png"))) ferma("not written: " + nome);
  }
  static void posa() {
    QEventLoop ciclo;  // until the layouts have settled
    QTimer::singleShot(100, &ciclo, &QEventLoop::quit);
    ciclo.exec();
  }
  void scatta(const QString& nome) const {
    posa();
    salva(nome, figlia().grab());
  }

  void scegli(const QString& voce) const {
    auto* azione = finestra_.findChild<QAction*>(voce);
    if (azione == nullptr) ferma("no such entry: " + voce);
    azione->trigger();
    QApplication::processEvents();
  }
  /// Runs `azione`, which waits for an answer to its boxes: the first one gets `risposta` and is pictured
  /// under `nome`, Enter ends each.
  template <class Azione>
  void conRiquadro(QString nome, const QString& risposta, Azione azione) const {
    QTimer orologio;
    QObject::connect(&orologio, &QTimer::timeout, [&] {
      auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      if (auto* campo = box->findChild<QLineEdit*>()) campo->setText(risposta);
      if (!nome.isEmpty()) salva(std::exchange(nome, {}), conTitolo(*box));
      QKeyEvent invio(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
      QApplication::sendEvent(box, &invio);
    });
    orologio.start(50);
    azione();
    QApplication::processEvents();
  }

  [[nodiscard]] QMdiSubWindow& figlia() const {
    auto* attiva = finestra_.findChild<QMdiArea*>()->activeSubWindow();
    if (attiva == nullptr) ferma("no window is open");
    return *attiva;
  }
  template <class T>
  [[nodiscard]] T& nella(const QString& nome) const {
    auto* widget = figlia().findChild<T*>(nome);
    if (widget == nullptr) ferma(figlia().windowTitle() + " has no " + nome);
    return *widget;
  }
  void premi(const QString& nome) const { nella<QAbstractButton>(nome).click(); }
  void scorri(int estrazione) const { nella<QScrollBar>("VScroll1").setValue(estrazione + 1); }
  void scrivi(const QString& nome, const QString& testo) const {
    auto& campo = nella<QLineEdit>(nome);
    campo.setText(testo);
    Q_EMIT campo.textEdited(testo);
  }
  void sceglie(const QString& nome, const QString& voce) const {
    auto& elenco = nella<QComboBox>(nome);
    elenco.setCurrentIndex(elenco.findText(voce));
    Q_EMIT elenco.activated(elenco.currentIndex());
  }

  /// A box in the frame of a window; without a screen nobody draws it one.
  static QPixmap conTitolo(QWidget& box) {
    QMdiArea area;
    auto* dentro = new QLabel;
    dentro->setPixmap(box.grab());
    auto* cornice = area.addSubWindow(dentro, Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    cornice->setWindowTitle(box.windowTitle());
    cornice->resize(cornice->sizeHint());
    return cornice->grab();
  }

  void previsione(int estrazione, const QStringList& testi, int colpi, const QString& figura = {}) const;

  QString uscita_;
  Confine confine_;
  frmPrincipale principale_;
  VistaPrincipaleQt finestra_{principale_, confine_};
};

/// A public text file of many draws.
std::string fileDiEstrazioni() {
  QString righe;
  for (int n = 0; n < 7000; ++n)
    righe += QDate(1939, 1, 7).addDays(n * 4).toString("yyyy/MM/dd") + "\tBA\t58\t22\t47\t49\t69\n";
  return righe.toStdString();
}

/// The public text of an archive: it has one number that this one has not, and two draws more.
std::string conDueNuove(const ArchivioEstrazioni& archivio) {
  QString righe;
  const int ultima = archivio.PrimoIndiceLibero() - 1;
  auto giorno = QDate();
  for (int n = 1; n <= ultima + 2; ++n) {
    giorno = n <= ultima ? QDate::fromString(QString::fromStdString(archivio.DataEstrazione(n)), "d/M/yyyy")
                         : giorno.addDays(1);
    int ruota = 0;
    for (const char* sigla : {"BA", "CA", "FI", "GE", "MI", "NA", "PA", "RM", "TO", "VE", "RN"}) {
      righe += giorno.toString("yyyy/MM/dd") + '\t' + sigla;
      ++ruota;
      for (int k = 1; k <= 5; ++k) {
        const bool diverso = n == ultima - 3 && ruota == 2 && k == 4;
        righe += '\t' + QString::number(diverso ? 90 : archivio(n <= ultima ? n : n - ultima, ruota, k));
      }
      righe += '\n';
    }
  }
  return righe.toStdString();
}

/// Saves a prediction of the example; `testi` are number, wheels, ambate, ambi and sorti.
void Fotografo::previsione(int estrazione, const QStringList& testi, int colpi, const QString& figura) const {
  static const QStringList campi{"txtNum", "txtRuote", "txtAmbate", "txtAmbi", "txtSup"};
  scegli("mnuGestione21");
  sceglie("cmbMetodo", kMetodo);
  scorri(estrazione);
  for (int n = 0; n < campi.size(); ++n) scrivi(campi[n], testi[n]);
  sceglie("cmbColpi", QString::number(colpi));
  if (!figura.isEmpty()) scatta(figura);
  conRiquadro({}, {}, [&] { premi("btnElabora"); });
}

// The main window, with the folder of somebody in its status bar.
QPixmap Fotografo::principale() {
  for (auto* scorciatoia : finestra_.findChildren<QShortcut*>())
    if (scorciatoia->key() == QKeySequence(Qt::Key_F5)) Q_EMIT scorciatoia->activated();
  posa();
  finestra_.findChild<QLabel*>("statoCartella")->setText("/home/anna/Vaticlo");
  finestra_.statusBar()->layout()->activate();
  return finestra_.grab();
}

void Fotografo::tutte() {
  salva("inizio", principale());
  scegli("mnu1Inserisci");
  for (const auto& [campo, numero] : {std::pair{0, 58}, {1, 22}, {2, 47}, {3, 49}, {4, 69}, {5, 27}, {6, 57}})
    scrivi(QString("txtestr_%1").arg(campo), QString::number(numero));
  nella<QLineEdit>("txtestr_7").setFocus();
  scatta("inserisci");
  scegli("mnu1Modifica");
  scatta("modifica");
  salva("principale", principale());
  conRiquadro("cerca", "315", [&] { premi("btnTrova"); });
  conRiquadro("aggiornamento", {}, [&] { scegli("mnu1Aggiorna"); });

  conRiquadro("crea-metodo", kMetodo, [&] { scegli("mnuGestione11"); });
  previsione(315, {"899.45.10", "Ro-Ve", "59", "64-82", "59-64-82"}, 10, "crea-previsione");
  previsione(346, {"", "Na", "40", "", ""}, 9);
  previsione(358, {"", "Ro-To", "77", "", ""}, 6);
  scegli("mnuGestione12");
  sceglie("cmbMetodo", kMetodo);
  scatta("modifica-metodo");
  scegli("mnuGestione22");
  sceglie("cmbMetodo", kMetodo);
  sceglie("cmbPrevisione", "Previsione n.1 del 03/07//2001");
  scatta("modifica-previsione");

  scegli("mnuMetodi");
  scorri(315);
  scatta("vaticla");

  scegli("mnuGestione3");
  scatta("quadro");

  scegli("mnu1metodo1");
  premi("optSelMetodo_1");
  sceglie("cmbMetodo", kMetodo);
  auto& inizio = nella<QLineEdit>("DTInizio");
  inizio.selectAll();
  inizio.insert("07/06/2001");
  QKeyEvent invio(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&inizio, &invio);
  premi("btnElabora");
  scatta("statistica");
  premi("btnVincite");
  scatta("vincite");

  scegli("mnuUtility1");
  scatta("in-gioco");
  scegli("mnuUtility2");
  scatta("vincenti");
  scegli("mnuUtility3");
  scorri(315);
  scatta("somma-distanza");
  scegli("mnuUtility4");
  premi("btnElabora");
  scatta("caso");
  scegli("mnuUtility5");
  scatta("ritardi");
  scegli("mnuInformazioni2");
  scatta("informazioni");
  scegli("mnuInformazioni1");
  auto& guida = *finestra_.findChild<QWidget*>("guida");
  guida.resize(850, 560);  // no wider than the other pictures, which it shows
  guida.findChild<QAbstractScrollArea*>("guidaTesto")->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  posa();
  salva("guida", conTitolo(guida));
  conRiquadro("importa", {}, [&] { scegli("mnu1Importa"); });

  scegli("mnu1Aggiungi");
  premi("btnInternet");
  scatta("aggiungi");
  conRiquadro({}, {}, [&] { premi("btnAggiungi"); });
  faiCopia(principale_.programma(), GenereCopia::Metodi);
  scegli("mnu1Copie");
  scatta("torna-a-una-copia");
}

}  // namespace

}  // namespace vaticlo

int main(int argc, char* argv[]) {
  using namespace vaticlo;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication applicazione(argc, argv);
  preparaApplicazione(applicazione);
  QApplication::setCursorFlashTime(0);
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
  if (argc != 2) ferma("vaticlo_figure FOLDER");
  const QString uscita = argv[1];

  const QTemporaryDir cartella;
  ServiziFigure servizi;
  Programma programma(cartella.path().toStdString(), servizi);
  std::filesystem::create_directories(cartellaMetodi(programma.cartella));
  std::filesystem::create_directory_symlink(VATICLO_GUIDA, programma.cartella.file(kFileGuida).parent_path());
  servizi.fileDaImportare = programma.cartella.radice() / "estrazioni.txt";
  std::ofstream(servizi.fileDaImportare) << fileDiEstrazioni();
  std::ostream nessuno(nullptr);
  creaDimostrazione(programma, nessuno);
  servizi.pubblicate = conDueNuove(ApriArchivio(programma.cartella));
  VistaSplash splash([] {});
  splash.grab().save(uscita + QStringLiteral("/splash.png"));
  Fotografo(programma, servizi, uscita).tutte();
  return EXIT_SUCCESS;
}
