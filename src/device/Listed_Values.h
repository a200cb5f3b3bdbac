#pragma once

#include <QByteArray>
#include <QList>

/// The values that a device takes, field by field, as the answer to a test command lists them: "+CNMI: (0-2),(0,1),..."
/// (V.250, 5.7.3). A value; any thread.
class Listed_Values
{
public:
    /// Nothing is listed by an empty line.
    explicit Listed_Values(const QByteArray& line = {});

    bool Is_Empty() const { return m_fields.isEmpty(); }
    /// Whether a field, counted from 0, has this value in its list.
    bool Has(qsizetype field, int value) const;

private:
    struct Range
    {
        int m_first = 0;
        int m_last = 0;
    };
    static QList<Range> Ranges_Of(const QByteArray& list);

    QList<QList<Range>> m_fields;
};
