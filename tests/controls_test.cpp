#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "controls/geometria_riquadro.h"
#include "controls/nove_pezzi.h"
#include "controls/stato_opzione.h"
#include "controls/stato_pulsante.h"

namespace vaticlo {
namespace {

/// What happens to a control, and its picture and its timer then.
template <typename Stato>
struct Passo {
  const char* nome;
  std::function<void(Stato&)> fai;
  int immagine;
  bool timer;
};

/// Runs the steps one after another on the same control.
template <typename Stato>
void percorri(Stato& stato, const std::vector<Passo<Stato>>& passi) {
  for (const auto& passo : passi) {
    passo.fai(stato);
    EXPECT_EQ(static_cast<int>(stato.aspetto()), passo.immagine) << passo.nome;
    EXPECT_EQ(stato.timer1Acceso(), passo.timer) << passo.nome;
  }
}

TEST(CommandButton, ShowsThePictureOfWhatTheMouseAndTheDialogDo) {
  using P = StatoPulsante;
  StatoPulsante pulsante;
  std::vector<AspettoPulsante> uscite;  // once for each exit, with the old look still there
  pulsante.MouseOut = [&] { uscite.push_back(pulsante.aspetto()); };
  pulsante.Timer1_Timer(false);  // the timer is off
  percorri<P>(pulsante,
              {
                  {"a move over it", [](P& p) { p.MouseMove(true, false); }, 3, true},
                  {"still inside when the timer looks", [](P& p) { p.Timer1_Timer(true); }, 3, true},
                  {"pressed", [](P& p) { p.MouseDown(); }, 1, true},
                  {"dragged out", [](P& p) { p.Timer1_Timer(false); }, 0, false},
                  {"dragged in again", [](P& p) { p.MouseMove(true, true); }, 1, true},
                  {"released", [](P& p) { p.MouseUp(); }, 0, true},
                  {"second look, which ends the hover", [](P& p) { p.setState(1); }, 4, true},
                  {"hover of the second look", [](P& p) { p.MouseMove(true, false); }, 3, true},
                  {"an unknown state rests as before", [](P& p) { p.setState(7); }, 4, true},
                  {"disabled", [](P& p) { p.setEnabled(false); }, 2, true},
                  {"out while disabled", [](P& p) { p.Timer1_Timer(false); }, 2, false},
                  {"a move while disabled", [](P& p) { p.MouseMove(true, false); }, 2, false},
                  {"enabled again", [](P& p) { p.setEnabled(true); }, 4, false},
                  {"first look", [](P& p) { p.setState(0); }, 0, false},
              });
  EXPECT_EQ(uscite, (std::vector{AspettoPulsante::Premuto, AspettoPulsante::Disabilitato}));
}

TEST(RadioButton, ShowsThePictureOfItsValueAndOfTheMouse) {
  using O = StatoOpzione;
  for (const int base : {0, 4}) {
    StatoOpzione opzione;
    opzione.setValue(base == 4);
    percorri<O>(opzione,
                {
                    {"a move outside is no move", [](O& o) { o.MouseMove(false, false); }, base, false},
                    {"hover", [](O& o) { o.MouseMove(true, false); }, base + 1, true},
                    {"pressed", [](O& o) { o.MouseDown(); }, base + 2, true},
                    {"out", [](O& o) { o.Timer1_Timer(false); }, base, false},
                    {"dragged in", [](O& o) { o.MouseMove(true, true); }, base + 2, true},
                    {"set by the dialog", [](O& o) { o.setValue(o.Value()); }, base, true},
                    {"disabled", [](O& o) { o.setEnabled(false); }, base + 3, true},
                });
  }
}

TEST(RadioButton, AClickReachesTheDialogBeforeAnyValueOfTheWindowChanges) {
  StatoOpzione prima, seconda, terza;
  std::vector<std::string> fatti;
  const auto valori = [&] {
    std::string testo;
    for (const StatoOpzione* o : {&prima, &seconda, &terza}) testo += o->Value() ? '1' : '0';
    return testo;
  };
  for (StatoOpzione* o : {&prima, &seconda, &terza}) {
    o->opzioniDellaFinestra = [&] { return std::vector{&prima, &seconda, &terza}; };
    o->ValueChanged = [&](bool) { fatti.push_back(valori()); };
    o->Click = [&] { fatti.push_back("Click " + valori()); };
  }
  prima.setValue(true);
  terza.setValue(true);  // the dialog may leave two of them on; a click ends that
  seconda.clicca();
  seconda.clicca();  // already on: out for a moment, and on again
  EXPECT_EQ(fatti, (std::vector<std::string>{"100", "101", "Click 101", "001", "000", "010", "Click 010",
                                             "000", "010"}));
}

TEST(NinePieces, KeepTheCornersAndFillTheControlWithTheWholePicture) {
  // At 125 % the picture has 23 x 26 pixels and corners of 4.
  const auto pezzi = novePezzi({125, 38}, {23, 26}, 4);
  EXPECT_EQ(pezzi[8].origine, (Rettangolo{4, 4, 15, 18}));
  EXPECT_EQ(pezzi[8].destinazione, (Rettangolo{4, 4, 117, 30}));
  int figura = 0, controllo = 0;
  for (const auto& [origine, destinazione] : pezzi) {
    figura += origine.larghezza * origine.altezza;
    controllo += destinazione.larghezza * destinazione.altezza;
  }
  EXPECT_EQ(figura, 23 * 26);
  EXPECT_EQ(controllo, 125 * 38);
}

TEST(GroupBox, HasItsCaptionInTheMiddleOfTheFramesTopLine) {
  const GeometriaRiquadro con = disponiRiquadro({200, 100}, {60, 17});
  EXPECT_EQ(con.cornice, (Rettangolo{0, 8, 200, 92}));
  EXPECT_EQ(con.didascalia, (Rettangolo{15, 0, 60, 17}));
  EXPECT_EQ(con.interno, (Rettangolo{3, 17, 194, 80}));
  EXPECT_EQ(disponiRiquadro({200, 100}, {0, 16}).interno, (Rettangolo{3, 11, 194, 86}))
      << "without a caption";
}

}  // namespace
}  // namespace vaticlo
