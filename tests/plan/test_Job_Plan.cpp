#include "engine/Send_Order.h"
#include "list/Table_File.h"
#include "plan/Job_Plan.h"
#include "plan/Plan_Time.h"
#include "plan/Row_Preview.h"

#include <gmock/gmock.h>
#include <random>

using testing::ElementsAre;

namespace {

using Shared_Table = std::shared_ptr<const Contact_Table>;

Shared_Table Table_Of(const QByteArray& csv)
{
    const Table_In_A_File file = Table_Of_Bytes(csv, QStringLiteral("a.csv"), {});
    EXPECT_EQ(file.trouble, "");
    return std::make_shared<const Contact_Table>(file.table);
}

std::string Word_For(Row_Verdict verdict)
{
    return verdict == Row_Verdict::Send ? "send" : std::string(Skip_Word_For(verdict).latin1());
}

std::vector<std::string> Verdicts_Of(const Job_Plan& plan)
{
    std::vector<std::string> verdicts;
    for (int row = 0; row < plan.Count(); ++row)
        verdicts.push_back(Word_For(plan.Verdict_Of(row)));
    return verdicts;
}

std::string Reason_Of(const Job_Plan& plan, int row)
{
    return plan.Reason_Of(row).toStdString();
}

Plan_Terms Terms(bool skip_duplicates = false)
{
    Plan_Terms terms;
    terms.skip_duplicates = skip_duplicates;
    return terms;
}

// A list of a few people, each of whom is another case.
class Job_Plan_Of_A_Table : public testing::Test
{
protected:
    Job_Plan_Of_A_Table()
    {
        m_terms = Terms(true);
        m_terms.country = Country_With_Letters(u"GB");
        m_terms.excluded.Append(QStringLiteral("00447700900104"));
        m_plan = Job_Plan::Of_Table(m_table, 0, QStringLiteral("Hi {{Name}}{{Note|}}"), m_terms);
    }

    Shared_Table m_table = Table_Of("Tel,Name,Note\n"
                                    "07700 900100,Ann,\n"
                                    "+44 7700 900101,Bob,!\n"
                                    "nobody,Cem,\n"
                                    "07700900104,Dee,\n"
                                    "07700900105, ,\n"
                                    "07700900100,Eve,\n"
                                    "07700900106,Fay,too,many\n"
                                    "7700900107,Zo\xC3\xAB \xE4\xB8\xAD,\xF0\x9F\x98\x80\n");
    Plan_Terms m_terms;
    Job_Plan m_plan;
};

} // namespace

TEST_F(Job_Plan_Of_A_Table, Says_What_Becomes_Of_Each_Row_And_Why)
{
    EXPECT_THAT(Verdicts_Of(m_plan), ElementsAre("send", "send", "invalid-number", "excluded", "empty-field",
                                                 "duplicate", "wrong-columns", "send"));
    EXPECT_EQ(Reason_Of(m_plan, 0), "National, taken as one of United Kingdom.");
    EXPECT_EQ(Reason_Of(m_plan, 1), "");
    EXPECT_EQ(Reason_Of(m_plan, 2), "It is no number.");
    EXPECT_EQ(Reason_Of(m_plan, 3), "Its number is in an exclusion list.");
    EXPECT_EQ(Reason_Of(m_plan, 4), "{{Name}} is empty.");
    EXPECT_EQ(Reason_Of(m_plan, 5), "An earlier row has its number.");
    EXPECT_EQ(Reason_Of(m_plan, 6), "4 fields where 3 have names.");
    EXPECT_EQ(m_plan.Number_Of(0), "00447700900100");
    EXPECT_EQ(m_plan.Number_Of(2), "");
    EXPECT_EQ(m_plan.Written_Number(0), "07700 900100");
    EXPECT_EQ(m_plan.Text_Of(1), "Hi Bob!");
    EXPECT_EQ(m_plan.Text_Of(4), "Hi {{Name}}");
    EXPECT_EQ(m_plan.Source_Row(0), 2);
    EXPECT_EQ(m_plan.At(2).number, "nobody");
    EXPECT_EQ(m_plan.At(2).note, "it is no number");
    EXPECT_EQ(m_plan.At(2).row, 3);
}

TEST_F(Job_Plan_Of_A_Table, Is_Added_Up)
{
    const Plan_Sums sums = m_plan.Sums();
    EXPECT_EQ(sums.recipients, 8);
    EXPECT_EQ(sums.send, 3);
    EXPECT_EQ(sums.parts, 3);
    EXPECT_EQ(sums.unicode, 1);
    EXPECT_EQ(sums.Of(Row_Verdict::Duplicate), 1);
    EXPECT_EQ(sums.Of(Row_Verdict::Send), 3);
    EXPECT_EQ(sums.seconds, 12);
    EXPECT_THAT(sums.causes, ElementsAre(Unicode_Cause{U'ë', 1}, Unicode_Cause{U'中', 1}, Unicode_Cause{U'😀', 1}));
    EXPECT_EQ(sums.longest_row, 0);
}

TEST_F(Job_Plan_Of_A_Table, Adds_Who_Is_To_Be_Sent_To_A_List_With_Fields)
{
    Recipient_List list;
    list.Append(QStringLiteral("1"), QStringLiteral("{{Name|x}}"));
    m_plan.Add_To(list, QStringLiteral("Dear {{Name}}"));
    ASSERT_EQ(list.Count(), 4);
    EXPECT_EQ(list.At(1).Number, "00447700900100");
    EXPECT_EQ(list.Message_At(1), "Dear {{Name}}");
    EXPECT_EQ(list.Text_At(2).text, "Dear Bob");
    EXPECT_EQ(list.Text_At(0).text, "x");
    m_terms.present = list.Numbers();
    const Job_Plan again = Job_Plan::Of_Table(m_table, 0, {}, m_terms);
    EXPECT_THAT(Verdicts_Of(again), ElementsAre("duplicate", "duplicate", "invalid-number", "excluded", "send",
                                                "duplicate", "wrong-columns", "duplicate"));
    EXPECT_EQ(Reason_Of(again, 0), "The list has its number already.");
    Job_Plan::Of_List(list, m_terms).Add_To(list, QStringLiteral("none: all of them are there"));
    EXPECT_EQ(list.Count(), 4);
    m_terms.present = {};
    Recipient_List other;
    Job_Plan::Of_List(list, m_terms).Add_To(other, QStringLiteral("{{Name|-}}"));
    EXPECT_EQ(other.Count(), 4);
    EXPECT_EQ(other.Text_At(2).text, "Bob");
}

TEST_F(Job_Plan_Of_A_Table, A_Message_That_Is_Still_To_Be_Written_Is_In_Order)
{
    const Job_Plan plan = Job_Plan::Of_Table(m_table, 0, {}, m_terms);
    EXPECT_EQ(plan.Verdict_Of(0), Row_Verdict::Send);
    EXPECT_EQ(plan.Parts_Of(0), 1);
    EXPECT_EQ(plan.Text_Of(0), "");
    EXPECT_EQ(Job_Plan::Of_Table(m_table, 0, QStringLiteral("{{Note|}}"), m_terms).Verdict_Of(0),
              Row_Verdict::Empty_Field);
}

TEST_F(Job_Plan_Of_A_Table, Numbers_Are_Put_Right_One_By_One)
{
    m_plan.Set_Number(2, QStringLiteral("07700 900102"));
    EXPECT_EQ(m_plan.Verdict_Of(2), Row_Verdict::Send);
    EXPECT_EQ(m_plan.Number_Of(2), "00447700900102");
    EXPECT_EQ(m_plan.Written_Number(2), "07700 900102");
    EXPECT_EQ(m_plan.Sums().send, 4);
    m_plan.Set_Number(0, QStringLiteral("07700900109")); // of which row 5 was a repeat
    EXPECT_EQ(m_plan.Verdict_Of(5), Row_Verdict::Send);
    m_plan.Set_Number(0, QStringLiteral("+447700900107"));
    EXPECT_EQ(m_plan.Verdict_Of(0), Row_Verdict::Send);
    EXPECT_EQ(m_plan.Verdict_Of(7), Row_Verdict::Duplicate) << "now an earlier row has its number";
    EXPECT_THAT(m_plan.Sums().causes, ElementsAre()) << "the row that needed Unicode is none to be sent";
    m_plan.Set_Number(0, QStringLiteral("07700900104"));
    EXPECT_EQ(m_plan.Verdict_Of(0), Row_Verdict::Excluded);
    EXPECT_EQ(m_plan.Verdict_Of(7), Row_Verdict::Send);
    EXPECT_EQ(m_plan.Sums().causes.size(), 3U);
    m_plan.Set_Number(0, QStringLiteral("?"));
    EXPECT_EQ(m_plan.Verdict_Of(0), Row_Verdict::Invalid_Number);
    EXPECT_EQ(m_plan.At(0).number, "?");
}

TEST(Job_Plan, Lines_Of_A_List_Are_Read_As_An_Import_Reads_Them)
{
    const Shared_Table lines = Table_Of("\"Number\"\n\"0170-{123}\"\n+\n123456789012345678901\n(07700) 900100\n");
    Plan_Terms terms;
    terms.numbers = Plan_Numbers::On_A_Line;
    const Job_Plan plan = Job_Plan::Of_Table(lines, 0, QStringLiteral("{{Number|x}}"), terms);
    EXPECT_THAT(Verdicts_Of(plan), ElementsAre("send", "invalid-number", "invalid-number", "invalid-number"));
    EXPECT_EQ(plan.Number_Of(0), "0170123");
    EXPECT_EQ(plan.Text_Of(0), "x") << "lines have no fields";
    Recipient_List list;
    plan.Add_To(list, QStringLiteral("hello"));
    EXPECT_EQ(list.Count(), 1);
    EXPECT_FALSE(list.Has_Fields());
    terms.country = Country_With_Letters(u"GB");
    EXPECT_EQ(Job_Plan::Of_Table(lines, 0, {}, terms).Number_Of(3), "00447700900100");
}

TEST(Job_Plan, Of_A_List_Is_What_A_Job_Does_With_It)
{
    Recipient_List list;
    list.Append(QStringLiteral("07700900100"), QStringLiteral("{{braces}} are braces"));
    list.Append(QStringLiteral("12,3"), QStringLiteral("hello"));
    list.Append(QStringLiteral("07700900100"), QString(1700, u'x'));
    list.Append(QStringLiteral("07700900101"), {});
    Plan_Terms terms = Terms();
    const Job_Plan judged = Job_Plan::Of_List(list, terms);
    EXPECT_THAT(Verdicts_Of(judged), ElementsAre("send", "invalid-number", "send", "send"));
    EXPECT_EQ(judged.Text_Of(0), "{{braces}} are braces");
    EXPECT_EQ(judged.Text_Of(2).size(), 1600);
    EXPECT_EQ(judged.Parts_Of(2), 11);
    EXPECT_EQ(judged.Sums().median_parts, 1);
    EXPECT_EQ(judged.Sums().longest_row, 2);
    terms.manner.fixed_waits = true;
    terms.manner.alphabet = Job_Alphabet_Choice::Gsm;
    terms.skip_duplicates = true;
    const Job_Plan fixed = Job_Plan::Of_List(list, terms);
    EXPECT_THAT(Verdicts_Of(fixed), ElementsAre("send", "send", "duplicate", "send"));
    EXPECT_EQ(fixed.Number_Of(1), "12,3");
}

TEST(Job_Plan, Of_A_List_Keeps_A_Number_In_Whose_Place_None_Was_Written)
{
    Recipient_List list;
    list.Append(QStringLiteral("07700900100"), QStringLiteral("hello"));
    Job_Plan plan = Job_Plan::Of_List(list, Terms());
    for (const char* nothing : {"", "Ann", "4.477E+11", "00", "0170 1234567 / 0171 1234567"})
        EXPECT_FALSE(plan.Set_Number(0, QString::fromLatin1(nothing))) << nothing;
    EXPECT_EQ(plan.Number_Of(0), "07700900100");
    EXPECT_EQ(plan.Written_Number(0), "07700900100");
    EXPECT_EQ(plan.Verdict_Of(0), Row_Verdict::Send);
    EXPECT_TRUE(plan.Set_Number(0, QStringLiteral(" +44 (0)7700/900-101")));
    EXPECT_EQ(plan.Number_Of(0), "00447700900101");
}

TEST(Job_Plan, Of_A_List_That_No_Job_Has_Yet_Judges_Its_Numbers_In_Either_Manner)
{
    Recipient_List list;
    list.Append(QStringLiteral("07700 900100?"), QStringLiteral("hello"));
    Plan_Terms terms = Terms();
    terms.manner.fixed_waits = true;
    terms.judges_numbers = true;
    EXPECT_THAT(Verdicts_Of(Job_Plan::Of_List(list, terms)), ElementsAre("invalid-number"));
}

TEST(Job_Plan, Can_Be_Stopped_And_Says_How_Far_It_Is)
{
    Recipient_List list;
    for (int row = 0; row < 10'000; ++row)
        list.Append(QString::number(100'000 + row), QStringLiteral("x"));
    std::vector<int> done;
    const Plan_Watch watch{[&](int rows, int of) {
                               EXPECT_EQ(of, 10'000);
                               done.push_back(rows);
                           },
                           [&] { return done.size() == 2; }};
    EXPECT_EQ(Job_Plan::Of_List(list, Terms(), watch).Count(), 8192);
    EXPECT_THAT(done, ElementsAre(0, 4096));
    done.clear();
    EXPECT_EQ(Job_Plan::Of_List(list, Terms(), {watch.progress, {}}).Count(), 10'000);
    EXPECT_EQ(done.back(), 10'000);
}

// ------------------------------------------------------------------------------- against what one would write down

namespace {

std::mt19937& Random()
{
    static std::mt19937 random(20261122);
    return random;
}

int Below(int end)
{
    return static_cast<int>(Random()() % static_cast<unsigned>(end));
}

const char* One_Of(std::initializer_list<const char*> texts)
{
    return texts.begin()[Below(static_cast<int>(texts.size()))];
}

QByteArray Random_Text()
{
    QByteArray text;
    for (int piece = Below(5); piece > 0; --piece)
        text += QByteArray(One_Of({"x", "hello ", "\xE2\x82\xAC", "\xC3\xA4", "{", "\xF0\x9F\x98\x80", "\xC3\xA7", " ",
                                   "\xC2\xA0", "]"}))
                    .repeated(1 + (Below(4) == 0 ? Below(160) : Below(8)));
    return text;
}

Shared_Table Random_Table(int rows)
{
    QByteArray csv = "\"Tel\",\"Name\",\"City\"\n";
    for (int row = 0; row < rows; ++row)
        csv += '"' +
               QByteArray(One_Of({"7700900", "+4477009", "0077009", "x", "", " 7700-900", "07700 900", "(0)44"})) +
               QByteArray::number(Below(20)) + "\",\"" + Random_Text() + "\",\"" + Random_Text() + "\"\n";
    return Table_Of(csv);
}

// Row by row, in words of today's parts: nothing is remembered or added up.
void Expect_As_Written_Down(const Job_Plan& plan, const Plan_Terms& terms)
{
    Number_List taken = terms.present;
    QHash<char32_t, int> causes;
    std::vector<int> parts;
    for (int row = 0; row < plan.Count(); ++row) {
        const Planned_Row planned = plan.At(row);
        const Row_Preview preview = Preview_Of(planned, terms.manner);
        const bool is_unicode = preview.alphabet == Job_Alphabet::Ucs2;
        ASSERT_EQ(plan.Parts_Of(row), preview.parts)
            << planned.number.toStdString() << ": " << planned.text.toStdString();
        ASSERT_EQ(plan.Is_Unicode(row), is_unicode) << row << ": " << planned.text.toStdString();
        const bool could_be = planned.skipped.isEmpty() || planned.skipped == QLatin1String(Skip_Words::Duplicate);
        if (could_be) {
            const bool is_duplicate = terms.skip_duplicates && taken.Contains(planned.number);
            ASSERT_EQ(planned.skipped, is_duplicate ? "duplicate" : "") << row;
            taken.Append(planned.number);
        }
        if (planned.skipped.isEmpty())
            parts.push_back(preview.parts);
    }
    const Plan_Sums sums = plan.Sums();
    EXPECT_EQ(sums.send, static_cast<int>(parts.size()));
    EXPECT_EQ(sums.parts, std::accumulate(parts.begin(), parts.end(), 0));
    EXPECT_EQ(sums.seconds, Seconds_For(parts, terms.manner));
    std::sort(parts.begin(), parts.end());
    EXPECT_EQ(sums.median_parts, parts.empty() ? 0 : parts[(parts.size() - 1) / 2]);
    EXPECT_EQ(sums.shortest_parts, parts.empty() ? 0 : parts.front());
    EXPECT_EQ(sums.longest_parts, parts.empty() ? 0 : parts.back());
}

Plan_Terms Random_Terms()
{
    Plan_Terms terms;
    terms.skip_duplicates = Below(2) == 0;
    terms.country = Below(3) == 0 ? Country_With_Letters(u"GB") : nullptr;
    terms.manner.fixed_waits = Below(3) == 0;
    terms.manner.alphabet = static_cast<Job_Alphabet_Choice>(terms.manner.fixed_waits ? 1 + Below(2) : Below(3));
    terms.manner.batch = Below(4);
    terms.manner.pause_seconds = 7;
    if (Below(2) == 0)
        terms.excluded.Append(QStringLiteral("77009003"));
    if (Below(2) == 0)
        terms.present.Append(QStringLiteral("77009004"));
    return terms;
}

QString Random_Message()
{
    return QString::fromUtf8(Random_Text()) +
           QLatin1String(
               One_Of({"", "{{Name}}", "{{Name|you}} {{City}}", "{{City|}}{{Name|}}", "{{Town}}", "{{Town|x}}"})) +
           QString::fromUtf8(Random_Text());
}

} // namespace

TEST(Job_Plan, Agrees_With_Every_Row_Looked_At_By_Itself)
{
    for (int round = 0; round < 150; ++round) {
        SCOPED_TRACE(round);
        const Plan_Terms terms = Random_Terms();
        const Job_Plan plan = Job_Plan::Of_Table(Random_Table(60), 0, Random_Message(), terms);
        Expect_As_Written_Down(plan, terms);
        Recipient_List list;
        plan.Add_To(list, Random_Message());
        for (int row = 0; row < list.Count(); row += 3)
            list.Replace(row, list.At(row).Number, Random_Message());
        Plan_Terms of_list = terms;
        of_list.present = {};
        Expect_As_Written_Down(Job_Plan::Of_List(list, of_list), of_list);
        if (HasFatalFailure())
            return;
    }
}

// A job of the same list asks before each message whether it is skipped, and what its text is.
TEST(Job_Plan, Says_Of_Every_Row_Of_A_List_What_The_Job_Does_With_It)
{
    const auto word_of_the_job = [](const Send_Order& order, int row) -> std::string {
        switch (Reason_To_Skip(order, row)) {
        case Skip_Reason::Excluded:
            return Skip_Words::Excluded;
        case Skip_Reason::Repeated:
            return Skip_Words::Duplicate;
        case Skip_Reason::Not_Filled:
            return Text_To_Send(order.recipients, row).fault.toStdString();
        case Skip_Reason::None:
            break;
        }
        return "send";
    };
    for (int round = 0; round < 150; ++round) {
        SCOPED_TRACE(round);
        const Plan_Terms terms = Random_Terms();
        Send_Order order;
        order.choices.skip_duplicates = terms.skip_duplicates;
        order.choices.exclusion = true;
        order.exclusions = terms.excluded;
        if (Below(2) == 0)
            Job_Plan::Of_Table(Random_Table(40), 0, Random_Message(), {}).Add_To(order.recipients, Random_Message());
        for (int row = 0; row < 20; ++row)
            order.recipients.Append(QString::number(77009000 + Below(12)), Random_Message());
        for (int row = 0; row < order.recipients.Count(); row += 5)
            order.recipients.Set_Messages({row}, Random_Message());
        Find_Repeats(order);
        Plan_Terms of_list = terms;
        of_list.present = {};
        const Job_Plan plan = Job_Plan::Of_List(order.recipients, of_list);
        ASSERT_EQ(plan.Count(), order.recipients.Count());
        for (int row = 0; row < plan.Count(); ++row) {
            ASSERT_EQ(Word_For(plan.Verdict_Of(row)), word_of_the_job(order, row)) << row;
            ASSERT_EQ(plan.Number_Of(row), order.recipients.Numbers().At(row));
            if (plan.Verdict_Of(row) == Row_Verdict::Send) {
                ASSERT_EQ(plan.Text_Of(row), Text_To_Send(order.recipients, row).text) << row;
            }
        }
    }
}

TEST(Job_Plan, What_Is_Put_Right_Is_As_If_It_Had_Been_So_From_The_Beginning)
{
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(round);
        Recipient_List list;
        Random_Message();
        for (int row = 0; row < 40; ++row)
            list.Append(QString::number(7700900 + Below(12)), Random_Message());
        const Plan_Terms terms = Random_Terms();
        Job_Plan plan = Job_Plan::Of_List(list, terms);
        for (int step = 0; step < 20; ++step) {
            const int row = Below(list.Count());
            const QString number = QString::number(7700900 + Below(12));
            const QString read = Number_As_Written(number, terms.country).number;
            plan.Set_Number(row, number);
            list.Replace(row, read, list.Message_At(row));
        }
        const Job_Plan anew = Job_Plan::Of_List(list, terms);
        EXPECT_EQ(Verdicts_Of(plan), Verdicts_Of(anew));
        EXPECT_EQ(plan.Sums().causes, anew.Sums().causes);
        EXPECT_EQ(plan.Sums().parts, anew.Sums().parts);
    }
}
