#pragma once

class QApplication;
class QWidget;

// The letters that captions and buttons answer to together with Alt. They are underlined while Alt is held down, in
// menus, where they need no Alt, and always in the look of the highest contrast. Interface thread.

namespace Key_Marks {

/// Learns from now on when Alt is held.
void Follow(QApplication& application);

bool Are_Shown_In(const QWidget* widget);

} // namespace Key_Marks
