#include "list/Message_Filling.h"

#include "list/Skip_Words.h"
#include "platform/One_Line.h"
#include "texts/Table_Texts.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace {

constexpr QLatin1String Opening("{{");
constexpr QLatin1String Closing("}}");
constexpr qsizetype Mark = 2; // characters of either

constexpr qsizetype Spare = 8; // characters that may be written after a text, and then written over

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

#ifdef __SSE2__
// One to seven bytes, with zeros after them, in two reads that may overlap.
__m128i Few_Bytes(const char* bytes, qsizetype count)
{
    const auto ends_as = [&]<typename Part>(Part first) {
        Part last{};
        std::memcpy(&first, bytes, sizeof(Part));
        std::memcpy(&last, bytes + count - sizeof(Part), sizeof(Part));
        return first | std::uint64_t{last} << 8 * (count - static_cast<qsizetype>(sizeof(Part)));
    };
    std::uint64_t few = static_cast<unsigned char>(*bytes);
    if (count >= 4)
        few = ends_as(std::uint32_t{});
    else if (count >= 2)
        few = ends_as(std::uint16_t{});
    return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&few));
}
#endif

// Puts the characters of one byte that come next, eight at a time; what is put after the last is written over later.
void Put_Plain(QByteArrayView utf8, qsizetype& at, QChar*& to)
{
#ifdef __SSE2__
    while (at < utf8.size()) {
        const qsizetype left = utf8.size() - at;
        const __m128i bytes = left >= 8 ? _mm_loadl_epi64(reinterpret_cast<const __m128i*>(utf8.data() + at))
                                        : Few_Bytes(utf8.data() + at, left);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
        const qsizetype plain = std::countr_zero(static_cast<unsigned>(_mm_movemask_epi8(bytes)) | 0x100);
        const qsizetype put = std::min(plain, left);
        at += put;
        to += put;
        if (plain < 8)
            return;
    }
#else
    for (; at < utf8.size() && static_cast<unsigned char>(utf8[at]) < 0x80; ++at)
        *to++ = QLatin1Char(utf8[at]);
#endif
}

// Characters of one and two bytes, which most names consist of, are no matter for a decoder. There must be room for as
// many characters as bytes, and for Spare more.
QChar* Put(QByteArrayView utf8, QChar* to)
{
    QChar* end = to;
    for (qsizetype at = 0;; at += 2) {
        Put_Plain(utf8, at, end);
        if (at == utf8.size())
            return end;
        const auto byte = static_cast<unsigned char>(utf8[at]);
        if (byte < 0xC2 || byte >= 0xE0 || at + 1 == utf8.size() || !Continues(utf8[at + 1]))
            return Put(QStringView(QString::fromUtf8(utf8)), to);
        *end++ = QChar(static_cast<char16_t>((byte & 0x1F) << 6 | (utf8[at + 1] & 0x3F)));
    }
}

bool Is_Plain(char byte)
{
    return byte > ' ' && byte < '\x7F';
}

bool Is_Blank_At_A_Closer_Look(QByteArrayView utf8)
{
    if (std::any_of(utf8.begin(), utf8.end(), Is_Plain))
        return false;
    return QString::fromUtf8(utf8).trimmed().isEmpty(); // other scripts have blanks, too
}

bool Is_Blank(QByteArrayView utf8)
{
    return utf8.isEmpty() || (!Is_Plain(utf8.front()) && Is_Blank_At_A_Closer_Look(utf8));
}

// A text that is put together, and grows as it must.
class Growing_Text
{
public:
    explicit Growing_Text(QString& text) : m_text(text)
    {
        m_text.resize(std::max(m_text.size(), m_text.capacity())); // what it held before is written over
        m_at = m_text.data();
    }
    void Add(QByteArrayView utf8)
    {
        Make_Room(utf8.size() + Spare); // no text has more units in UTF-16 than bytes in UTF-8
        m_at = Put(utf8, m_at);
    }
    void Add(QStringView text)
    {
        Make_Room(text.size());
        m_at = Put(text, m_at);
    }
    void Finish() { m_text.truncate(m_at - m_text.constData()); }

private:
    void Make_Room(qsizetype more)
    {
        const qsizetype filled = m_at - m_text.constData();
        if (more <= m_text.size() - filled)
            return;
        m_text.resize(std::max(2 * m_text.size(), filled + more));
        m_at = m_text.data() + filled;
    }

    QString& m_text;
    QChar* m_at;
};

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

namespace {

QByteArrayView Value_For(const Piece& piece, const Contact_Table& table, int row)
{
    return piece.column < 0 || row < 0 ? QByteArrayView() : table.Bytes_At(row, piece.column);
}

} // namespace

Message_Filling::Given Message_Filling::Given_By(const Piece& piece, const Contact_Table& table, int row)
{
    if (!piece.is_placeholder)
        return {};
    const QByteArrayView value = Value_For(piece, table, row);
    if (!Is_Blank(value))
        return {Becomes::Value, value};
    if (piece.has_fallback)
        return {Becomes::Fallback};
    return {piece.column < 0 ? Becomes::Unknown : Becomes::Empty};
}

Filled_Message Message_Filling::For_Row(const Contact_Table& table, int row) const
{
    Filled_Message filled;
    Fill(filled, table, row);
    return filled;
}

void Message_Filling::Fill(Filled_Message& filled, const Contact_Table& table, int row) const
{
    filled.fault.clear();
    filled.placeholder.clear();
    if (m_pieces.size() == 1 && !m_pieces.front().is_placeholder) {
        filled.text = m_pieces.front().text; // one text for all
        return;
    }
    Growing_Text text(filled.text);
    for (const Piece& piece : m_pieces) {
        if (!piece.is_placeholder) {
            text.Add(QStringView(piece.text));
            continue;
        }
        if (const QByteArrayView value = Value_For(piece, table, row); !Is_Blank(value)) {
            text.Add(value);
            continue;
        }
        const Given given = Given_By(piece, table, row);
        text.Add(Text_Of(piece, given));
        Note_Fault(filled, piece, given.what);
    }
    text.Finish();
}
