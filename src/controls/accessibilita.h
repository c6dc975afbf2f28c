#pragma once

namespace vaticlo {

/// Teaches the toolkit's accessibility what a radio button of ours is (it takes one that is not of its own
/// groups for a check box) and that a group box is a group. Calling it again changes nothing.
void installaAccessibilita();

}  // namespace vaticlo
