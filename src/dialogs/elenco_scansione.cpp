#include "dialogs/elenco_scansione.h"

#include <utility>

#include "platform/rapporto.h"

namespace vaticlo {

namespace {

/// A value that holds as long as the object lives.
class Provvisorio {
 public:
  Provvisorio(bool& posto, bool valore) : posto_(posto), prima_(std::exchange(posto, valore)) {}
  Provvisorio(const Provvisorio&) = delete;
  Provvisorio& operator=(const Provvisorio&) = delete;
  ~Provvisorio() { posto_ = prima_; }

 private:
  bool& posto_;
  bool prima_;
};

}  // namespace

ElencoScansione::ElencoScansione(Programma& programma, Cornice& cornice)
    : Finestra(cornice), metodo(programma.cartella), programma_(programma) {
  for (int indice : {0, 1})
    metodo.optSelMetodo[static_cast<std::size_t>(indice)].Click = [this, indice] {
      optSelMetodo_Click(indice);
    };
  metodo.cmbMetodo.Click = [this] { btnCerca_Click(); };
  btnCancella.Click = [this] { btnCancella_Click(); };
  txtColpi.Text("1");
}

void ElencoScansione::Form_Load() {
  cornice().chiudiAltre(*this);
  prendiMisure({7125, 7635, 1000, 3000});
  btnCerca_Click();
}

void ElencoScansione::evento(const std::function<void()>& passi) {
  if (inCorso_) {
    inAttesa_.push_back(passi);
    return;
  }
  {
    const Provvisorio dentro(inEvento_, true);
    passi();
  }
  if (inEvento_) return;  // caused by another event, which is finished first
  while (!inAttesa_.empty()) {
    const auto primo = std::move(inAttesa_.front());
    inAttesa_.pop_front();
    evento(primo);
  }
}

void ElencoScansione::optSelMetodo_Click(int indice) {
  evento([this, indice] {
    // Meant: with "Scegli" the list's own event may have run the scan just before, which then runs twice.
    metodo.optSelMetodo_Click(indice);
    btnCerca_Click();
  });
}

void ElencoScansione::btnCerca_Click() {
  evento([this] { cerca(); });
}

void ElencoScansione::cerca() {
  prgbar.Visible(true);
  RichTextBox1.Visible(false);
  lblPrev.Visible(false);
  std::filesystem::path rapporto;
  {
    const Provvisorio inCorso(inCorso_, true);
    rapporto = scansione();
  }
  prgbar.Visible(false);
  RichTextBox1.Text(testoRapporto(rapporto));
}

void ElencoScansione::btnCancella_Click() {
  evento([this] {
    inAttesa_.clear();
    cornice().chiudi(*this);
  });
}

void ElencoScansione::mostraRapporto(bool qualcosa) {
  lblPrev.Visible(!qualcosa);
  RichTextBox1.Visible(qualcosa);
  btnStampa.Enabled(qualcosa);
}

}  // namespace vaticlo
