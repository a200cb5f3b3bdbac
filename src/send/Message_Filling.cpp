#include "send/Message_Filling.h"

namespace {

constexpr QLatin1String Opening("{{");
constexpr QLatin1String Closing("}}");
constexpr qsizetype Mark = 2; // characters of either

} // namespace

Filled_Message Fill_Message(const QString& message)
{
    Filled_Message filled;
    for (qsizetype at = 0; at < message.size();) {
        const qsizetype open = message.indexOf(Opening, at);
        const qsizetype end = open < 0 ? message.size() : open;
        filled.text += QStringView(message).mid(at, end - at);
        at = end;
        if (open < 0)
            break;
        const QStringView rest = QStringView(message).mid(open + Mark);
        const qsizetype close = rest.indexOf(Closing);
        if (rest.startsWith(Opening) || close < 0) {
            filled.text += Opening;
            at = open + (rest.startsWith(Opening) ? 2 * Mark : Mark);
            continue;
        }
        const QStringView inside = rest.left(close);
        const qsizetype bar = inside.indexOf(u'|');
        filled.is_complete = filled.is_complete && bar >= 0;
        filled.text += bar >= 0 ? inside.mid(bar + 1) : QStringView(message).mid(open, close + 2 * Mark);
        at = open + close + 2 * Mark;
    }
    return filled;
}
