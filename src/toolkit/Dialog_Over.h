#pragma once

class QDialog;
class QWidget;

/// Runs a dialog modally over a window and returns its result; 0 at once while the program exits. Interface thread
/// only.
int Run_Dialog_Over(QDialog& dialog, QWidget* over);
