#include "platform/Replace_Each.h"

QString Replace_Each(QStringView text, QStringView before, QStringView after)
{
    QString replaced;
    qsizetype begin = 0;
    for (qsizetype found = text.indexOf(before); found >= 0; found = text.indexOf(before, begin)) {
        replaced += text.sliced(begin, found - begin);
        replaced += after;
        begin = found + before.size();
    }
    if (begin == 0)
        return text.toString();
    return replaced += text.sliced(begin);
}
