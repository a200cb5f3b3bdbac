#pragma once

// Kept by name; nothing in the program calls what stands here.

#include <QString>

/// The low eight bits of the text's first UTF-16 unit; 0 for an empty text.
quint8 Asc(const QString& s);

/// The text's first UTF-16 unit; 0 for an empty text.
quint16 AscW(const QString& s);
