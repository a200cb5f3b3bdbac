#include "list/Delimited_Text.h"

#include "texts/Table_Texts.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace {

constexpr std::array Delimiters{',', ';', '\t', '|'};
constexpr QByteArrayView Separator_Line("sep=");
constexpr qsizetype Sample_Bytes = qsizetype{64} << 10;
constexpr int Sample_Rows = 100;

// Which of sixty-four bytes end a plain field: a bit for each, the first in the lowest.
class Field_Ends
{
public:
    static constexpr qsizetype Bytes = 64;

    explicit Field_Ends(char delimiter) : m_delimiter(delimiter) {}

#ifdef __SSE2__
    std::uint64_t Among(const char* bytes) const
    {
        return Among_Sixteen(bytes) | Among_Sixteen(bytes + 16) << 16 | Among_Sixteen(bytes + 32) << 32 |
               Among_Sixteen(bytes + 48) << 48;
    }

private:
    std::uint64_t Among_Sixteen(const char* begin) const
    {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(begin));
        const __m128i line_ends =
            _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r')));
        const __m128i ends = _mm_or_si128(line_ends, _mm_cmpeq_epi8(bytes, _mm_set1_epi8(m_delimiter)));
        return static_cast<std::uint64_t>(_mm_movemask_epi8(ends));
    }
#else
    std::uint64_t Among(const char* bytes) const
    {
        std::uint64_t ends = 0;
        for (int i = 0; i < Bytes; ++i)
            if (bytes[i] == m_delimiter || bytes[i] == '\n' || bytes[i] == '\r')
                ends |= std::uint64_t{1} << i;
        return ends;
    }

private:
#endif
    char m_delimiter;
};

class Delimited_Reader
{
public:
    Delimited_Reader(QByteArray text, char delimiter, Table_Builder& builder)
        : m_delimiter(delimiter), m_field_ends(delimiter), m_builder(builder)
    {
        const QByteArrayView kept = builder.Keep(std::move(text));
        m_at = kept.data();
        m_end = m_at + kept.size();
        Look_From(m_at);
        Pass_Over_Separator_Line();
    }

    QString Read(int most_rows = std::numeric_limits<int>::max())
    {
        for (int rows = 0; m_at < m_end && rows < most_rows; ++rows) {
            const int first_line = m_line;
            bool has_stray_quote = false;
            m_builder.Begin_Row(m_at);
            while (!Reads_Plain_To_The_End_Of_The_Row()) {
                has_stray_quote = !Read_Quoted() || has_stray_quote;
                if (!Pass_Over_Delimiter())
                    break;
            }
            if (m_open_quote > 0)
                return QString(Texts::Table::Quote_Not_Closed).arg(m_open_quote);
            if (!m_builder.End_Row(first_line, has_stray_quote))
                break;
            Pass_Over_Line_End();
        }
        return m_builder.Trouble();
    }

private:
    static constexpr int Fields_Between_Looks = 2 * Table_Builder::Most_Columns;
    static constexpr std::size_t Fields_Kept_Together = 32;

    void Pass_Over_Separator_Line()
    {
        const QByteArrayView text(m_at, m_end - m_at);
        if (text.size() <= Separator_Line.size() || !text.startsWith(Separator_Line))
            return;
        const char* line_end = m_at + Separator_Line.size() + 1;
        if (line_end == m_end || *line_end == '\n' || *line_end == '\r') {
            Go_To(line_end);
            Pass_Over_Line_End();
        }
    }

    // Reads fields up to one in quotes, where it answers no, or all of them. Most fields are read here, and so they are
    // kept together.
    bool Reads_Plain_To_The_End_Of_The_Row()
    {
        std::array<const char*, Fields_Kept_Together> ends;
        for (;;) {
            const char* const begin = m_at;
            std::size_t count = 0;
            bool follows_another = true;
            while (follows_another && count < ends.size() && !(m_at < m_end && *m_at == '"')) {
                ends[count++] = m_at = End_Of_Plain();
                follows_another = m_at < m_end && *m_at == m_delimiter;
                if (follows_another)
                    Pass_Over_Mark();
            }
            m_builder.Keep_Fields(begin, {ends.data(), count});
            if (!follows_another)
                return true;
            if (m_builder.Fields_In_Row() >= Fields_Between_Looks)
                return true; // that many are refused in any case
            if (m_at < m_end && *m_at == '"')
                return false;
        }
    }

    // Where a delimiter or a line end follows.
    const char* End_Of_Plain()
    {
        while (m_ends == 0) {
            if (m_end - m_looked_at <= Field_Ends::Bytes)
                return m_end;
            Look_From(m_looked_at + Field_Ends::Bytes);
        }
        return m_looked_at + std::countr_zero(m_ends);
    }

    void Look_From(const char* at)
    {
        m_looked_at = at;
        if (m_end - at >= Field_Ends::Bytes) {
            m_ends = m_field_ends.Among(at);
        } else {
            std::array<char, Field_Ends::Bytes> rest{};
            std::copy(at, m_end, rest.begin());
            m_ends = m_field_ends.Among(rest.data());
        }
    }

    void Go_To(const char* at)
    {
        m_at = at;
        if (at - m_looked_at < Field_Ends::Bytes)
            m_ends &= ~std::uint64_t{0} << (at - m_looked_at);
        else
            Look_From(at);
    }

    // Answers no when text follows the closing quote; it becomes part of the field.
    bool Read_Quoted()
    {
        const int first_line = m_line;
        const char* at = m_at + 1;
        for (;;) {
            const auto* quote = static_cast<const char*>(std::memchr(at, '"', static_cast<std::size_t>(m_end - at)));
            const char* end = quote ? quote : m_end;
            Count_Lines(at, end);
            if (!quote)
                m_open_quote = first_line;
            const bool is_doubled = quote && quote + 1 < m_end && quote[1] == '"';
            m_builder.Keep_Piece(at, is_doubled ? end + 1 : end); // of two quotes the first
            at = end + (is_doubled ? 2 : 1);
            if (!is_doubled)
                break;
        }
        Go_To(std::min(at, m_end));
        const char* end = End_Of_Plain();
        const bool is_clean = std::all_of(m_at, end, [](char byte) { return byte == ' '; });
        if (!is_clean)
            m_builder.Keep_Piece(m_at, end);
        m_builder.End_Field();
        m_at = end;
        return is_clean;
    }

    void Count_Lines(const char* begin, const char* end)
    {
        for (const char* at = begin; at < end; ++at)
            if (*at == '\n' || (*at == '\r' && (at + 1 == m_end || at[1] != '\n')))
                ++m_line;
    }

    bool Pass_Over_Delimiter()
    {
        if (m_at == m_end || *m_at != m_delimiter || m_open_quote > 0)
            return false;
        Pass_Over_Mark();
        return m_builder.Fields_In_Row() < Fields_Between_Looks;
    }

    // The end of a plain field that was found.
    void Pass_Over_Mark()
    {
        ++m_at;
        m_ends &= m_ends - 1;
    }

    void Pass_Over_Line_End()
    {
        if (m_at == m_end)
            return;
        Go_To(m_at + (*m_at == '\r' && m_at + 1 < m_end && m_at[1] == '\n' ? 2 : 1));
        ++m_line;
    }

    const char* m_at;
    const char* m_end;
    char m_delimiter;
    Field_Ends m_field_ends;
    const char* m_looked_at; // where the bytes begin whose ends are known
    std::uint64_t m_ends;    // among them, from m_at on
    Table_Builder& m_builder;
    int m_line = 1;
    int m_open_quote = 0; // its line
};

struct Fit
{
    int like_the_first = 0; // rows of a thousand with as many fields as the first
    int columns = 0;

    bool operator<(const Fit& other) const
    {
        return std::pair(like_the_first, columns) < std::pair(other.like_the_first, other.columns);
    }
};

Fit Fit_Of(QByteArrayView sample, char delimiter)
{
    Table_Builder builder;
    Delimited_Reader(sample.toByteArray(), delimiter, builder)
        .Read(Sample_Rows); // the end is cut, and may be in quotes
    const Contact_Table table = builder.Take();
    if (table.Column_Count() < 2)
        return {};
    int alike = 1;
    for (int row = 0; row < table.Row_Count(); ++row)
        alike += table.Field_Count(row) == table.Column_Count() ? 1 : 0;
    return {alike * 1000 / (table.Row_Count() + 1), table.Column_Count()};
}

} // namespace

char Guessed_Delimiter(QByteArrayView text, bool prefers_tab)
{
    if (text.size() > Separator_Line.size() && text.startsWith(Separator_Line) &&
        Can_Be_Delimiter(QLatin1Char(text[Separator_Line.size()])))
        return text[Separator_Line.size()];
    QByteArrayView sample = text.first(std::min(text.size(), Sample_Bytes));
    if (const qsizetype line_end = sample.lastIndexOf('\n'); sample.size() < text.size() && line_end > 0)
        sample = sample.first(line_end);
    char best = prefers_tab ? '\t' : ',';
    Fit best_fit = Fit_Of(sample, best);
    for (const char delimiter : Delimiters) {
        const Fit fit = Fit_Of(sample, delimiter);
        if (best_fit < fit) {
            best = delimiter;
            best_fit = fit;
        }
    }
    return best;
}

bool Can_Be_Delimiter(QChar character)
{
    const char16_t code = character.unicode();
    return code > 0 && code < 0x7F && !character.isLetterOrNumber() && code != u'"' && code != u'\n' && code != u'\r';
}

QString Read_Delimited(QByteArray text, char delimiter, Table_Builder& builder)
{
    return Delimited_Reader(std::move(text), delimiter, builder).Read();
}
