#include "list/Contact_Cards.h"

#include "list/Card_Line.h"
#include "texts/Table_Texts.h"

#include <algorithm>
#include <array>

namespace {

constexpr QByteArrayView Mark("\xEF\xBB\xBF"); // the byte-order mark
constexpr qsizetype Numbers_Of_A_Card = 3;
constexpr std::array Columns{"FN",    "N",     "First name", "Last name", Card_Number_Column,
                             "TEL 2", "TEL 3", "ORG",        "EMAIL"};

bool Is_Blank(char byte)
{
    return byte == ' ' || byte == '\t';
}

// Hands out content lines, unfolded.
class Unfolded_Lines
{
public:
    explicit Unfolded_Lines(QByteArrayView bytes) : m_rest(bytes) {}

    bool Is_At_End() const { return m_rest.isEmpty(); }
    /// Where the last line began, counted from 1.
    int Line() const { return m_first_line; }

    QByteArray Next()
    {
        m_first_line = m_next_line;
        QByteArray line = Physical_Line().toByteArray();
        for (;;) {
            if (!m_rest.isEmpty() && Is_Blank(m_rest.front()))
                line += Physical_Line().sliced(1).toByteArray();
            else if (!m_rest.isEmpty() && Goes_On_Quoted(line))
                line = line.chopped(1) + Physical_Line().toByteArray();
            else
                return line;
        }
    }

private:
    QByteArrayView Physical_Line()
    {
        const auto* end =
            std::find_if(m_rest.begin(), m_rest.end(), [](char byte) { return byte == '\n' || byte == '\r'; });
        const QByteArrayView line = m_rest.first(end - m_rest.begin());
        m_rest = m_rest.sliced(line.size());
        m_rest = m_rest.sliced(m_rest.startsWith("\r\n") ? 2 : m_rest.isEmpty() ? 0 : 1);
        ++m_next_line;
        return line;
    }

    // A soft line break of quoted-printable text.
    static bool Goes_On_Quoted(const QByteArray& line)
    {
        return line.endsWith('=') && line.left(line.indexOf(':')).toUpper().contains("QUOTED-PRINTABLE");
    }

    QByteArrayView m_rest;
    int m_first_line = 1;
    int m_next_line = 1;
};

struct Card_Number
{
    QString number;
    int rank = 0; ///< the lower, the better
};

struct Card
{
    QString full_name;
    QString first_name;
    QString last_name;
    QString whole_name; ///< of the parts of the name
    QString organisation;
    QString address;
    std::vector<Card_Number> numbers;
};

int Rank_Of(const Card_Line& line)
{
    const auto has = [&](std::initializer_list<const char*> types) {
        return std::any_of(types.begin(), types.end(), [&](const char* type) { return line.Has_Type(type); });
    };
    if (has({"FAX", "PAGER", "MODEM", "TEXTPHONE"}))
        return 4;
    const bool is_mobile = has({"CELL", "MOBILE", "IPHONE"});
    return (is_mobile ? 0 : 2) + (line.is_preferred ? 0 : 1);
}

QString Joined(QStringList parts, QLatin1String between)
{
    parts.removeAll(QString());
    return parts.join(between);
}

void Take(const Card_Line& line, Card& card)
{
    const QStringList parts = line.Components();
    if (line.name == QLatin1String("FN") && card.full_name.isEmpty()) {
        card.full_name = parts.join(u';');
    } else if (line.name == QLatin1String("N")) {
        card.last_name = parts.value(0);
        card.first_name = parts.value(1);
        card.whole_name = Joined({parts.value(3), parts.value(1), parts.value(2), parts.value(0), parts.value(4)},
                                 QLatin1String(" "));
    } else if (line.name == QLatin1String("TEL")) {
        card.numbers.push_back({parts.join(u';').trimmed(), Rank_Of(line)});
    } else if (line.name == QLatin1String("ORG") && card.organisation.isEmpty()) {
        card.organisation = Joined(parts, QLatin1String(", "));
    } else if (line.name == QLatin1String("EMAIL") && (card.address.isEmpty() || line.is_preferred)) {
        card.address = parts.join(u';');
    }
}

class Card_Reader
{
public:
    Card_Reader(QByteArrayView bytes, Table_Builder& builder) : m_lines(bytes), m_builder(builder) {}

    QString Read()
    {
        for (const char* column : Columns)
            m_builder.Add_Field(column);
        m_builder.End_Row(0);
        while (!m_lines.Is_At_End() && !m_builder.Is_Full()) {
            const auto line = Card_Line::Of(m_lines.Next());
            if (!line)
                continue;
            const bool begins = Is(*line, "BEGIN");
            if (begins && m_depth > 0 && !m_is_after_agent)
                break; // the card so far has no end
            if (begins && m_depth++ == 0) {
                m_card = {};
                m_first_line = m_lines.Line();
            } else if (Is(*line, "END") && m_depth > 0) {
                if (--m_depth == 0)
                    Finish();
            } else if (m_depth == 1) {
                Take(*line, m_card);
            }
            m_is_after_agent = line->name == QLatin1String("AGENT");
        }
        if (m_depth > 0 && !m_builder.Is_Full())
            return QString(Texts::Table::Card_Without_End).arg(m_first_line);
        return m_builder.Trouble();
    }

private:
    static bool Is(const Card_Line& line, const char* name)
    {
        return line.name == QLatin1String(name) && line.value.trimmed().toUpper() == "VCARD";
    }

    void Finish()
    {
        std::stable_sort(m_card.numbers.begin(), m_card.numbers.end(),
                         [](const Card_Number& one, const Card_Number& other) { return one.rank < other.rank; });
        Add(m_card.full_name.isEmpty() ? m_card.whole_name : m_card.full_name);
        for (const QString& field : {m_card.whole_name, m_card.first_name, m_card.last_name})
            Add(field);
        m_card.numbers.resize(Numbers_Of_A_Card);
        for (const Card_Number& number : m_card.numbers)
            Add(number.number);
        Add(m_card.organisation);
        Add(m_card.address);
        m_builder.End_Row(m_first_line);
    }

    void Add(const QString& field) { m_builder.Add_Field(field.toUtf8()); }

    Unfolded_Lines m_lines;
    Table_Builder& m_builder;
    Card m_card;
    int m_depth = 0; // cards within cards
    int m_first_line = 0;
    bool m_is_after_agent = false;
};

} // namespace

bool Is_Contact_Cards(QByteArrayView bytes)
{
    if (bytes.startsWith(Mark))
        bytes = bytes.sliced(Mark.size());
    const QByteArrayView trimmed = bytes.first(std::min<qsizetype>(bytes.size(), 1000)).trimmed();
    return trimmed.first(std::min<qsizetype>(trimmed.size(), 11)).toByteArray().toUpper() == "BEGIN:VCARD";
}

QString Read_Contact_Cards(QByteArrayView bytes, Table_Builder& builder)
{
    return Card_Reader(bytes.startsWith(Mark) ? bytes.sliced(Mark.size()) : bytes, builder).Read();
}
