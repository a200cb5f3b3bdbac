#include "platform/String_Helpers.h"

QString Left_Str_substringToIndex(const QString& s, int n)
{
    return s.left(qBound(qsizetype(0), qsizetype(n), s.size()));
}

QString Right_Str_substringFromIndex(const QString& s, int n)
{
    return s.right(qBound(qsizetype(0), qsizetype(n), s.size()));
}

QString Read_Str_FromIndex(const QString& s, int i)
{
    return i < 0 || i > s.size() ? QString() : s.mid(i);
}

QString Read_Str_Upto_Index(const QString& s, int i)
{
    return i < 0 || i > s.size() ? QString() : s.left(i);
}

QString Trim_Str(const QString& s)
{
    return s.trimmed();
}

bool Find_Str(const QString& s, const QString& t)
{
    return !t.isEmpty() && s.contains(t, Qt::CaseSensitive);
}
