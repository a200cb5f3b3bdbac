#pragma once

#include <QString>

class QWidget;

// The one door for telling and asking the user: every message box of the program comes from here. Texts are shown as
// plain text, whatever they hold. May be called from any thread; the caller waits for the answer. A box belongs to the
// modal window on top. Once the program is exiting no box opens any more: messages are skipped and every question is
// answered No.

/// Shows the text, below an empty line, with one button "OK".
void Show_MessageBox(const QString& text);

/// The same, and then puts the focus on the control that the text is about. Interface thread only.
void Tell_And_Focus(const QString& text, QWidget& control);

/// Asks the text unchanged, with the buttons "Yes" (the default) and "No". Only "Yes" answers yes; Escape and the close
/// button answer no.
bool Show_YES_NO_MessageBox(const QString& text);

/// Closes every open box that belongs to a window (or every one, without a window): OK for messages, No for questions.
/// Interface thread only.
void Close_Message_Boxes(const QWidget* window = nullptr);
