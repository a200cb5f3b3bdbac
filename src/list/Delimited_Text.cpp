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

class Delimited_Reader
{
public:
    Delimited_Reader(QByteArrayView text, char delimiter, Table_Builder& builder)
        : m_at(text.data()), m_end(text.data() + text.size()), m_delimiter(delimiter), m_builder(builder)
    {
        Pass_Over_Separator_Line();
    }

    QString Read(int most_rows = std::numeric_limits<int>::max())
    {
        for (int rows = 0; m_at < m_end && rows < most_rows; ++rows) {
            const int first_line = m_line;
            bool has_stray_quote = false;
            do {
                if (m_at < m_end && *m_at == '"')
                    has_stray_quote = !Read_Quoted() || has_stray_quote;
                else
                    Read_Plain();
            } while (Pass_Over_Delimiter());
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

    void Pass_Over_Separator_Line()
    {
        const QByteArrayView text(m_at, m_end - m_at);
        if (text.size() <= Separator_Line.size() || !text.startsWith(Separator_Line))
            return;
        const char* line_end = m_at + Separator_Line.size() + 1;
        if (line_end == m_end || *line_end == '\n' || *line_end == '\r') {
            m_at = line_end;
            Pass_Over_Line_End();
        }
    }

    void Read_Plain()
    {
        const char* end = End_Of_Plain();
        m_builder.Add_Field({m_at, end - m_at});
        m_at = end;
    }

    // Where a delimiter or a line end follows.
    const char* End_Of_Plain() const
    {
        const char* at = m_at;
#ifdef __SSE2__
        const __m128i delimiter = _mm_set1_epi8(m_delimiter);
        for (; m_end - at >= 16; at += 16) { // as many at a time: most fields end within them
            const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
            const __m128i line_ends =
                _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r')));
            const int found = _mm_movemask_epi8(_mm_or_si128(line_ends, _mm_cmpeq_epi8(bytes, delimiter)));
            if (found != 0)
                return at + std::countr_zero(static_cast<unsigned>(found));
        }
#endif
        while (at < m_end && *at != m_delimiter && *at != '\n' && *at != '\r')
            ++at;
        return at;
    }

    // Answers no when text follows the closing quote; it becomes part of the field.
    bool Read_Quoted()
    {
        const int first_line = m_line;
        for (++m_at;;) {
            const auto* quote =
                static_cast<const char*>(std::memchr(m_at, '"', static_cast<std::size_t>(m_end - m_at)));
            const char* end = quote ? quote : m_end;
            Count_Lines(m_at, end);
            m_builder.Add_Piece({m_at, end - m_at});
            m_at = end;
            if (!quote) {
                m_open_quote = first_line;
                m_builder.End_Field();
                return true;
            }
            ++m_at;
            if (m_at == m_end || *m_at != '"')
                break;
            m_builder.Add_Piece("\"");
            ++m_at;
        }
        const char* end = End_Of_Plain();
        const bool is_clean = std::all_of(m_at, end, [](char byte) { return byte == ' '; });
        if (!is_clean)
            m_builder.Add_Piece({m_at, end - m_at});
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
        ++m_at;
        return m_builder.Fields_In_Row() < Fields_Between_Looks; // that many are refused in any case
    }

    void Pass_Over_Line_End()
    {
        if (m_at == m_end)
            return;
        m_at += *m_at == '\r' && m_at + 1 < m_end && m_at[1] == '\n' ? 2 : 1;
        ++m_line;
    }

    const char* m_at;
    const char* m_end;
    char m_delimiter;
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
    Delimited_Reader(sample, delimiter, builder).Read(Sample_Rows); // the end is cut, and may be in quotes
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

QString Read_Delimited(QByteArrayView text, char delimiter, Table_Builder& builder)
{
    return Delimited_Reader(text, delimiter, builder).Read();
}
