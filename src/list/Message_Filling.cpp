#include "list/Message_Filling.h"

#include "list/Skip_Words.h"
#include "platform/One_Line.h"
#include "texts/Table_Texts.h"

#include <QVarLengthArray>
#include <algorithm>

namespace {

constexpr QLatin1String Opening("{{");
constexpr QLatin1String Closing("}}");
constexpr qsizetype Mark = 2; // characters of either

constexpr int Usual_Pieces = 8;
constexpr qsizetype Longest_Named = 40; // of a placeholder in a sentence, in characters

using Piece = Message_Filling::Piece;
using Becomes = Message_Filling::Becomes;

const QString& Text_Of(const Piece& piece, const Message_Filling::Given& given)
{
    return given.what == Becomes::Fallback ? piece.fallback : piece.text;
}

// What is unknown is worse than what is empty, and of the like the first is told.
void Note_Fault(Filled_Message& filled, const Piece& piece, Becomes what)
{
    if (what != Becomes::Unknown && what != Becomes::Empty)
        return;
    const QLatin1String fault(what == Becomes::Unknown ? Skip_Words::Unknown_Field : Skip_Words::Empty_Field);
    if (!filled.fault.isEmpty() && (what == Becomes::Empty || filled.fault == fault))
        return;
    filled.fault = fault;
    filled.placeholder = piece.text;
}

QChar* Put(QStringView text, QChar* to)
{
    return std::copy(text.begin(), text.end(), to);
}

// Whether a byte of UTF-8 is none that a character begins with.
bool Continues(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Characters of one and two bytes, which most names consist of, are no matter for a decoder.
QChar* Put(QByteArrayView utf8, QChar* to)
{
    QChar* end = to;
    for (qsizetype at = 0; at < utf8.size(); ++at) {
        const auto byte = static_cast<unsigned char>(utf8[at]);
        if (byte < 0x80) {
            *end++ = QChar(byte);
        } else if (byte >= 0xC2 && byte < 0xE0 && at + 1 < utf8.size() && Continues(utf8[at + 1])) {
            *end++ = QChar(static_cast<char16_t>((byte & 0x1F) << 6 | (utf8[++at] & 0x3F)));
        } else {
            return Put(QStringView(QString::fromUtf8(utf8)), to);
        }
    }
    return end;
}

bool Is_Blank(QByteArrayView utf8)
{
    const auto is_plain = [](char byte) { return byte > ' ' && byte < '\x7F'; };
    if (std::any_of(utf8.begin(), utf8.end(), is_plain))
        return false;
    return QString::fromUtf8(utf8).trimmed().isEmpty(); // other scripts have blanks, too
}

} // namespace

QString Words_For_Fault(const Filled_Message& filled)
{
    QString name = On_One_Line(filled.placeholder);
    if (name.size() > Longest_Named)
        name = name.left(Longest_Named - 1 - (name[Longest_Named - 2].isHighSurrogate() ? 1 : 0)) + u'\u2026';
    if (filled.fault == QLatin1String(Skip_Words::Too_Long))
        return Texts::Table::Text_Too_Long;
    if (filled.fault == QLatin1String(Skip_Words::Empty_Field))
        return name.isEmpty() ? QString(Texts::Table::No_Text_Left) : QString(Texts::Table::Is_Empty).arg(name);
    return filled.fault.isEmpty() ? QString() : QString(Texts::Table::Is_Unknown).arg(name);
}

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

Message_Filling Message_Filling::As_It_Is(const QString& message)
{
    Message_Filling filling{QString()};
    filling.Add_Literal(message);
    return filling;
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
    const bool is_clear = columns.size() == 1;
    const bool has_fallback = bar >= 0 && columns.size() <= 1;
    m_pieces.push_back({written.toString(), true, is_clear ? columns.front() : -1, has_fallback,
                        has_fallback ? inside.mid(bar + 1).toString() : QString()});
}

Message_Filling::Given Message_Filling::Given_By(const Piece& piece, const Contact_Table& table, int row)
{
    if (!piece.is_placeholder)
        return {};
    const QByteArrayView value = piece.column < 0 || row < 0 ? QByteArrayView() : table.Bytes_At(row, piece.column);
    if (!value.isEmpty() && !Is_Blank(value))
        return {Becomes::Value, value};
    if (piece.has_fallback)
        return {Becomes::Fallback};
    return {piece.column < 0 ? Becomes::Unknown : Becomes::Empty};
}

Filled_Message Message_Filling::For_Row(const Contact_Table& table, int row) const
{
    if (m_pieces.size() == 1 && !m_pieces.front().is_placeholder)
        return {m_pieces.front().text}; // one text for all
    Filled_Message filled;
    QVarLengthArray<Given, Usual_Pieces> given;
    qsizetype most = 0; // no text has more units in UTF-16 than bytes in UTF-8
    for (const Piece& piece : m_pieces) {
        given.append(Given_By(piece, table, row));
        most += given.back().what == Becomes::Value ? given.back().value.size() : Text_Of(piece, given.back()).size();
        Note_Fault(filled, piece, given.back().what);
    }
    filled.text = QString(most, Qt::Uninitialized);
    QChar* end = filled.text.data();
    for (qsizetype place = 0; place < given.size(); ++place)
        end = given[place].what == Becomes::Value
                  ? Put(given[place].value, end)
                  : Put(Text_Of(m_pieces[static_cast<std::size_t>(place)], given[place]), end);
    filled.text.truncate(end - filled.text.constData());
    return filled;
}
