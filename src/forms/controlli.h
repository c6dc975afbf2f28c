#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "archive/data.h"

namespace vaticlo {

/// The models of the controls of a dialog: what each one holds, without a toolkit. A model calls two
/// listeners, inside the statement that changes it: the view that draws it, then the dialog's event
/// procedure.
class Controllo {
 public:
  Controllo() = default;
  Controllo(const Controllo&) = delete;
  Controllo& operator=(const Controllo&) = delete;
  virtual ~Controllo() = default;

  /// The one view of the control, called after every change.
  void osserva(std::function<void()> vista) { vista_ = std::move(vista); }

  std::function<void()> SetFocus = [] {};  ///< moves the focus to the control; set by the view

 protected:
  void cambiato() const {
    if (vista_) vista_();
  }

  /// A value of a control that nobody but the view listens to: `campo.Text()` reads, `campo.Text("12")` sets.
  template <class T>
  class Proprieta {
   public:
    Proprieta(const Controllo& controllo, T valore) : controllo_(controllo), valore_(std::move(valore)) {}
    [[nodiscard]] const T& operator()() const { return valore_; }
    void operator()(T valore) {
      if (valore == valore_) return;
      valore_ = std::move(valore);
      controllo_.cambiato();
    }

   private:
    const Controllo& controllo_;
    T valore_;
  };

 private:
  std::function<void()> vista_;

 public:
  Proprieta<bool> Enabled{*this, true};
  Proprieta<bool> Visible{*this, true};
};

class Etichetta : public Controllo {
 public:
  Etichetta() = default;
  explicit Etichetta(std::string caption) : Caption{*this, std::move(caption)} {}
  Proprieta<std::string> Caption{*this, ""};
};

using Riquadro = Etichetta;  ///< a frame: its caption, and whether it is shown

/// Colours with red in the low byte.
inline constexpr int kGrigio = 0xC0C0C0;
inline constexpr int kGiallo = 65535;
inline constexpr int kSfondoNormale = -1;

class CampoTesto : public Controllo {
 public:
  CampoTesto() = default;
  explicit CampoTesto(std::string mask) : Mask{*this, std::move(mask)} {}
  Proprieta<std::string> Text{*this, ""};
  Proprieta<std::string> Mask{*this, ""};  ///< "##": two digits at most; empty: anything
  Proprieta<int> BackColor{*this, kSfondoNormale};
  Proprieta<std::string> Rilievo{*this, ""};  ///< why the text stands out; empty: it does not
  /// Takes the mask away and shows the text.
  void mostra(std::string testo) {
    Mask("");
    Text(std::move(testo));
  }
  std::string esempio;        ///< an example of a valid text, shown as a hint
  bool Locked = false;        ///< it only displays
  bool InvioComeTab = false;  ///< Enter moves on to the next field
  /// The focus is about to leave: true keeps it in the field.
  std::function<bool()> Validate;
  std::function<void()> Change;  ///< the user has typed
  std::function<void()> Invio;   ///< Enter was pressed in it
};

/// What a figure or a line says to whoever waits for a win.
enum class Tono { Vincita, Attesa, Negativo };

/// A pane that shows a whole text (UTF-8, lines ended by "\n").
class AreaTesto : public Controllo {
 public:
  struct Rilievo {
    int riga = 0;  ///< from 0
    Tono tono = Tono::Vincita;
    bool operator==(const Rilievo&) const = default;
  };

  Proprieta<std::string> Text{*this, ""};
  Proprieta<std::vector<Rilievo>> Rilievi{*this, {}};  ///< its lines that stand out, in order
  Proprieta<int> SelLength{*this, 0};  ///< how much of it the user has selected; 0 reduces it to nothing
};

class Pulsante : public Controllo {
 public:
  Pulsante() = default;
  Pulsante(std::string caption, std::string toolTip)
      : Caption{*this, std::move(caption)}, ToolTipText{*this, std::move(toolTip)} {}
  Proprieta<std::string> Caption{*this, ""};
  Proprieta<std::string> ToolTipText{*this, ""};
  bool CausesValidation = true;  ///< going to it lets the field that is left validate itself
  std::string tasto;             ///< a key that presses it from anywhere in its window: "Ctrl+PgUp"
  std::function<void()> Click;
};

/// A vertical scroll bar; the top is the least value.
class BarraScorrimento : public Controllo {
 public:
  [[nodiscard]] int Min() const { return min_; }
  [[nodiscard]] int Max() const { return max_; }
  [[nodiscard]] int Value() const { return valore_; }
  /// A value beyond the new end moves to it, which is a change.
  void Max(int massimo);
  /// Runs Change before it returns when the value really changes. Fails with Errore::ValoreProprieta
  /// outside the bar.
  void Value(int valore);

  int SmallChange = 1;
  int LargeChange = 10;
  std::function<void()> Change;

 private:
  int min_ = 1, max_ = 32767, valore_ = 1;
};

/// A list with a text field. Choosing an item puts its text into the field.
class Elenco : public Controllo {
 public:
  struct Voce {
    std::string testo;
    int ItemData = 0;
  };

  void Clear();
  void AddItem(std::string testo, int itemData = 0);
  /// Other items; the text stays, chosen when an item has it, and no event follows.
  void riempi(std::vector<std::string> testi);
  [[nodiscard]] const std::vector<Voce>& voci() const { return voci_; }
  [[nodiscard]] int ListIndex() const { return indice_; }  ///< from 0; -1: none chosen
  /// Chooses an item; Click follows when the choice changes. Fails with Errore::ValoreProprieta for an item
  /// that is not there.
  void ListIndex(int indice);
  /// The user picks an item: Click follows in any case.
  void scegli(int indice);
  [[nodiscard]] const std::string& Text() const { return testo_; }
  /// A text for the field: no item is chosen then, and no event follows.
  void Text(const std::string& testo);
  /// The user types into the field: Change follows.
  void digita(const std::string& testo);
  /// The item data of the chosen item. Fails with Errore::Indice when none is chosen.
  [[nodiscard]] int ItemDataScelta() const;

  std::function<void()> Click;
  std::function<void()> Change;       ///< the user has typed
  std::function<void()> DropDown;     ///< runs before the items are shown or walked
  std::function<std::string()> Nota;  ///< a remark about the text, shown as a hint; may be empty

 private:
  std::vector<Voce> voci_;
  int indice_ = -1;
  std::string testo_;
};

class Opzione : public Controllo {
 public:
  Opzione() = default;
  explicit Opzione(std::string caption) : Caption{*this, std::move(caption)} {}
  Proprieta<std::string> Caption{*this, ""};
  Proprieta<bool> Value{*this, false};
  std::function<void()> Click;
};

class SelettoreData : public Controllo {
 public:
  Proprieta<std::optional<Data>> Value{*this, std::nullopt};
  Proprieta<std::optional<Data>> MaxDate{*this, std::nullopt};  ///< the latest date that can be picked
  /// The user picks a date: Change follows when it is another one.
  void scegli(const Data& data);

  bool CausesValidation = true;  ///< going to it lets the control that is left validate itself
  std::function<void()> Change;
  /// The focus is about to leave a text that was typed: true keeps it there.
  std::function<bool(const std::string& digitata)> Validate;
};

class Avanzamento : public Controllo {
 public:
  Proprieta<int> Value{*this, 0};
  Proprieta<int> Max{*this, 100};
};

}  // namespace vaticlo
