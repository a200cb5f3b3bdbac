#include "send/Inputs.h"

#include "engine/Composer_Rules.h"
#include "handset/Address.h"
#include "list/Message_Filling.h"
#include "list/Number_File.h"
#include "list/Number_List.h"
#include "list/Number_Rules.h"
#include "list/Written_Number.h"
#include "platform/String_Helpers.h"
#include "send/Input_Files.h"

namespace {

constexpr qsizetype Longest_Shown = 100; // of a line that is no number, in characters

/// Passes on each line without its end.
template <typename Take>
void For_Each_Line(const QString& text, Take take)
{
    for (qsizetype begin = 0; begin <= text.size();) {
        const qsizetype line_end = text.indexOf(u'\n', begin);
        const qsizetype end = line_end < 0 ? text.size() : line_end;
        take(QStringView(text).mid(begin, end - begin));
        begin = end + 1;
    }
}

// Half of a pair at the cut would be no character.
QString Beginning_Of(QStringView line)
{
    QString beginning = Trim_Str(line.left(Longest_Shown).toString());
    if (!beginning.isEmpty() && beginning.back().isHighSurrogate())
        beginning.chop(1);
    return beginning;
}

bool Can_Be_Dialled(const QString& number)
{
    return !number.isEmpty() &&
           Handset::Fault_Of(Handset::Destination_Of(number.toStdString())) == Handset::Address_Fault::None;
}

class Input_Reader
{
public:
    explicit Input_Reader(const Arguments& arguments) : m_arguments(arguments) {}

    Inputs Read()
    {
        Read_Message();
        for (const QString& path : m_arguments.exclude_files)
            Read_Exclusions(path);
        for (const QString& number : m_arguments.numbers)
            Add_Plain(Number_Rules::Normalised_Number(number), number);
        Read_Numbers();
        Read_Table_Rows();
        const QString& path = m_arguments.table_file.isEmpty() ? m_arguments.numbers_file : m_arguments.table_file;
        if (!m_inputs.trouble && m_inputs.rows.empty())
            m_inputs.trouble = {QStringLiteral("there are no recipients"), path + QStringLiteral(" holds no numbers")};
        return std::move(m_inputs);
    }

private:
    QString Take(const Input_Text& input)
    {
        if (!m_inputs.trouble)
            m_inputs.trouble = input.trouble;
        return input.text;
    }

    void Read_Message()
    {
        const QString& path = m_arguments.message_file;
        const QString message = path.isEmpty() ? m_arguments.message : Take(Read_Message_File(path));
        if (message.isEmpty() && !m_inputs.trouble)
            m_inputs.trouble = {QStringLiteral("there is no message"), path + QStringLiteral(" is empty")};
        m_message = message;
        m_filled = Message_Filling(message).Without_Values();
    }

    void Read_Exclusions(const QString& path)
    {
        Number_List one; // gives the text of a packed number
        For_Each_Line(Take(Read_Numbers_File(path)), [&](QStringView line) {
            one.Clear();
            one.Append(Number_In_Line(line));
            if (const QString number = Of_Country(one.At(0), line).number; !number.isEmpty())
                m_excluded.Append(number);
        });
    }

    void Read_Numbers()
    {
        if (m_arguments.numbers_file.isEmpty() || m_inputs.trouble)
            return;
        Number_List one;
        For_Each_Line(Take(Read_Numbers_File(m_arguments.numbers_file)), [&](QStringView line) {
            if (Is_Blank_Line(line))
                return;
            one.Clear();
            one.Append(Number_In_Line(line));
            Add_Plain(one.At(0), line);
        });
    }

    void Read_Table_Rows()
    {
        if (m_arguments.table_file.isEmpty() || m_inputs.trouble)
            return;
        const Table_Input input = Read_Table_Input(m_arguments);
        const Message_Filling filling(m_message, input.table);
        m_inputs.trouble = input.trouble;
        if (!m_inputs.trouble && !filling.Ambiguous().isEmpty())
            m_inputs.trouble = {filling.Ambiguous() + QStringLiteral(" could stand for several columns"),
                                m_arguments.table_file + QStringLiteral(" has more than one of this name")};
        if (m_inputs.trouble)
            return;
        m_inputs.table = input.told;
        for (int row = 0; row < input.table.Row_Count(); ++row) {
            const QString written = input.table.Field(row, input.number_column);
            Planned_Row planned =
                Judged(Number_As_Written(written, m_arguments.country), written, filling.For_Row(input.table, row));
            if (const QString trouble = input.table.Words_For_Trouble(row); !trouble.isEmpty()) {
                planned.skipped = QLatin1String(Skip_Words::Wrong_Columns);
                planned.note = trouble;
            }
            Add(std::move(planned));
        }
    }

    // A number of a plain list, as the desktop program reads it; with a country by the rules of tables.
    Read_Number Of_Country(const QString& number, QStringView as_written) const
    {
        if (!m_arguments.country)
            return {number, Number_Reading::As_Written};
        constexpr QStringView passed_over = u"\\{}";
        QString kept;
        for (const QChar character : as_written.left(Longest_Shown + 1))
            if (!passed_over.contains(character))
                kept += character;
        return Number_As_Written(kept, m_arguments.country);
    }

    void Add_Plain(const QString& number, QStringView as_written)
    {
        Add(Judged(Of_Country(number, as_written), as_written, m_filled));
    }

    Planned_Row Judged(const Read_Number& read, QStringView as_written, const Filled_Message& filled) const
    {
        Planned_Row row;
        row.text = filled.text;
        row.number = read.number.isEmpty() ? Beginning_Of(as_written) : read.number;
        row.note = Words_For_Reading(read.reading, m_arguments.country);
        if (row.number.isEmpty()) // blanks alone
            row.number = QStringLiteral("-");
        if (!Can_Be_Dialled(read.number))
            row.skipped = QLatin1String(Skip_Words::Invalid_Number);
        else if (m_excluded.Contains(read.number))
            row.skipped = QLatin1String(Skip_Words::Excluded);
        else if (!filled.fault.isEmpty())
            row.skipped = filled.fault;
        else if (row.text.isEmpty())
            row.skipped = QLatin1String(Skip_Words::Empty_Field);
        else if (row.text.size() > Composer_Rules::Most_Characters)
            row.skipped = QLatin1String(Skip_Words::Too_Long);
        return row;
    }

    void Add(Planned_Row row)
    {
        row.row = static_cast<int>(m_inputs.rows.size()) + 1;
        if (row.Is_To_Be_Sent() && m_arguments.skip_duplicates) {
            if (m_to_be_sent.Contains(row.number))
                row.skipped = QLatin1String(Skip_Words::Duplicate);
            else
                m_to_be_sent.Append(row.number);
        }
        m_inputs.rows.push_back(std::move(row));
    }

    const Arguments& m_arguments;
    Inputs m_inputs;
    QString m_message;
    Filled_Message m_filled; // for recipients without values
    Number_List m_excluded;
    Number_List m_to_be_sent;
};

} // namespace

Inputs Read_Inputs(const Arguments& arguments)
{
    return Input_Reader(arguments).Read();
}
