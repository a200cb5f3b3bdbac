#pragma once

#include <QString>

// Counts how many messages in a row have ended alike, so that a job stops before everybody's message ends so. A value.
class Alike_Ends
{
public:
    /// A message ended with this; an empty text for one that was sent. Returns how many in a row have, this one
    /// included.
    int Count(const QString& end)
    {
        m_count = end == m_last ? m_count + 1 : 1;
        m_last = end;
        return end.isEmpty() ? 0 : m_count;
    }

private:
    QString m_last;
    int m_count = 0;
};
