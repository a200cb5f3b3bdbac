#pragma once

#include <ostream>

#include <QString>
#include <QStringList>

// So that a failed comparison of texts shows the texts. Found by argument-dependent look-up.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << "\" (" << text.size() << " units)";
}
