#pragma once

#include <QObject>

namespace vaticlo {

/// Asks the system (the desktop's portal, the settings of Windows) whether its user wants dark colours: at
/// the start, and whenever the program comes to the front again, so that a change is followed. Nobody waits
/// for the answer, and without a portal there is none: the toolkit alone decides then.
class Aspetto : public QObject {
 public:
  Aspetto();
  /// Dark colours for the whole program, or those that the toolkit has found for itself. Where these are dark
  /// already they stay.
  void vesti(bool diScuro);

 private:
  void chiedi();

  bool nostra_ = false;  // whether the dark colours that are shown are ours
};

}  // namespace vaticlo
