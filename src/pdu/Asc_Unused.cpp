#include "pdu/Asc_Unused.h"

quint8 Asc(const QString& s)
{
    return static_cast<quint8>(AscW(s) & 0xFF);
}

quint16 AscW(const QString& s)
{
    return s.isEmpty() ? quint16{0} : s.front().unicode();
}
