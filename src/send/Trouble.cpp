#include "send/Trouble.h"

#include "platform/One_Line.h"

QString Trouble::Line() const
{
    return On_One_Line(QStringLiteral("corvane-send: ") + what + QStringLiteral(" (") + why + u')');
}
