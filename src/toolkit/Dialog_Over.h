#pragma once

class QDialog;
class QWidget;

// Puts dialogs over a window and runs them modally there. Interface thread only.

/// Puts a dialog over a window, without showing it.
void Put_Over(QDialog& dialog, QWidget* over);
/// The same over the main window, if there is one.
void Put_Over_Main_Window(QDialog& dialog);

/// Puts a dialog over a window, runs it and returns its result; 0 at once if the program is exiting.
int Run_Dialog_Over(QDialog& dialog, QWidget* over);
