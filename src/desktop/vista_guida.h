#pragma once

#include <QTextBrowser>
#include <filesystem>

namespace vaticlo {

/// The user's guide in a window beside the main one, with which it closes. Esc closes it, Alt+Left goes back.
class VistaGuida : public QTextBrowser {
 public:
  VistaGuida(const std::filesystem::path& pagina, QWidget* padre);

 protected:
  void keyPressEvent(QKeyEvent* tasto) override;
};

}  // namespace vaticlo
