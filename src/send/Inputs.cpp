#include "send/Inputs.h"

#include "list/Table_Builder.h"
#include "plan/Job_Plan.h"
#include "send/Input_Files.h"

namespace {

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

// Numbers one below another, as a table of one column.
class Number_Lines
{
public:
    Number_Lines() { Add(u"Number"); }

    void Add(QStringView line)
    {
        m_builder.Add_Field(line.toUtf8());
        m_builder.End_Row(m_row++);
    }
    std::shared_ptr<const Contact_Table> Take() { return std::make_shared<const Contact_Table>(m_builder.Take()); }

private:
    Table_Builder m_builder{0, true, Table_Builder::Blank_Rows::Kept};
    int m_row = 0;
};

class Input_Reader
{
public:
    explicit Input_Reader(const Arguments& arguments) : m_arguments(arguments)
    {
        m_terms.manner = arguments.Manner();
        m_terms.skip_duplicates = arguments.skip_duplicates;
        m_terms.country = arguments.country;
    }

    Inputs Read()
    {
        Read_Message();
        for (const QString& path : m_arguments.exclude_files)
            Read_Exclusions(path);
        Read_Typed_Numbers();
        Read_Numbers();
        Read_Table_Rows();
        const QString& path = m_arguments.table_file.isEmpty() ? m_arguments.numbers_file : m_arguments.table_file;
        if (!m_inputs.trouble && m_inputs.rows.empty())
            m_inputs.trouble = {QStringLiteral("there are no recipients"), path + QStringLiteral(" holds no numbers")};
        m_inputs.sums = m_counter.Sums(m_terms.manner);
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
        m_message = path.isEmpty() ? m_arguments.message : Take(Read_Message_File(path));
        if (m_message.isEmpty() && !m_inputs.trouble)
            m_inputs.trouble = {QStringLiteral("there is no message"), path + QStringLiteral(" is empty")};
    }

    void Read_Exclusions(const QString& path)
    {
        For_Each_Line(Take(Read_Numbers_File(path)), [&](QStringView line) {
            const QString number = Number_Of_Input(line, Plan_Numbers::On_A_Line, m_arguments.country).number;
            if (!number.isEmpty())
                m_terms.excluded.Append(number);
        });
    }

    void Read_Typed_Numbers()
    {
        Number_Lines lines;
        for (const QString& number : m_arguments.numbers)
            lines.Add(number);
        Add(lines.Take(), 0, Plan_Numbers::Typed);
    }

    void Read_Numbers()
    {
        if (m_arguments.numbers_file.isEmpty() || m_inputs.trouble)
            return;
        Number_Lines lines;
        For_Each_Line(Take(Read_Numbers_File(m_arguments.numbers_file)), [&](QStringView line) {
            if (!Is_Blank_Line(line))
                lines.Add(line);
        });
        Add(lines.Take(), 0, Plan_Numbers::On_A_Line);
    }

    void Read_Table_Rows()
    {
        if (m_arguments.table_file.isEmpty() || m_inputs.trouble)
            return;
        Table_Input input = Read_Table_Input(m_arguments);
        const Message_Filling filling(m_message, input.table);
        m_inputs.trouble = input.trouble;
        if (!m_inputs.trouble && !filling.Ambiguous().isEmpty())
            m_inputs.trouble = {filling.Ambiguous() + QStringLiteral(" could stand for several columns"),
                                m_arguments.table_file + QStringLiteral(" has more than one of this name")};
        if (m_inputs.trouble)
            return;
        m_inputs.table = input.told;
        Add(std::make_shared<const Contact_Table>(std::move(input.table)), input.number_column,
            Plan_Numbers::In_A_Table);
    }

    void Add(const std::shared_ptr<const Contact_Table>& table, int number_column, Plan_Numbers numbers)
    {
        m_terms.numbers = numbers;
        const Job_Plan plan = Job_Plan::Of_Table(table, number_column, m_message, m_terms);
        for (int row = 0; row < plan.Count(); ++row) {
            Planned_Row planned = plan.At(row);
            planned.row = static_cast<int>(m_inputs.rows.size()) + 1;
            if (m_terms.skip_duplicates && planned.Is_To_Be_Sent())
                m_terms.present.Append(planned.number);
            m_counter.Add(planned.row, plan.Verdict_Of(row), plan.Parts_Of(row), plan.Is_Unicode(row));
            m_inputs.parts.push_back(plan.Parts_Of(row));
            m_inputs.rows.push_back(std::move(planned));
        }
    }

    const Arguments& m_arguments;
    Inputs m_inputs;
    QString m_message;
    Plan_Terms m_terms;
    Plan_Counter m_counter;
};

} // namespace

Inputs Read_Inputs(const Arguments& arguments)
{
    return Input_Reader(arguments).Read();
}
