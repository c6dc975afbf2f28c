#include <QDir>
#include <QMainWindow>
#include <QProcess>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/servizi_desktop.h"

using namespace vaticlo;

namespace {

/// A print server of the test's own. What is sent to its queue stays in the folder of its jobs.
class ServerDiStampa {
 public:
  ServerDiStampa() {
    QFile::setPermissions(dove_.path(), QFile::Permissions(0x7755));  // the server gives up being root
    scrivi("cupsd.conf",
           "Listen %1/presa\nBrowsing No\nPreserveJobFiles Yes\n<Policy default>\n<Limit All>\n"
           "Order allow,deny\n</Limit>\n</Policy>\n");
    scrivi("cups-files.conf",
           "User lp\nGroup lp\nSystemGroup lpadmin\nServerRoot %1\nRequestRoot %1/lavori\n"
           "TempDir %1/lavori\nCacheDir %1/lavori\nStateDir %1/lavori\nAccessLog %1/accessi\n"
           "ErrorLog %1/errori\nPageLog %1/pagine\nFileDevice Yes\n");
    QDir(dove_.path()).mkpath("lavori/certs");
    qputenv("CUPS_SERVER", posto("presa").toUtf8());
    server_.start("/usr/sbin/cupsd", {"-f", "-c", posto("cupsd.conf"), "-s", posto("cups-files.conf")});
  }
  ~ServerDiStampa() {
    server_.terminate();
    server_.waitForFinished();
  }
  ServerDiStampa(const ServerDiStampa&) = delete;
  ServerDiStampa& operator=(const ServerDiStampa&) = delete;

  [[nodiscard]] bool pronto() const { return QFile::exists(posto("presa")); }
  /// A queue that takes what it gets as it is.
  static bool coda(const QString& nome) {
    return QProcess::execute("/usr/sbin/lpadmin",
                             {"-p", nome, "-E", "-v", "file:///dev/null", "-m", "raw"}) == 0 &&
           QProcess::execute("/usr/sbin/lpadmin", {"-d", nome}) == 0;
  }
  [[nodiscard]] QByteArray lavoro() const {
    for (const auto& nome : QDir(posto("lavori")).entryList({"d*"}, QDir::Files)) {
      QFile file(posto("lavori/" + nome));
      if (file.open(QIODevice::ReadOnly)) return file.readAll();
    }
    return {};
  }

 private:
  [[nodiscard]] QString posto(const QString& nome) const { return dove_.filePath(nome); }
  void scrivi(const QString& nome, const char* testo) const {
    QFile file(posto(nome));
    if (file.open(QIODevice::WriteOnly)) file.write(QString(testo).arg(dove_.path()).toUtf8());
  }

  QTemporaryDir dove_;
  QProcess server_;
};

}  // namespace

class StampaGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void aReportGoesToTheDefaultPrinterAndTheUserIsTold() {
    if (!QFile::exists("/usr/sbin/cupsd") || !QFile::exists("/usr/sbin/lpadmin"))
      QSKIP("needs cups-daemon and cups-client");
    const ServerDiStampa server;
    QTRY_VERIFY(server.pronto());
    QMainWindow finestra;
    ServiziDesktop servizi;
    servizi.padre(&finestra);
    QVERIFY(ServerDiStampa::coda("Ricevitoria"));
    servizi.stampa("Esiti del metodo");
    QCOMPARE(finestra.statusBar()->currentMessage(), QString("Mandato alla stampante Ricevitoria"));
    QTRY_VERIFY(server.lavoro().trimmed().endsWith("%%EOF"));
    QVERIFY(server.lavoro().startsWith("%PDF"));
    qputenv("TMPDIR", "/nessuno");  // where a job is made
    servizi.stampa("Esiti del metodo");
    QCOMPARE(finestra.statusBar()->currentMessage(),
             QString("La stampa non è cominciata: niente è stato stampato"));
  }
};

QTEST_MAIN(StampaGuiTest)
#include "stampa_posix_gui_test.moc"
