#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

namespace vaticlo {

/// The splash: one picture, in the middle of the screen, until its timer fires or any key is pressed. A mouse
/// click does nothing.
class VistaSplash : public QWidget {
 public:
  static constexpr int kIntervallo = 5000;  ///< milliseconds

  explicit VistaSplash(std::function<void()> apriPrincipale);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void showEvent(QShowEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  void avanti();

  std::function<void()> apriPrincipale_;
  QTimer timer1_{this};
};

}  // namespace vaticlo
