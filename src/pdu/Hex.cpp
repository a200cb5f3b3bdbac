#include "pdu/Hex.h"

QString Hex(int n)
{
    return QString::number(static_cast<quint32>(n), 16).toUpper();
}
