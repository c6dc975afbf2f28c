#pragma once

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "forms/finestra.h"
#include "program/programma.h"

namespace vaticlo {

inline constexpr std::string_view kFileGuida = "guida/guida.html";

/// What draws the main window and its child windows.
class VistaPrincipale {
 public:
  virtual ~VistaPrincipale() = default;
  virtual void mostra(const std::shared_ptr<Finestra>& finestra) = 0;
  virtual void portaSu(Finestra& finestra) = 0;
  virtual void togli(Finestra& finestra) = 0;
  virtual void chiudiPrincipale() = 0;
  virtual void abilitaComandi(bool abilitati) = 0;
  /// Shows the user's guide in a window of its own: it is no child and disturbs none.
  virtual void mostraGuida(const std::filesystem::path& pagina) = 0;
};

/// The main window: the commands of its menu and its toolbar, the child windows that are open, and which of
/// them is the active one. A dialog is open once at most.
class frmPrincipale : public Cornice {
 public:
  explicit frmPrincipale(Programma& programma) : programma_(programma) {}

  static constexpr const char* kCaption = "Vaticlo";
  static constexpr int kLarghezza = 12000, kAltezza = 9000;  ///< twips

  void disegnataDa(VistaPrincipale* vista) { vista_ = vista; }

  /// The menu entry of that name. Failures go on to the caller and end the program.
  void comando(std::string_view voce);
  /// A press on the main part of a toolbar button. Runs on past any failure; unknown keys do nothing.
  void Toolbar1_ButtonClick(std::string_view chiave);
  /// An item of a drop-down button: `NumPrev` or `NumStat` with an optional digit. Runs on past any failure.
  void Toolbar1_ButtonMenuClick(std::string_view chiave);

  /// The window became the active one.
  void attivata(Finestra& finestra);
  /// Whether the main window may close now. When long work is under way that is asked to end, and it may be
  /// asked again.
  [[nodiscard]] bool Form_QueryUnload();
  /// The main window closes: the report of the last check is deleted. Fails with
  /// Errore::AccessoAlFile when it can't be.
  void Form_Unload();
  /// Long work is under way: only its own stop is listened to.
  [[nodiscard]] bool occupata() const;

  void chiudiAltre(Finestra& tranne) override { chiudiTutte(&tranne); }
  void chiudi(Finestra& finestra) override;
  void riapri(Finestra& finestra) override;
  void apriRisultati() override;
  void apriVerifica(const Finestra& chiede, const std::string& metodo, int estrazione) override;
  void apriConfronto(const Finestra& chiede, const std::string& metodo) override;
  void lavoro(bool inCorso) override;

  /// Opens the window of that class, or brings up the one that is open.
  template <class F>
  void apri() {
    if (auto* finestra = aperta<F>())
      portaSu(*finestra);
    else
      apriNuova([](Programma& programma, Cornice& cornice) -> std::shared_ptr<Finestra> {
        return std::make_shared<F>(programma, cornice);
      });
  }
  /// The open window of that class, null without one.
  template <class F>
  [[nodiscard]] F* aperta() const {
    for (const auto& aperta : finestre_)
      if (auto* trovata = dynamic_cast<F*>(aperta.finestra.get())) return trovata;
    return nullptr;
  }
  void archivioNuovo() override;
  void estrazioniAggiunte() override;
  void apriGuida();
  void esci();
  void chiudiTutte(const Finestra* tranne = nullptr);
  [[nodiscard]] Programma& programma() const { return programma_; }

  /// A window and how one of its class is made.
  using Fabbrica = std::shared_ptr<Finestra> (*)(Programma&, Cornice&);
  struct Aperta {
    std::shared_ptr<Finestra> finestra;
    Fabbrica fabbrica;
  };
  [[nodiscard]] const std::vector<Aperta>& finestre() const { return finestre_; }

 private:
  [[nodiscard]] std::vector<Aperta>::const_iterator postoDi(const Finestra& finestra) const;
  void portaSu(Finestra& finestra);
  void apriNuova(Fabbrica fabbrica);
  /// Opens a window, and the one that asks for it stays.
  template <class F>
  F& apriAccanto(const Finestra& chiede);

  Programma& programma_;
  VistaPrincipale* vista_ = nullptr;
  std::vector<Aperta> finestre_;
  std::vector<std::shared_ptr<Finestra>>
      chiuse_;  ///< kept until the next command: an event of theirs may be running
  Finestra* attiva_ = nullptr;
  const Finestra* resta_ = nullptr;  ///< stays open though another one closes the rest
};

}  // namespace vaticlo
