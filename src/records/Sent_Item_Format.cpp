#include "records/Sent_Item_Format.h"

#include "records/Stored_Text.h"

#include <algorithm>

namespace {

constexpr QChar Before_Number_And_Date(u'\a');
constexpr QChar Before_Message_And_Status(u'\v');

// Finds one separator repeatedly in the shrinking rest of a line. Remembers what it found, so that a line without the
// other separator is not searched to its end for each record.
class Separator_Finder
{
public:
    Separator_Finder(QStringView line, QChar separator) : m_line(line), m_separator(separator) {}

    // The position of the first separator in the rest; nothing when there is none.
    std::optional<qsizetype> Find(qsizetype begin, qsizetype end)
    {
        if (m_next < begin) {
            const qsizetype found = m_line.indexOf(m_separator, begin);
            m_next = found < 0 ? m_line.size() : found;
        }
        return m_next < end ? std::optional(m_next) : std::nullopt;
    }

private:
    QStringView m_line;
    QChar m_separator;
    qsizetype m_next = -1;
};

QStringView Without_First(QStringView text, QChar first)
{
    return text.startsWith(first) ? text.mid(1) : text;
}

// Takes one line apart. What a record without a number leaves behind is kept for the next one.
class Line_Reader
{
public:
    explicit Line_Reader(QStringView line)
        : m_line(line), m_end(line.size()), m_bells(line, Before_Number_And_Date),
          m_vertical_tabs(line, Before_Message_And_Status)
    {
    }

    bool Is_At_End() const { return m_begin >= m_end; }

    // Every call takes at least one character off the rest.
    std::optional<Sent_Item> Next()
    {
        Take_Up_To(m_vertical_tabs, m_number);
        m_number = Without_First(m_number.trimmed(), Before_Number_And_Date);
        Take_Up_To(m_bells, m_message);
        m_message = Without_First(m_message, Before_Message_And_Status);
        if (m_begin < m_end && m_line.at(m_begin) == Before_Number_And_Date)
            ++m_begin;
        Take_Up_To(m_vertical_tabs, m_date);
        Trim_Rest(); // this removes the separator before the status as well: it counts as white space
        QStringView status;
        if (!Take_Up_To(m_bells, status)) {
            status = m_line.mid(m_begin, m_end - m_begin);
            m_begin = m_end;
        }
        if (m_number.isEmpty())
            return std::nullopt;
        auto record =
            Sent_Item_Format::Record(m_number.toString(), m_message.toString(), m_date.toString(), status.toString());
        m_number = m_message = m_date = {};
        return record;
    }

private:
    // Takes what precedes the separator into a field; the rest then begins with the separator.
    bool Take_Up_To(Separator_Finder& separator, QStringView& field)
    {
        const auto found = separator.Find(m_begin, m_end);
        if (!found)
            return false;
        field = m_line.mid(m_begin, *found - m_begin);
        m_begin = *found;
        return true;
    }

    void Trim_Rest()
    {
        while (m_begin < m_end && m_line.at(m_begin).isSpace())
            ++m_begin;
        while (m_begin < m_end && m_line.at(m_end - 1).isSpace())
            --m_end;
    }

    QStringView m_line;
    qsizetype m_begin = 0;
    qsizetype m_end;
    Separator_Finder m_bells;
    Separator_Finder m_vertical_tabs;
    QStringView m_number;
    QStringView m_message;
    QStringView m_date;
};

} // namespace

QByteArray Sent_Item_Format::Line(const Sent_Item& item)
{
    return Stored_Line(Before_Number_And_Date + item.Number + Before_Message_And_Status + item.Message +
                       Before_Number_And_Date + item.Date + Before_Message_And_Status);
}

QByteArray Sent_Item_Format::Lines(const QList<Sent_Item>& items)
{
    QByteArray lines;
    for (const auto& item : items)
        lines.append(Line(item));
    return lines;
}

std::optional<Sent_Item> Sent_Item_Format::Record(const QString& number, const QString& message, const QString& date,
                                                  const QString& status)
{
    const QString trimmed_number = number.trimmed();
    if (trimmed_number.isEmpty())
        return std::nullopt;
    return Sent_Item{trimmed_number, message, date, status};
}

void Sent_Item_Format::Read(const QString& text, const std::function<void(Sent_Item)>& take)
{
    for (const QStringView stored_line : QStringView(text).tokenize(u'\n')) {
        const QString line = With_Line_Breaks(stored_line);
        Line_Reader reader(line);
        while (!reader.Is_At_End()) {
            if (auto record = reader.Next())
                take(std::move(*record));
        }
    }
}
