#include <QApplication>

#include <gtest/gtest.h>

#include "archive/data.h"
#include "desktop/applicazione.h"
#include "mano/attesa.h"
#include "mano/sessione_x.h"
#include "platform/orologio.h"

namespace vaticlo::prova {
namespace {

Schermo* schermo = nullptr;

/// In two digits, the first one "09": its first digit alone fails the test of a field.
std::string numero(int f) { return std::to_string(100 + (f * 7 + 8) % 90 + 1).substr(1); }

/// Draws 1 to 3 of 3/1/2000, 8/5/2001 and 7/6/2025, with 1 and 2 on Bari.
ArchivioProva treEstrazioni() {
  ArchivioProva archivio(3);
  for (int n = 1; n <= 3; ++n) archivio.ruota(n, 1, {1, 2});
  archivio.data(1, 3, 1, 2000).data(2, 8, 5, 2001).data(3, 7, 6, 2025);
  return archivio;
}

class Mano : public testing::Test {
 protected:
  /// What the hand types into the 55 fields of a fresh entry window, behind what stands in the first one.
  static void riempi(const std::string& gia = "") {
    std::string tasti;
    for (int f = 0; f < 55; ++f) tasti += numero(f) + '\t';
    ASSERT_TRUE(tasti.starts_with(gia));
    schermo->scrivi(tasti.substr(gia.size()));
  }
  /// From the date picker: saves what stands in the window, and looks at the archive.
  void salva(int giorno, int mese, int anno) {
    auto atteso = ApriArchivio(s.p.cartella());
    const int n = s.estrazioni() + 1;
    schermo->scrivi("\t ");
    s.attendiRiquadro();
    schermo->scrivi("\n");
    s.attendiPrincipale();
    EXPECT_EQ(schermo->copia(), "  ") << "a fresh window follows";
    for (const auto& [k, valore] : {std::pair{1, giorno}, {2, mese}, {3, anno % 100}, {4, anno / 100}})
      atteso(n, 0, k) = static_cast<std::uint8_t>(valore);
    for (int f = 0; f < 55; ++f)
      atteso(n, 1 + f / 5, 1 + f % 5) = static_cast<std::uint8_t>(std::stoi(numero(f)));
    EXPECT_TRUE(std::ranges::equal(ApriArchivio(s.p.cartella()).ottetti(), atteso.ottetti()))
        << "stored: " << ApriArchivio(s.p.cartella()).DataEstrazione(n);
  }
  /// Presses OK on that many messages, one after the other.
  void conferma(int messaggi) {
    while (messaggi-- > 0) {
      s.attendiRiquadro();
      schermo->scrivi("\n");
      s.attendiPrincipale();
    }
  }
  /// Opens the menu by its key, and leaves it.
  void menu() {
    attendi("the toolbar", [&] { return !vuoto("Modify"); });
    const auto sotto = s.immagine("Modify"), barra = s.immagine("menu");
    schermo->premi("Alt_L+a");
    attendi("the menu", [&] { return s.immagine("Modify") != sotto; });
    schermo->premi("Escape");
    attendi("its end", [&] { return s.immagine("Modify") == sotto; });
    schermo->premi("Escape");
    attendi("the menu bar at rest", [&] { return s.immagine("menu") == barra; });
  }
  void guida() {
    schermo->premi("F1");
    s.attendiRiquadro("Guida");
    schermo->premi("Escape");
    s.attendiPrincipale();
  }
  /// Nothing is drawn there.
  [[nodiscard]] bool vuoto(const char* nome) {
    const auto campo = s.immagine(nome);
    auto sfondo = campo;
    sfondo.fill(campo.pixelColor(0, 0));
    return campo == sfondo;
  }
  SessioneX s{*schermo, treEstrazioni()};
};

TEST_F(Mano, ADateIsStoredAsItWasTyped) {
  const struct {
    const char* digitata;
    int giorno, mese, anno;
  } casi[] = {
      {"8/5/2026", 8, 5, 2026},  {"28/02/2026", 28, 2, 2026}, {"31102026", 31, 10, 2026},
      {"29022004", 29, 2, 2004}, {"7-6-25", 7, 6, 2025},      {"01.1.09", 1, 1, 2009},
      {"311203", 31, 12, 2003},  {"30/2/2026", 28, 2, 2026},  {"31-12-2027", 31, 12, 2027},
  };
  s.apri("Insert");
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.digitata);
    ASSERT_NO_THROW({
      riempi();
      schermo->scrivi(caso.digitata);
      if (std::string(caso.digitata) == "30/2/2026") {  // refused: the focus stays, and a right one follows
        schermo->scrivi("\t");
        conferma(1);
        schermo->scrivi("28.2.2026", Schermo::kPressione);
      }
      salva(caso.giorno, caso.mese, caso.anno);
    });
  }
}

TEST_F(Mano, AFieldIsTestedWhenAndOnlyWhenTheFocusGoesToAControlOfItsWindowThatAsksForIt) {
  const struct {
    const char* come;
    std::function<void()> gesto;
    int messaggi;
    const char* gia = "";  // what stands in the first field, and is gone on with
  } casi[] = {
      {"three Tabs in one burst", [] { schermo->scrivi("\t\t\t"); }, 1},
      {"typed while the program is stopped",
       [&] {
         s.ferma();
         schermo->scrivi("99\t5\t6\t");
         s.riprendi();
       },
       1},
      {"the title bar", [&] { s.clicca("titolo"); }, 0, "0"},
      {"the maximise box", [&] { s.clicca("ingrandisci"); }, 0, "0"},
      {"the background", [&] { s.clicca("sfondo"); }, 0, "0"},
      {"a label", [&] { s.clicca("Label21"); }, 0, "0"},
      {"the menu", [&] { menu(); }, 0, "0"},
      {"the guide", [&] { guida(); }, 0, "0"},
      {"another field", [&] { s.clicca("txtestr_7"); }, 1},
      {"a button", [&] { s.clicca("btnSalva"); }, 1},
      {"a button's letter", [] { schermo->premi("Alt_L+s"); }, 1},
      {"through Esci to a button",
       [] {
         schermo->scrivi("99");
         schermo->premi("Shift_L+Tab");
         schermo->premi("Shift_L+Tab");
         schermo->scrivi(" ");
       },
       1},
      {"the date and back",
       [&] {
         s.clicca("mcdatecombo1", 0.2);
         s.clicca("txtestr_0");
       },
       0, "0"},
      {"through the date to a button",
       [&] {
         s.clicca("mcdatecombo1", 0.2);
         schermo->scrivi("\t");
       },
       1},
      {"a bad number, then a bad date",
       [&] {
         schermo->scrivi("99");
         s.clicca("mcdatecombo1", 0.2);
         schermo->scrivi("31/2/2026\t");
         conferma(1);
         EXPECT_EQ(schermo->copia(), "99");
         schermo->scrivi("12\t");
         conferma(1);
         s.clicca("txtestr_0");
         schermo->premi("Control_L+a");
       },
       0},
      {"a click into the middle of the empty field", [&] { s.clicca("txtestr_0"); }, 0},
      {"a click beside its end", [&] { s.clicca("txtestr_0", 0.9); }, 0},
  };
  const auto oggi = dataLocale();
  s.apri("Insert");
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.come);

    ASSERT_NO_THROW({
      schermo->scrivi(caso.gia);
      caso.gesto();
      conferma(caso.messaggi);
      riempi(caso.gia);
      salva(vaticlo::giorno(oggi), vaticlo::mese(oggi), vaticlo::anno(oggi));
    });
  }
}

TEST_F(Mano, AFieldIsSelectedWholeByTheWindowsOpeningAndByTab) {
  s.apri("Modify");
  schermo->scrivi("5");
  EXPECT_EQ(schermo->copia(), "5") << "the window's opening selects";
  schermo->scrivi("\t3");
  EXPECT_EQ(schermo->copia(), "3") << "Tab selects";
  s.clicca("btnCancella");
  conferma(1);
  EXPECT_EQ(s.estrazioni(), 3) << "Enter takes the answer that deletes nothing";
}

TEST_F(Mano, ADateOfTheStatisticsFillsItsNumber) {
  const struct {
    const char* tasti;
    int messaggi;
    const char *data, *estrazione;
  } casi[] = {
      {"07/06/2025\t", 0, "07/06/2025", "3"}, {"3-1-00\t", 0, "03/01/2000", "1"},
      {"31/04/2001\t", 1, "03/01/2000", "1"}, {"08052001\t", 0, "08/05/2001", "2"},
      {"01/01/2090\t", 1, "08/05/2001", "2"}, {"7.6.25\n\t", 0, "07/06/2025", "3"},
  };
  s.apri("Sirvan1");
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.tasti);
    ASSERT_NO_THROW({
      s.clicca("DTInizio", 0.3);
      schermo->scrivi(caso.tasti);
      conferma(caso.messaggi);
      if (caso.messaggi > 0) schermo->scrivi("\t");
      EXPECT_EQ(schermo->copia(), caso.estrazione);
      schermo->premi("Shift_L+Tab");
      EXPECT_EQ(schermo->copia(), caso.data);
    });
  }
  s.clicca("Label4");
  schermo->scrivi("7/6/2025\n");
  EXPECT_EQ(schermo->copia(), "07/06/2025") << "what is selected stays so when a label is clicked";
  schermo->premi("Up");
  EXPECT_EQ(schermo->copia(), "08/06/2025") << "a key steps the day";
  schermo->premi("Home");
  for (int n = 0; n < 3; ++n) schermo->premi("Right");
  schermo->premi("Down");
  EXPECT_EQ(schermo->copia(), "08/05/2025") << "and the part at the caret";
  s.clicca("DTInizio", 0.3, 5);
  EXPECT_EQ(schermo->copia(), "07/05/2025") << "the wheel";
  schermo->premi("F4");
  schermo->premi("Right");
  schermo->premi("Return");
  EXPECT_EQ(schermo->copia(), "08/05/2025") << "the calendar";
}

TEST_F(Mano, TheFrameClosesAFreshEntryWindow) {
  s.apri("Insert");
  attendi("the window", [&] { return !vuoto("btnSalva"); });
  s.punta("titolo");  // from there the pointer jumps, without a step between
  s.clicca("chiudi");
  attendi("the empty main window", [&] { return vuoto("btnSalva"); });
}

TEST_F(Mano, AMessageLeavesFieldsAndButtonsAsTheyWereDrawn) {
  s.apri("Insert");
  attendi("the window", [&] { return !vuoto("btnSalva"); });
  const auto campo = s.immagine("txtestr_1"), pulsante = s.immagine("btnSalva");
  schermo->scrivi("\t");
  s.attendiRiquadro();
  attendi("the next field without the focus", [&] { return s.immagine("txtestr_1") == campo; });
  conferma(1);
  s.punta("btnSalva");
  attendi("the look under the pointer", [&] { return s.immagine("btnSalva") != pulsante; });
  const auto sotto = s.immagine("btnSalva");
  s.clicca("btnSalva");
  conferma(1);
  attendi("the button as before", [&] { return s.immagine("btnSalva") == sotto; });
}

}  // namespace
}  // namespace vaticlo::prova

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  vaticlo::prova::Schermo schermo;
  vaticlo::prova::schermo = &schermo;
  QApplication applicazione(argc, argv);
  vaticlo::preparaApplicazione(applicazione);
  return RUN_ALL_TESTS();
}
