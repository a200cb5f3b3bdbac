#include "send/Inputs.h"

#include "engine/Composer_Rules.h"
#include "handset/Address.h"
#include "list/Number_File.h"
#include "list/Number_List.h"
#include "list/Number_Rules.h"
#include "platform/String_Helpers.h"
#include "send/Input_Files.h"
#include "send/Message_Filling.h"

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
            Add(Number_Rules::Normalised_Number(number), number);
        Read_Numbers();
        if (!m_inputs.trouble && m_inputs.rows.empty())
            m_inputs.trouble = {QStringLiteral("there are no recipients"),
                                m_arguments.numbers_file + QStringLiteral(" holds no numbers")};
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
        const Filled_Message filled = Fill_Message(message);
        m_text = filled.text;
        if (!filled.is_complete)
            m_fault_of_text = QLatin1String(Skip_Words::Unknown_Field);
        else if (m_text.isEmpty())
            m_fault_of_text = QLatin1String(Skip_Words::Empty_Field);
        else if (m_text.size() > Composer_Rules::Most_Characters)
            m_fault_of_text = QLatin1String(Skip_Words::Too_Long);
    }

    void Read_Exclusions(const QString& path)
    {
        For_Each_Line(Take(Read_Numbers_File(path)), [this](QStringView line) {
            if (const Packed_Number number = Number_In_Line(line); !number.Is_Empty())
                m_excluded.Append(number);
        });
    }

    void Read_Numbers()
    {
        if (m_arguments.numbers_file.isEmpty() || m_inputs.trouble)
            return;
        Number_List one; // gives the text of a packed number
        For_Each_Line(Take(Read_Numbers_File(m_arguments.numbers_file)), [&](QStringView line) {
            if (Is_Blank_Line(line))
                return;
            one.Clear();
            one.Append(Number_In_Line(line));
            Add(one.At(0), line);
        });
    }

    void Add(const QString& number, QStringView as_written)
    {
        Planned_Row row;
        row.row = static_cast<int>(m_inputs.rows.size()) + 1;
        row.text = m_text;
        row.number = number.isEmpty() ? Beginning_Of(as_written) : number;
        if (row.number.isEmpty()) // blanks alone
            row.number = QStringLiteral("-");
        if (!Can_Be_Dialled(number))
            row.skipped = QLatin1String(Skip_Words::Invalid_Number);
        else if (m_excluded.Contains(number))
            row.skipped = QLatin1String(Skip_Words::Excluded);
        else if (!m_fault_of_text.isEmpty())
            row.skipped = m_fault_of_text;
        else if (m_arguments.skip_duplicates && m_to_be_sent.Contains(number))
            row.skipped = QLatin1String(Skip_Words::Duplicate);
        if (row.Is_To_Be_Sent() && m_arguments.skip_duplicates)
            m_to_be_sent.Append(number);
        m_inputs.rows.push_back(std::move(row));
    }

    const Arguments& m_arguments;
    Inputs m_inputs;
    QString m_text;
    QString m_fault_of_text;
    Number_List m_excluded;
    Number_List m_to_be_sent;
};

} // namespace

Inputs Read_Inputs(const Arguments& arguments)
{
    return Input_Reader(arguments).Read();
}
