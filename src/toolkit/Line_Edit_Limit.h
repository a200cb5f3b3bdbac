#pragma once

class QLineEdit;

// What a one-line field may hold, wherever the text comes from: typed, pasted, dropped or set. Interface thread.

/// Cuts a field's text to its first characters (UTF-16 units) and turns line breaks in it into blanks, a pair of
/// carriage return and line feed into one. The cursor stays behind the character it stood behind, or goes to the end.
void Cut_Line(QLineEdit& field, int most_characters);
