#pragma once

class QLineEdit;
class QString;

// What a one-line field may hold, wherever the text comes from (typed, pasted, dropped or set), and how much of it is
// in sight. Interface thread.

/// Cuts a field's text to its first characters (UTF-16 units) and turns its line breaks into blanks, a carriage return
/// and line feed together into one. The cursor stays behind the same character, or goes to the end.
void Cut_Line(QLineEdit& field, int most_characters);

/// Lets a field never be narrower than this text in it, with the cursor behind it.
void Keep_Room_For(QLineEdit& field, const QString& text);
