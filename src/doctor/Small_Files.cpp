#include "doctor/Small_Files.h"

#include <QFile>
#include <algorithm>

QByteArray Small_File(const QString& path, qint64 at_most)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(at_most) : QByteArray();
}

QString Shown_Name(const QString& name)
{
    constexpr qsizetype Longest = 60;
    QString shown = name.left(Longest);
    if (shown.endsWith(QChar::ReplacementCharacter) || (!shown.isEmpty() && shown.back().isHighSurrogate()))
        shown.chop(1);
    for (QChar& unit : shown)
        if (!unit.isPrint() && !unit.isSurrogate())
            unit = u' ';
    return shown.simplified();
}

QString Short_Path(const QString& path)
{
    constexpr int Longest = 48;
    constexpr int Kept_At_Each_End = 22;
    if (path.size() <= Longest)
        return path;
    return path.left(Kept_At_Each_End) + QStringLiteral(" \u2026 ") + path.right(Kept_At_Each_End);
}

QString Name_In_File(const QString& path)
{
    constexpr qint64 Longest_File = 4096;
    return Shown_Name(QString::fromUtf8(Small_File(path, Longest_File)));
}
