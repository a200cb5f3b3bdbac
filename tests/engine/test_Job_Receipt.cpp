#include "engine/Receipt_Csv.h"
#include "engine/Receipt_Html.h"
#include "engine/Receipt_Text.h"
#include "engine/Receipts_Test.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

// A sent message, reports on it, and what they make of its delivery.
struct Delivery_Case
{
    const char* name;
    int parts;
    std::vector<Job_Report> reports;
    QString delivery;
    Receipt_Kind kind;
    bool asks_for_reports = true;
};

const QString Ann = QStringLiteral("00447700900100");
const QString Card = QStringLiteral("234150000000001");

Job_Report On(int part, int status, const QString& number = QStringLiteral("+447700900100"), const QString& card = Card)
{
    return {card, 10 + part, number, 1795252560, status, {}};
}

// One row of a job, and how the receipt puts it.
struct Row_Case
{
    const char* name;
    Receipt_Job_Row row;
    QString signed_outcome;
    QString reason;
    Receipt_Kind kind;
    int parts_sent = 0;
};

void PrintTo(const Delivery_Case& each, std::ostream* out)
{
    *out << each.name;
}

void PrintTo(const Row_Case& each, std::ostream* out)
{
    *out << each.name;
}

template <class Case>
std::string Name_Of_Case(const testing::TestParamInfo<Case>& each)
{
    return each.param.name;
}

class Deliveries : public Receipts_Test, public testing::WithParamInterface<Delivery_Case>
{
};

class Receipt_Rows : public Receipts_Test, public testing::WithParamInterface<Row_Case>
{
};

Job_Row Skipped_Row(const char* reason)
{
    Job_Row row = Plain_Row(Ann);
    row.skipped = QLatin1String(reason);
    return row;
}

QByteArray All_Of(const Export_Content& content)
{
    QByteArray bytes = content.header;
    for (qsizetype index = 0; index < content.count; ++index)
        bytes += content.piece(index);
    return bytes;
}

// Reads quoted fields as RFC 4180 has them.
QList<QStringList> Csv_Rows(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes);
    QList<QStringList> rows;
    QStringList row;
    qsizetype at = text.startsWith(QChar::ByteOrderMark) ? 1 : 0;
    while (at < text.size()) {
        QString field;
        EXPECT_EQ(text.at(at), u'"');
        for (++at; at < text.size() && (text.at(at) != u'"' || text.mid(at, 2) == u"\"\""); ++at) {
            field += text.at(at);
            at += text.at(at) == u'"';
        }
        row.append(field);
        ++at;
        const bool is_at_end = text.mid(at, 2) == u"\r\n";
        EXPECT_TRUE(is_at_end || text.mid(at, 1) == u",");
        at += is_at_end ? 2 : 1;
        if (is_at_end)
            rows.append(std::exchange(row, {}));
    }
    return rows;
}

} // namespace

TEST_P(Deliveries, Are_Told_As_The_Reports_Have_It)
{
    const Delivery_Case& told = GetParam();
    const auto journal =
        Make({{Row_To(Ann, "Hello", told.parts), QString(told.parts, u'S')}, {Row_To("00447700900999"), "S"}},
             told.asks_for_reports);
    for (const Job_Report& report : told.reports)
        ASSERT_TRUE(journal->Report(report.imsi, report.reference, report.number, report.seconds, report.status));
    const auto receipt = Receipt();
    EXPECT_EQ(receipt->Row(1).delivery, told.delivery);
    EXPECT_EQ(receipt->Row(2).delivery, told.asks_for_reports ? "no report" : "");
    if (told.asks_for_reports) {
        EXPECT_EQ(receipt->Count_Of(told.kind), told.kind == Receipt_Kind::No_Report ? 2 : 1);
        EXPECT_EQ(receipt->Rows_Of(told.kind).front(), 1);
    } else {
        EXPECT_FALSE(receipt->Kinds().contains(Receipt_Kind::No_Report));
    }
    EXPECT_EQ(receipt->Count_Of(Receipt_Kind::Sent), 2) << "whatever becomes of it, it was sent";
}

INSTANTIATE_TEST_SUITE_P(
    Of_A_Sent_Message, Deliveries,
    testing::Values(
        Delivery_Case{"No_Report_Is_Not_Not_Delivered", 1, {}, "no report", Receipt_Kind::No_Report},
        Delivery_Case{"Not_Asked_For", 1, {On(1, 0)}, "", Receipt_Kind::All, false},
        Delivery_Case{"Delivered", 1, {On(1, 0)}, "delivered", Receipt_Kind::Delivered},
        Delivery_Case{"Passed_On", 1, {On(1, 1)}, "delivered: passed on, but not confirmed", Receipt_Kind::Delivered},
        Delivery_Case{
            "Failed", 1, {On(1, 0x46)}, "not delivered: it was not delivered in time", Receipt_Kind::Not_Delivered},
        Delivery_Case{"Tried_And_Then_Delivered", 1, {On(1, 0x22), On(1, 0)}, "delivered", Receipt_Kind::Delivered},
        Delivery_Case{
            "Still_Tried", 1, {On(1, 0x22)}, "still trying: the phone does not answer", Receipt_Kind::Still_Trying},
        Delivery_Case{"Nothing_Counts_Behind_The_Last_Word",
                      1,
                      {On(1, 0), On(1, 0x22), On(1, 0x46)},
                      "delivered",
                      Receipt_Kind::Delivered},
        Delivery_Case{
            "One_Of_Three_Parts_Without_A_Report", 3, {On(1, 0), On(3, 0)}, "no report", Receipt_Kind::No_Report},
        Delivery_Case{
            "All_Parts_Out_Of_Order", 3, {On(3, 0), On(1, 0), On(2, 0)}, "delivered", Receipt_Kind::Delivered},
        Delivery_Case{"One_Part_Twice_Is_Not_Two", 2, {On(1, 0), On(1, 0)}, "no report", Receipt_Kind::No_Report},
        Delivery_Case{"One_Part_Failed",
                      3,
                      {On(1, 0), On(2, 0x42)},
                      "not delivered: the phone refused it",
                      Receipt_Kind::Not_Delivered},
        Delivery_Case{
            "One_Part_Is_Still_Tried", 2, {On(2, 0x21)}, "still trying: the phone is busy", Receipt_Kind::Still_Trying},
        Delivery_Case{"Of_Another_Number", 1, {On(1, 0, "+447700900101")}, "no report", Receipt_Kind::No_Report},
        Delivery_Case{"Of_Another_Reference", 1, {On(7, 0)}, "no report", Receipt_Kind::No_Report},
        Delivery_Case{"Of_Another_Card", 1, {On(1, 0, "07700900100", "26201")}, "no report", Receipt_Kind::No_Report},
        Delivery_Case{"In_The_National_Form", 1, {On(1, 0, "07700900100")}, "delivered", Receipt_Kind::Delivered}),
    Name_Of_Case<Delivery_Case>);

TEST_P(Receipt_Rows, Say_What_Became_Of_Them_And_Why)
{
    const Row_Case& told = GetParam();
    Make({told.row});
    const auto receipt = Receipt();
    const Receipt_Row row = receipt->Row(1);
    EXPECT_EQ(row.signed_outcome, told.signed_outcome);
    EXPECT_TRUE(row.signed_outcome.endsWith(row.outcome));
    EXPECT_EQ(row.reason, told.reason);
    EXPECT_EQ(row.parts_sent, told.parts_sent);
    EXPECT_EQ(row.number, Ann);
    EXPECT_EQ(receipt->Count_Of(told.kind), 1);
    EXPECT_EQ(receipt->Rows_Of(told.kind), std::vector<int>{1});
    EXPECT_EQ(Sums_In_Words(*receipt).contains(Name_Of(told.kind) + ": 1."), true);
}

INSTANTIATE_TEST_SUITE_P(
    Of_A_Journal, Receipt_Rows,
    testing::Values(
        Row_Case{"Sent", {Plain_Row(Ann, 2), "SS"}, "✓ sent", "", Receipt_Kind::Sent, 2},
        Row_Case{"Counted_As_Sent",
                 {Plain_Row(Ann, 2), "SUC"},
                 "✓ sent",
                 "Somebody has counted it as sent.",
                 Receipt_Kind::Sent,
                 2},
        Row_Case{"Not_Tried", {Plain_Row(Ann), ""}, "· not tried", "", Receipt_Kind::Not_Tried},
        Row_Case{"Begun",
                 {Plain_Row(Ann, 2), "S"},
                 "✗ partly taken",
                 "Some of its parts were sent.",
                 Receipt_Kind::Not_Tried,
                 1},
        Row_Case{
            "Refused", {Plain_Row(Ann), "E"}, "✗ refused (500: unknown error)", "Unknown error", Receipt_Kind::Refused},
        Row_Case{"Refused_In_Part",
                 {Plain_Row(Ann, 2), "SE", "cms:21"},
                 "✗ partly taken (21: the network rejects this message)",
                 "The network rejects this message.",
                 Receipt_Kind::Refused,
                 1},
        Row_Case{"Refused_In_Words",
                 {Plain_Row(Ann), "E", "words:no\x1B[31m way\nat all"},
                 "✗ refused (no\x1B[31m way at all)",
                 "no\x1B[31m way at all",
                 Receipt_Kind::Refused},
        Row_Case{"Without_A_Result",
                 {Plain_Row(Ann), "U", "no-result"},
                 "? may have been sent",
                 "The device gave no result in time.",
                 Receipt_Kind::May_Have_Been_Sent},
        Row_Case{"Line_Lost",
                 {Plain_Row(Ann), "U", "line-lost"},
                 "? may have been sent",
                 "The device was gone before its result.",
                 Receipt_Kind::May_Have_Been_Sent},
        Row_Case{"Network_Timed_Out",
                 {Plain_Row(Ann), "U", "cms:332"},
                 "? may have been sent",
                 "The network did not answer in time.",
                 Receipt_Kind::May_Have_Been_Sent},
        Row_Case{"Other_Words",
                 {Plain_Row(Ann), "U", "no word in 180 s"},
                 "? may have been sent",
                 "no word in 180 s",
                 Receipt_Kind::May_Have_Been_Sent},
        Row_Case{"Broken_Off",
                 {Plain_Row(Ann, 2), "SH"},
                 "? may have been sent",
                 "The program ended before the result.",
                 Receipt_Kind::May_Have_Been_Sent,
                 1},
        Row_Case{"Repeated", {Skipped_Row("duplicate"), ""}, "– skipped: repeated", "", Receipt_Kind::Skipped},
        Row_Case{"Excluded", {Skipped_Row("excluded"), ""}, "– skipped: excluded", "", Receipt_Kind::Skipped},
        Row_Case{
            "Invalid", {Skipped_Row("invalid-number"), ""}, "– skipped: invalid number", "", Receipt_Kind::Skipped},
        Row_Case{"Too_Long", {Skipped_Row("too-long"), ""}, "– skipped: too long", "", Receipt_Kind::Skipped},
        Row_Case{
            "Skipped_By_A_Person", {Plain_Row(Ann), "K", "person"}, "– skipped: person", "", Receipt_Kind::Skipped}),
    Name_Of_Case<Row_Case>);

TEST_F(Receipts_Test, The_Facts_Name_The_Card_By_Its_Last_Digits_Alone)
{
    const auto journal = Make({{Row_To(Ann), "S"}});
    QStringList facts;
    for (const auto& [name, fact] : Receipt()->Facts())
        facts.append(name + "=" + fact);
    const QString began = Moment_In_Words(Record().Header().seconds);
    EXPECT_EQ(facts.join(u'|'),
              "Job=" + Sample_Id + "|Began=" + began + "|Device=/dev/ttyUSB0|SIM card=ends with 0001|State=not ended");
    ASSERT_TRUE(journal->End());
    EXPECT_EQ(Receipt()->Facts().constLast().second, "ended");
}

TEST_F(Receipts_Test, Each_Kind_Has_Its_Sum_And_Its_Rows)
{
    Make({{Row_To(Ann), "S"},
          {Row_To(Ann), "E"},
          {Row_To(Ann), "U"},
          {Row_To(Ann), ""},
          {Skipped_Row("excluded"), ""},
          {Row_To(Ann), "S"}});
    const auto receipt = Receipt();
    EXPECT_EQ(Sums_In_Words(*receipt), "Recipients: 6. Sent: 2. May have been sent: 1. Not tried: 1. Refused: 1. "
                                       "Skipped: 1. No report: 2.");
    EXPECT_THAT(receipt->Rows_Of(Receipt_Kind::Sent), ElementsAre(1, 6));
    EXPECT_THAT(receipt->Rows_Of(Receipt_Kind::No_Report), ElementsAre(1, 6));
    EXPECT_THAT(receipt->Rows_Of(Receipt_Kind::All), ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_THAT(receipt->Rows_Of(Receipt_Kind::Delivered), ElementsAre());
}

TEST_F(Receipts_Test, A_Wrapped_Reference_Goes_To_The_Message_Of_Its_Time)
{
    auto made =
        Job_Journal::Create(m_folder, Sample_Start(), Each_Of({Plain_Row(Ann), Plain_Row(Ann)}), Sample_Clock());
    const qint64 begin = 1795252500;
    for (int row = 1; row <= 2; ++row) {
        ASSERT_TRUE(made.journal->Hand_Over(row, 1, 1));
        for (int tick = 0; tick < 1000; ++tick) // the clock goes on with every line
            ASSERT_TRUE(made.journal->Skipped(2, "person"));
        ASSERT_TRUE(made.journal->Accepted(row, 1, 17));
    }
    const auto handed_over = [&](int row) { return Record().Part(row, 1).handed_over_at; };
    ASSERT_GE(handed_over(2) - handed_over(1), 1);
    ASSERT_GE(handed_over(1), begin);
    ASSERT_TRUE(made.journal->Report(Card, 17, Ann, handed_over(2) + 1, 0x46));
    EXPECT_EQ(Receipt()->Row(1).delivery, "no report");
    EXPECT_EQ(Receipt()->Row(2).delivery, "not delivered: it was not delivered in time");
}

// ------------------------------------------------------------------------------------------------- the exports

TEST_F(Receipts_Test, The_Text_Is_For_Reading)
{
    const auto journal = Make({{Row_To(Ann, "Dear Ann,\nRow: 7 \x1B[2J"), "S"}, {Row_To("12"), ""}});
    const QStringList lines = QString::fromUtf8(All_Of(Receipt_Text(Receipt()))).split(u'\n');
    EXPECT_EQ(lines.at(1), "Receipt");
    EXPECT_TRUE(lines.contains("Device      : /dev/ttyUSB0"));
    EXPECT_TRUE(lines.contains("Recipients: 2. Sent: 1. Not tried: 1. No report: 1."));
    EXPECT_TRUE(lines.contains("Number      : " + Ann));
    const auto message = lines.indexOf("Message     : Dear Ann,");
    ASSERT_GE(message, 0);
    EXPECT_EQ(lines.at(message + 1), QStringLiteral("              Row: 7 ␛[2J"));
    EXPECT_TRUE(lines.contains(QStringLiteral("Outcome     : ✓ sent")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Outcome     : · not tried")));
}

TEST_F(Receipts_Test, The_Page_Shows_Markup_As_Text_And_Has_No_Script)
{
    const auto journal =
        Make({{Row_To("<b>1</b>", "<script>alert(1)</script> & \"quotes\"\x1 'x'"), "E", "words:</td><img src=x>"}});
    const QString page = QString::fromUtf8(All_Of(Receipt_Html(Receipt())));
    EXPECT_TRUE(page.startsWith("<!DOCTYPE html>"));
    EXPECT_TRUE(page.endsWith("</html>\n"));
    EXPECT_TRUE(page.contains(QStringLiteral(">&lt;script&gt;alert(1)&lt;/script&gt; &amp; &quot;quotes&quot;␁ 'x'<")));
    EXPECT_TRUE(page.contains("&lt;b&gt;1&lt;/b&gt;"));
    EXPECT_FALSE(page.contains("<script"));
    EXPECT_FALSE(page.contains("<img"));
    EXPECT_FALSE(page.contains("http:") || page.contains("https:") || page.contains("src=\"")) << "it fetches nothing";
    EXPECT_EQ(page.count("<tr>"), 2);
    EXPECT_EQ(page.count("<td"), 9);
}

// A text in a list, and the cell that stands for it in a table for spreadsheets.
struct Cell_Case
{
    QString text;
    QString cell;
};

TEST_F(Receipts_Test, No_Spreadsheet_Takes_A_Cell_For_A_Formula)
{
    const QList<Cell_Case> cases = {
        {"Dear Ann", "Dear Ann"},
        {"=1+1", "'=1+1"},
        {"+1", "'+1"},
        {"-1", "'-1"},
        {"@SUM(A1)", "'@SUM(A1)"},
        {"  =cmd|' /C calc'!A0", "'  =cmd|' /C calc'!A0"},
        {"\t=1", "'\t=1"},
        {"\n=1", "'\n=1"},
        {QStringLiteral("＝1"), QStringLiteral("'＝1")},
        {"'quoted'", "''quoted'"},
        {"says \"hello\", twice\nand\r\nmore", "says \"hello\", twice\nand\r\nmore"},
        {QStringLiteral("a\x1f b"), QStringLiteral("a␟ b")},
        {"a=b", "a=b"},
    };
    QList<Receipt_Job_Row> jobs;
    for (const Cell_Case& each : cases)
        jobs.append({Row_To(Ann, each.text), "S"});
    const auto journal = Make(jobs);
    const QByteArray bytes = All_Of(Receipt_Csv(Receipt()));
    EXPECT_TRUE(bytes.startsWith("\xEF\xBB\xBF\"Row\",\"Number\",\"Message\",\"Outcome\",\"Reason\",\"Parts sent\","
                                 "\"Parts\",\"Delivery\",\"Time\"\r\n"));
    const QList<QStringList> rows = Csv_Rows(bytes);
    ASSERT_EQ(rows.size(), cases.size() + 1);
    for (qsizetype row = 0; row < cases.size(); ++row) {
        ASSERT_EQ(rows.at(row + 1).size(), 9);
        EXPECT_EQ(rows.at(row + 1).at(1), u'\'' + Ann) << "a number stays a text";
        EXPECT_EQ(rows.at(row + 1).at(2), cases.at(row).cell);
        EXPECT_EQ(rows.at(row + 1).at(3), "sent");
    }
}

TEST_F(Receipts_Test, Files_Are_Written_As_All_Exports_Are)
{
    const auto journal = Make(QList<Receipt_Job_Row>(300, {Row_To(Ann, QString(1000, u'ä')), "S"}));
    for (const auto& make : {Receipt_Text, Receipt_Html, Receipt_Csv}) {
        const QString path = m_home.filePath("receipt");
        EXPECT_TRUE(Write_Export(path, make(Receipt())));
        EXPECT_EQ(Bytes_Of(path), All_Of(make(Receipt())));
        EXPECT_FALSE(Write_Export(m_home.filePath("missing/receipt"), make(Receipt())));
    }
}

TEST_F(Receipts_Test, A_Receipt_Outlives_The_Files_Of_Its_Job)
{
    Make({{Row_To(Ann, "Dear Ann,"), "S"}});
    const auto receipt = Receipt();
    ASSERT_TRUE(QDir(m_folder).removeRecursively());
    EXPECT_EQ(receipt->Row(1).message, "Dear Ann,");
}
