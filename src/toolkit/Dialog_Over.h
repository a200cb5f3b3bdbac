#pragma once

class QDialog;
class QWidget;

// Dialogs are put over a window and run modally there. Interface thread only.

/// Puts a dialog over a window, without showing it.
void Put_Over(QDialog& dialog, QWidget* over);
/// The same over the main window, where there is one.
void Put_Over_Main_Window(QDialog& dialog);

/// Puts a dialog over a window, runs it and returns its result; 0 at once while the program exits.
int Run_Dialog_Over(QDialog& dialog, QWidget* over);
