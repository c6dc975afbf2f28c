#pragma once

#include <QWidget>
#include <filesystem>

class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace vaticlo {

/// The user's guide in a window beside the main one, with which it closes: its chapters at the left, a search
/// (Ctrl+F), a way back (Alt+Left). Esc closes it.
class VistaGuida : public QWidget {
 public:
  VistaGuida(const std::filesystem::path& pagina, QWidget* padre);

 protected:
  void keyPressEvent(QKeyEvent* tasto) override;

 private:
  void elencaCapitoli();
  void cerca(bool indietro, bool dalla);

  QTextBrowser* testo_;
  QListWidget* capitoli_;
  QLineEdit* ricerca_;
};

}  // namespace vaticlo
