#include <QTableView>

#include "dialogs/frm_modifica.h"
#include "gui/finestra_prova.h"

using namespace vaticlo;
using namespace vaticlo::prova;

namespace {

QStringList colonna(const QAbstractItemView& tavola, int n) {
  QStringList testi;
  for (int riga = 0; riga < tavola.model()->rowCount(); ++riga)
    testi << tavola.model()->index(riga, n).data().toString();
  return testi;
}

}  // namespace

class ArchivioGuiTest : public QObject {
  Q_OBJECT

 private slots:
  void drawsAreAddedAfterALookAtWhatTheyBringAndWhereTheyDiffer() {
    PrincipaleProva v;
    archivioDi(2, "2 Ba 7").scrivi(v.p);
    v.p.scrivi("nuove.txt", "2005/03/12\tBA\t1\t2\t3\t4\t5\n2005/03/15\tBA\t1\t2\t3\t4\t5\n");
    v.p.servizi.scelto = v.p.radice / "nuove.txt";
    v.scegli("mnu1Modifica");
    v.scegli("mnu1Aggiungi");
    QCOMPARE(v.testo("lblArchivio"), QString("L'archivio contiene 2 estrazioni, l'ultima del 12/3/2005."));
    QVERIFY(!v.visibile("btnAggiungi").isEnabled());
    v.clicca("btnFile");
    QCOMPARE(v.testo("lblAnteprima"), QString("Da aggiungere: 1 estrazione, del 15/3/2005. Confrontate: 2."));
    QCOMPARE(colonna(v.usa<QAbstractItemView>("differenze"), 2), QStringList({"", "7 0 0 0 0"}));
    QCOMPARE(v.testo("btnAggiungi"), QString("&Aggiungi lo stesso"));
    archivioDi(1, "1 Ba 7").scrivi(v.p);
    v.clicca("btnAggiungi");
    QCOMPARE(v.testo("lblArchivio"), QString("L'archivio contiene 1 estrazione, l'ultima del 12/3/2005."));
    archivioDi(2, "2 Ba 7").scrivi(v.p);
    v.clicca("btnAggiungi");
    v.clicca("btnAggiungi");
    QCOMPARE(v.detti().last(), QString("[Aggiungi Estrazioni] Aggiunta 1 estrazione, del 15/3/2005"));
    QVERIFY(!v.visibile("btnAggiungi").isEnabled());
    v.clicca("btnEsci");
    QCOMPARE(v.testo("lblnestr"), QString("3"));  // of the window that was open meanwhile
    QCOMPARE(v.numeri(0), QString("1 2 3 4 5"));
  }

  void aCopyIsBroughtBackAfterAQuestion() {
    PrincipaleProva v;
    archivioDi(2).scrivi(v.p);
    v.p.scrivi("una.txt", "2005/03/15\tBA\t1\t2\t3\t4\t5\n");
    v.p.servizi.scelto = v.p.radice / "una.txt";
    v.scegli("mnu1Importa");
    QVERIFY(!v.detti().isEmpty());
    v.scegli("mnu1Copie");
    QCOMPARE(colonna(v.usa<QAbstractItemView>("copie"), 0), QStringList("archivio-2026-03-14"));
    for (const auto& [risposta, estrazioni] : {std::pair{Risposta::No, 1}, {Risposta::Si, 2}}) {
      v.p.servizi.risposta = risposta;
      v.clicca("btnRipristina");
      QCOMPARE(ApriArchivio(v.p.cartella()).PrimoIndiceLibero() - 1, estrazioni);
    }
    QCOMPARE(v.p.servizi.messaggi.front().predefinita, Risposta::No);
    QCOMPARE(v.detti().last(), QString("[Torna a una Copia] Ripristinata la copia archivio-2026-03-14"));
    QCOMPARE(colonna(v.usa<QAbstractItemView>("copie"), 2), QStringList({"1", "2"}));
  }
};

QTEST_MAIN(ArchivioGuiTest)
#include "archivio_gui_test.moc"
