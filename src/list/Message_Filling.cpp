#include "list/Message_Filling.h"

#include "list/Skip_Words.h"

namespace {

constexpr QLatin1String Opening("{{");
constexpr QLatin1String Closing("}}");
constexpr qsizetype Mark = 2; // characters of either

} // namespace

Message_Filling::Message_Filling(const QString& message, const Contact_Table& table)
{
    const qsizetype last_close = message.lastIndexOf(Closing); // looked for once: a message may be all openings
    for (qsizetype at = 0; at < message.size();) {
        const qsizetype open = message.indexOf(Opening, at);
        const qsizetype end = open < 0 ? message.size() : open;
        Add_Literal(QStringView(message).mid(at, end - at));
        at = end;
        if (open < 0)
            break;
        const QStringView rest = QStringView(message).mid(open + Mark);
        const qsizetype close = open + Mark <= last_close ? rest.indexOf(Closing) : -1;
        if (rest.startsWith(Opening) || close < 0) {
            Add_Literal(QStringView(message).mid(open, Mark));
            at = open + (rest.startsWith(Opening) ? 2 * Mark : Mark);
            continue;
        }
        Add_Placeholder(QStringView(message).mid(open, close + 2 * Mark), table);
        at = open + close + 2 * Mark;
    }
}

void Message_Filling::Add_Literal(QStringView text)
{
    if (text.isEmpty())
        return;
    if (m_pieces.empty() || m_pieces.back().is_placeholder)
        m_pieces.emplace_back();
    m_pieces.back().text += text;
}

void Message_Filling::Add_Placeholder(QStringView written, const Contact_Table& table)
{
    const QStringView inside = written.mid(Mark).chopped(Mark);
    const qsizetype bar = inside.indexOf(u'|');
    const std::vector<int> columns = table.Columns_Named(bar < 0 ? inside : inside.left(bar));
    if (columns.size() > 1 && m_ambiguous.isEmpty())
        m_ambiguous = written.toString();
    m_pieces.push_back({written.toString(), true, columns.empty() ? -1 : columns.front(), bar >= 0,
                        bar < 0 ? QString() : inside.mid(bar + 1).toString()});
}

Filled_Message Message_Filling::For_Row(const Contact_Table& table, int row) const
{
    if (m_pieces.size() == 1 && !m_pieces.front().is_placeholder)
        return {m_pieces.front().text, {}}; // one text for all
    Filled_Message filled;
    for (const Piece& piece : m_pieces) {
        const QString value = piece.column < 0 || row < 0 ? QString() : table.Field(row, piece.column);
        if (!piece.is_placeholder)
            filled.text += piece.text;
        else if (!QStringView(value).trimmed().isEmpty())
            filled.text += value;
        else if (piece.has_fallback)
            filled.text += piece.fallback;
        else {
            filled.text += piece.text;
            if (piece.column < 0)
                filled.fault = QLatin1String(Skip_Words::Unknown_Field);
            else if (filled.fault.isEmpty())
                filled.fault = QLatin1String(Skip_Words::Empty_Field);
        }
    }
    return filled;
}
