#include "send/Arguments.h"

#include "handset/Address.h"
#include "list/Delimited_Text.h"

#include <QCommandLineParser>
#include <array>
#include <limits>
#include <optional>

namespace {

using Task = Arguments::Task;

struct Option
{
    const char* name;
    const char* value = ""; ///< its name; empty for an option without one
    bool may_repeat = false;
};

constexpr std::array Options{
    Option{"to", "NUMBER", true},
    Option{"numbers", "FILE"},
    Option{"table", "FILE"},
    Option{"number-column", "NAME"},
    Option{"sheet", "NAME"},
    Option{"encoding", "NAME"},
    Option{"delimiter", "CHARACTER"},
    Option{"country", "CC"},
    Option{"message", "TEXT"},
    Option{"message-file", "FILE"},
    Option{"alphabet", "NAME"},
    Option{"flash"},
    Option{"skip-duplicates"},
    Option{"exclude", "FILE", true},
    Option{"device", "PATH", true},
    Option{"service-centre", "NUMBER"},
    Option{"confirm"},
    Option{"fixed-waits"},
    Option{"reports", "SECONDS"},
    Option{"batch", "N"},
    Option{"pause", "SECONDS"},
    Option{"dry-run"},
    Option{"hand-over", "DIR"},
    Option{"journal", "DIR"},
    Option{"no-journal"},
    Option{"resume", "JOB"},
    Option{"again-unknown"},
    Option{"list-jobs"},
    Option{"hold", "SECONDS"},
    Option{"keep"},
    Option{"doctor"},
    Option{"json"},
    Option{"version"},
    Option{"help"},
};

constexpr char Seconds_Of_Reports[] = "60"; // where none are given
constexpr char Usage[] = "the arguments are not understood";

QString Dashed(const char* name)
{
    return QLatin1String("--") + QLatin1String(name);
}

const Option* Option_Named(const QString& dashed)
{
    const auto option =
        std::find_if(Options.begin(), Options.end(), [&](const Option& each) { return dashed == Dashed(each.name); });
    return option == Options.end() ? nullptr : &*option;
}

// The parser knows no value that may be missing.
QStringList With_Every_Value(QStringList arguments)
{
    for (qsizetype i = 1; i < arguments.size() && arguments[i] != QLatin1String("--"); ++i) {
        const Option* option = Option_Named(arguments[i]);
        if (option && arguments[i] == QLatin1String("--reports"))
            arguments[i] += QLatin1Char('=') + QLatin1String(Seconds_Of_Reports);
        else if (option && *option->value)
            ++i;
    }
    return arguments;
}

class Reader
{
public:
    Read_Arguments_Result Read(const QStringList& arguments);

private:
    bool Is_Set(const char* name) const { return m_parser.isSet(QLatin1String(name)); }
    QString Value(const char* name) const { return m_parser.value(QLatin1String(name)); }
    void Complain(const QString& why) { Complain(QLatin1String(Usage), why); }
    void Complain(const QString& what, const QString& why);
    void Parse(const QStringList& arguments);
    void Check_Repeats();
    void Refuse_Together(const char* name, std::initializer_list<const char*> others);
    int Whole_Number(const char* name, int least, int otherwise);

    void Choose_Task();
    void Check_What_Goes_Together();
    void Refuse_What_Sends_With_Doctor();
    void Read_Input();
    void Read_Table_Choices();
    void Read_Country();
    void Read_Manner();
    void Read_Journal();
    void Read_Alphabet();
    void Check_Centre();

    QCommandLineParser m_parser;
    Arguments m_result;
    Trouble m_trouble;
};

Read_Arguments_Result Reader::Read(const QStringList& arguments)
{
    Parse(arguments);
    if (m_trouble)
        return {m_result, m_trouble};
    Choose_Task();
    m_result.json = Is_Set("json");
    if (m_result.task == Task::Show_Help || m_result.task == Task::Show_Version)
        return {m_result, {}};
    Check_Repeats();
    Check_What_Goes_Together();
    Read_Manner();
    Read_Journal();
    Read_Input();
    return {m_result, m_trouble};
}

// The first one counts.
void Reader::Complain(const QString& what, const QString& why)
{
    if (!m_trouble)
        m_trouble = {what, why};
}

void Reader::Parse(const QStringList& arguments)
{
    for (const Option& option : Options)
        m_parser.addOption({QLatin1String(option.name), QString(), QLatin1String(option.value)});
    if (!m_parser.parse(With_Every_Value(arguments)))
        Complain(m_parser.errorText().remove(QLatin1Char('.')) + QLatin1String("; --help shows the options"));
    else if (!m_parser.positionalArguments().isEmpty())
        Complain(QStringLiteral("\"%1\" belongs to no option").arg(m_parser.positionalArguments().constFirst()));
}

void Reader::Check_Repeats()
{
    for (const Option& option : Options) {
        const QStringList values = m_parser.values(QLatin1String(option.name));
        if (values.size() > 1 && !option.may_repeat)
            Complain(Dashed(option.name) + QLatin1String(" is given more than once"));
        if (*option.value && values.contains(QString()))
            Complain(Dashed(option.name) + QLatin1String(" is given without a value"));
    }
}

void Reader::Refuse_Together(const char* name, std::initializer_list<const char*> others)
{
    for (const char* other : others)
        if (Is_Set(name) && Is_Set(other))
            Complain(Dashed(name) + QLatin1String(" and ") + Dashed(other) + QLatin1String(" exclude each other"));
}

int Reader::Whole_Number(const char* name, int least, int otherwise)
{
    if (!Is_Set(name))
        return otherwise;
    bool is_number = false;
    const int number = Value(name).toInt(&is_number);
    if (!is_number || number < least)
        Complain(QStringLiteral("%1 takes a whole number of at least %2, not \"%3\"")
                     .arg(Dashed(name), QString::number(least), Value(name)));
    return number;
}

void Reader::Choose_Task()
{
    struct Choice
    {
        const char* name;
        Task task;
    };
    for (const Choice& choice : {Choice{"help", Task::Show_Help},
                                 {"version", Task::Show_Version},
                                 {"doctor", Task::Doctor},
                                 {"list-jobs", Task::List_Jobs},
                                 {"resume", Task::Resume},
                                 {"hand-over", Task::Hand_Over},
                                 {"dry-run", Task::Dry_Run}}) {
        if (Is_Set(choice.name)) {
            m_result.task = choice.task;
            return;
        }
    }
}

void Reader::Check_What_Goes_Together()
{
    Refuse_Together("confirm", {"fixed-waits"});
    Refuse_Together("fixed-waits", {"reports"});
    Refuse_Together("message", {"message-file"});
    Refuse_Together("journal", {"no-journal"});
    Refuse_Together("dry-run", {"hand-over", "resume", "list-jobs"});
    Refuse_Together("hand-over", {"resume", "list-jobs"});
    // What a job is made of was settled when it began.
    Refuse_Together("resume", {"to", "numbers", "table", "country", "message", "message-file", "alphabet", "flash",
                               "skip-duplicates", "exclude", "service-centre", "fixed-waits", "reports", "batch",
                               "pause", "no-journal", "list-jobs"});
    Refuse_Together("list-jobs", {"to", "numbers", "table", "country", "message", "message-file", "no-journal"});
    Refuse_What_Sends_With_Doctor();
    if (Is_Set("again-unknown") && !Is_Set("resume"))
        Complain(QStringLiteral("--again-unknown goes with --resume"));
    for (const char* name : {"number-column", "sheet", "encoding", "delimiter"})
        if (Is_Set(name) && !Is_Set("table"))
            Complain(Dashed(name) + QLatin1String(" goes with --table"));
    if (Is_Set("batch") != Is_Set("pause"))
        Complain(QStringLiteral("--batch and --pause go together"));
}

// It is a look at devices, and takes none of the options for messages.
void Reader::Refuse_What_Sends_With_Doctor()
{
    for (const Option& option : Options)
        if (const QString name = QLatin1String(option.name);
            name != QLatin1String("doctor") && name != QLatin1String("device") && name != QLatin1String("json"))
            Refuse_Together("doctor", {option.name});
}

void Reader::Read_Manner()
{
    m_result.fixed_waits = Is_Set("fixed-waits");
    m_result.report_seconds = Whole_Number("reports", 0, -1);
    m_result.batch = Whole_Number("batch", 1, 0);
    m_result.pause_seconds = Whole_Number("pause", 0, 0);
    m_result.hold_seconds = Whole_Number("hold", 0, m_result.hold_seconds);
    m_result.devices = m_parser.values(QStringLiteral("device"));
    m_result.devices.removeDuplicates();
    m_result.service_centre = Value("service-centre");
    m_result.flash = Is_Set("flash");
    Check_Centre();
    Read_Alphabet();
}

void Reader::Check_Centre()
{
    const auto centre = Handset::Destination_Of(m_result.service_centre.toStdString());
    if (Is_Set("service-centre") && Handset::Fault_Of(centre) != Handset::Address_Fault::None)
        Complain(QStringLiteral("\"%1\" cannot be a service centre").arg(m_result.service_centre),
                 QStringLiteral("it takes up to 20 digits, with + in front for an international number"));
}

void Reader::Read_Alphabet()
{
    const QString name = Value("alphabet");
    if (name == QLatin1String("gsm") || (!Is_Set("alphabet") && m_result.fixed_waits))
        m_result.alphabet = Job_Alphabet_Choice::Gsm;
    else if (name == QLatin1String("unicode"))
        m_result.alphabet = Job_Alphabet_Choice::Unicode;
    else if (m_result.fixed_waits)
        Complain(QStringLiteral("with --fixed-waits, --alphabet takes gsm or unicode, not \"%1\"").arg(name));
    else if (Is_Set("alphabet") && name != QLatin1String("auto"))
        Complain(QStringLiteral("--alphabet takes auto, gsm or unicode, not \"%1\"").arg(name));
}

void Reader::Read_Journal()
{
    m_result.hand_over_folder = Value("hand-over");
    m_result.journal_folder = Value("journal");
    m_result.keeps_no_journal = Is_Set("no-journal");
    m_result.keeps_journal = Is_Set("keep");
    m_result.job = Value("resume");
    m_result.sends_unknown = Is_Set("again-unknown");
}

void Reader::Read_Input()
{
    m_result.numbers = m_parser.values(QStringLiteral("to"));
    m_result.numbers_file = Value("numbers");
    m_result.message = Value("message");
    m_result.message_file = Value("message-file");
    m_result.exclude_files = m_parser.values(QStringLiteral("exclude"));
    m_result.skip_duplicates = Is_Set("skip-duplicates");
    Read_Table_Choices();
    Read_Country();
    if (m_result.task == Task::Resume || m_result.task == Task::List_Jobs || m_result.task == Task::Doctor)
        return;
    if (m_result.numbers.isEmpty() && m_result.numbers_file.isEmpty() && m_result.table_file.isEmpty())
        Complain(QStringLiteral("there are no recipients"), QStringLiteral("--to, --numbers or --table names them"));
    if (m_result.message_file.isEmpty() && m_result.message.isEmpty())
        Complain(QStringLiteral("there is no message"), QStringLiteral("--message or --message-file gives it"));
}

void Reader::Read_Table_Choices()
{
    m_result.table_file = Value("table");
    m_result.number_column = Value("number-column");
    m_result.table_choices.sheet = Value("sheet");
    m_result.table_choices.encoding = Value("encoding");
    QString delimiter = Value("delimiter");
    if (delimiter == QLatin1String("tab") || delimiter == QLatin1String("\\t"))
        delimiter = QStringLiteral("\t");
    if (delimiter.size() == 1 && Can_Be_Delimiter(delimiter.front()))
        m_result.table_choices.delimiter = delimiter.front().toLatin1();
    else if (Is_Set("delimiter"))
        Complain(QStringLiteral("--delimiter takes one character, such as ; or tab, not \"%1\"").arg(delimiter));
}

void Reader::Read_Country()
{
    m_result.country = Country_With_Letters(Value("country"));
    if (Is_Set("country") && !m_result.country)
        Complain(QStringLiteral("--country takes the two letters of a country, such as GB, not \"%1\"")
                     .arg(Value("country")));
}

} // namespace

Read_Arguments_Result Read_Arguments(const QStringList& arguments)
{
    return Reader().Read(arguments);
}

Plan_Manner Arguments::Manner() const
{
    return {
        fixed_waits, alphabet, flash, report_seconds >= 0, service_centre, batch, static_cast<double>(pause_seconds)};
}
