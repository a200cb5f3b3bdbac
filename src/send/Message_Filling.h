#pragma once

#include <QString>

// The placeholders in a message: {{Column}} and {{Column|fallback}}, which stand for a recipient's own values, and
// {{{{, which is a literal {{. What is not closed is no placeholder. Any thread.

/// A message as a recipient without any values gets it.
struct Filled_Message
{
    QString text;
    bool is_complete = true; ///< whether each placeholder had a fallback; others stay in the text as they are
};

Filled_Message Fill_Message(const QString& message);
