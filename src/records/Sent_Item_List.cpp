#include "records/Sent_Item_List.h"

#include "platform/Text_Files.h"
#include "records/Sent_Item_Format.h"
#include "records/Shared_Rows.h"
#include "records/Stored_Text.h"

#include <cstring>
#include <optional>
#include <utility>

namespace {

constexpr quint32 Own_Item = 0x8000'0000;

// A longer line is taken apart once rather than each time a cell of it is painted.
constexpr qsizetype Longest_Line = 64 * 1024;

// The fields of a line whose separators divide it as they should: four of them, each once and in order.
struct Plain_Line
{
    QByteArrayView number;
    QByteArrayView message;
    QByteArrayView date;
    QByteArrayView status;
};

qsizetype Place_Of(char byte, QByteArrayView line, qsizetype begin)
{
    const auto size = static_cast<std::size_t>(line.size() - begin);
    const void* found = std::memchr(line.data() + begin, byte, size);
    return found ? static_cast<const char*>(found) - line.data() : line.size();
}

bool Has(char byte, QByteArrayView field)
{
    return Place_Of(byte, field, 0) < field.size();
}

std::optional<Plain_Line> Plain(QByteArrayView line)
{
    constexpr char bell = '\a';
    constexpr char tab = '\v';
    if (line.isEmpty() || line.front() != bell)
        return std::nullopt;
    const qsizetype first_tab = Place_Of(tab, line, 1);
    const qsizetype second_bell = Place_Of(bell, line, 1);
    if (second_bell <= first_tab || second_bell == line.size())
        return std::nullopt;
    const qsizetype second_tab = Place_Of(tab, line, first_tab + 1);
    if (second_tab <= second_bell || second_tab == line.size())
        return std::nullopt;
    const QByteArrayView status = line.sliced(second_tab + 1);
    if (Has(bell, line.sliced(second_bell + 1)) || Has(tab, status))
        return std::nullopt;
    return Plain_Line{line.sliced(1, first_tab - 1), line.sliced(first_tab + 1, second_bell - first_tab - 1),
                      line.sliced(second_bell + 1, second_tab - second_bell - 1), status};
}

// Decodes part of bytes that are UTF-8 as a whole, cut at single-byte characters.
QString Decoded(QByteArrayView bytes)
{
    return Decode_Utf8(QByteArray::fromRawData(bytes.data(), bytes.size())).value_or(QString());
}

QString Field(QByteArrayView bytes)
{
    return With_Line_Breaks(Decoded(bytes));
}

Sent_Item Item_Of(const Plain_Line& line)
{
    return {Field(line.number).trimmed(), Field(line.message), Field(line.date), Field(line.status).trimmed()};
}

// Neither white space nor part of a line-break token.
bool Is_Sure(char byte)
{
    return (byte >= '0' && byte <= '9') || byte == '+';
}

bool Has_Number(const Plain_Line& line)
{
    return !line.number.isEmpty() && (Is_Sure(line.number.front()) || !Field(line.number).trimmed().isEmpty());
}

// Whether writing the line's record would reproduce the line.
bool Is_As_Written(const Plain_Line& line)
{
    return Is_Sure(line.number.front()) && Is_Sure(line.number.back()) && line.status.isEmpty();
}

} // namespace

Sent_Item_List Sent_Item_List::Read(const QByteArray& file, qsizetype early_count,
                                    const std::function<void(const Sent_Item_List&)>& early)
{
    Sent_Item_List list;
    list.m_file = file;
    bool is_early = early_count > 0;
    for (qsizetype begin = 0; begin < file.size();) {
        const qsizetype end = Place_Of('\n', file, begin);
        list.Take_Line(begin, end);
        begin = end + 1;
        if (is_early && list.size() >= early_count) {
            is_early = false;
            Sent_Item_List first = list;
            first.m_rows.resize(early_count); // the line may have held more than one
            early(first);
        }
    }
    return list;
}

void Sent_Item_List::Take_Line(qsizetype begin, qsizetype end)
{
    const QByteArrayView line = QByteArrayView(m_file).sliced(begin, end - begin);
    const auto plain = Plain(line);
    if (!plain || line.size() > Longest_Line)
        Sent_Item_Format::Read(Decoded(line), [this](Sent_Item item) { append(std::move(item)); });
    else if (Has_Number(*plain))
        m_rows.append(static_cast<quint32>(begin));
}

// The line without its end.
QByteArrayView Sent_Item_List::Line_At(quint32 begin) const
{
    return QByteArrayView(m_file).sliced(begin, Place_Of('\n', m_file, begin) - begin);
}

Sent_Item Sent_Item_List::at(qsizetype row) const
{
    const quint32 place = m_rows.at(row);
    return place & Own_Item ? m_items.at(place & ~Own_Item) : Item_Of(*Plain(Line_At(place)));
}

void Sent_Item_List::append(Sent_Item item)
{
    m_rows.append(static_cast<quint32>(m_items.size()) | Own_Item);
    m_items.append(std::move(item));
}

Sent_Item_List Rows_Without(const Sent_Item_List& list, const std::vector<int>& removed)
{
    Sent_Item_List left;
    left.m_rows = Rows_Without(list.m_rows, removed);
    if (!left.m_rows.isEmpty()) {
        left.m_file = list.m_file;
        left.m_items = list.m_items;
    }
    return left;
}

QByteArray Sent_Item_List::Lines() const
{
    QByteArray lines;
    qsizetype run = 0; // lines of the file to be copied in one go
    qsizetype run_end = 0;
    const auto copy_run = [&] { lines.append(QByteArrayView(m_file).sliced(run, run_end - run)); };
    for (const quint32 place : m_rows) {
        if (place & Own_Item) {
            copy_run();
            run = run_end;
            lines.append(Sent_Item_Format::Line(m_items.at(place & ~Own_Item)));
            continue;
        }
        const QByteArrayView line = Line_At(place);
        const auto plain = Plain(line);
        const bool is_whole = place + line.size() < m_file.size(); // and not a last one without its end
        const bool is_as_written = is_whole && Is_As_Written(*plain);
        if (!is_as_written || place != run_end) {
            copy_run();
            run = run_end = place;
        }
        if (is_as_written)
            run_end = place + line.size() + 1;
        else
            lines.append(Sent_Item_Format::Line(Item_Of(*plain)));
    }
    if (lines.isEmpty() && run == 0 && run_end == m_file.size())
        return m_file;
    copy_run();
    return lines;
}
