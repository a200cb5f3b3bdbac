#include "gui/Importing_Program.h"
#include "list/Number_Import.h"

#include <stdexcept>

namespace {

const QStringList Nothing_Imported{
    "\nEither file is corrupted or selected file contains invalid characters.\n\nOR\n\nRecipient number is "
    "skipped because of using 'Skip Dulicate Numbers' or 'Exclusion List' option."};

QByteArray Lines_From_100000000(int count)
{
    QByteArray lines;
    lines.reserve(count * 11);
    for (int line = 0; line < count; ++line)
        lines += QByteArray::number(100'000'000 + line) + '\n';
    return lines;
}

using Import = Importing_Program;

} // namespace

TEST_F(Import, Three_Numbers_Become_Three_Recipients_With_The_Composers_Text)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
    Type_Number("999"); // which goes
    Load("111\n222\n333\n");
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "");
    EXPECT_EQ(Numbers(), (QStringList{"111", "222", "333"}));
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(Shown(row, 1), "Hello");
    EXPECT_EQ(Count_Label(), "Total Numbers : 3");
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), "Hello");
    EXPECT_EQ(user.Was_Shown(), QStringList());
    Expect_The_Window_Free();
}

TEST_F(Import, With_Numbers_In_The_List_It_Asks_Whether_They_Stay)
{
    Add("999");
    Will_Answer("CancelPressed"); // opens no panel
    Press_Import();
    user.When_Opens("Load_Num_Info", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Press_Import();
    EXPECT_EQ(Numbers(), QStringList{"999"});
    Will_Answer("NOPressed");
    Load("111\n");
    EXPECT_EQ(Numbers(), (QStringList{"999", "111"}));
    Will_Answer("YESPressed");
    Load("222\n");
    EXPECT_EQ(Numbers(), QStringList{"222"});
    EXPECT_EQ(Count_Label(), "Total Numbers : 1");
}

TEST_F(Import, Yes_Empties_The_List_Before_The_Panel_And_Cancelling_The_Panel_Does_Not_Bring_It_Back)
{
    Add("999");
    Type_Number("1");
    Will_Answer("YESPressed");
    user.Will_Do([](QDialog* panel) { panel->reject(); });
    Press_Import();
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "");
    EXPECT_EQ(Numbers(), QStringList());
    EXPECT_EQ(Count_Label(), "Total Numbers : 0");
    EXPECT_EQ(user.Was_Shown(), QStringList());
}

// Number_In_Line, Text_Of_Number_File and Rich_Text say the whole of it.
TEST_F(Import, Lines_Are_Cleaned_And_What_Is_No_Number_Is_Passed_Over)
{
    Load("\xef\xbb\xbf+44-20-7946-0000\r\nName;1\n{\\12-34}\n12,34\n123456789012345678901\n  222  \n22 22\n44+1");
    EXPECT_EQ(Numbers(), (QStringList{"00442079460000", "1234", "222"}));
    Click("Reset_Btn");
    Load("{\\rtf1\\ansi\\trowd\\intbl 111\\cell Ann\\cell\\row\\trowd\\intbl Bob{\\v 999}\\cell +222\\cell\\row\\pard"
         "{\\deleted 777\\par}333\\par}",
         "table with hidden text.RTF");
    EXPECT_EQ(Numbers(), (QStringList{"111", "00222", "333"}));
    EXPECT_EQ(user.Was_Shown(), QStringList());
}

TEST_F(Import, A_File_That_Gives_No_Number_Is_Told)
{
    QStringList told;
    for (const QByteArray content : {"", "111\n\xff\n222\n", "111\r222\r", "word\n"}) {
        user.Will_Press("OK");
        Load(content);
        told += Nothing_Imported;
        EXPECT_EQ(user.Was_Shown(), told) << content.toStdString();
        Expect_The_Window_Free();
    }
    EXPECT_EQ(Numbers(), QStringList());
}

TEST_F(Import, Duplicates_And_Excluded_Numbers_Do_Not_Come_In_And_Nothing_But_These_Is_Told)
{
    m_delegate->Create_Exclusion_List("333");
    Tick("_Skip_Duplicate_Chk");
    Load("111\n222\n111\n");
    EXPECT_EQ(Numbers(), (QStringList{"111", "222"}));
    EXPECT_EQ(user.Was_Shown(), QStringList());
    Will_Answer("NOPressed");
    user.Will_Press("OK");
    Tick("_Exclusion_Chk");
    Load("111\n333\n111\n");
    EXPECT_EQ(Numbers(), (QStringList{"111", "222"}));
    EXPECT_EQ(user.Was_Shown(), Nothing_Imported);
    Expect_The_Window_Free();
}

// The panel lets nobody pick these; a file may change after it was picked.
TEST_F(Import, A_File_That_Has_Gone_Leaves_The_Sheet_To_Be_Closed_By_Hand_Or_Taken_By_The_Next_Import)
{
    m_delegate->Load_NUM_Thread(m_folder.filePath("gone.txt"));
    EXPECT_FALSE(The<QPushButton>("_sent_btn").isEnabled());
    ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_EQ(user.Was_Shown(), QStringList());
    EXPECT_TRUE(Please_Wait().isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    Add("111"); // the main window takes input
    EXPECT_EQ(Numbers(), QStringList{"111"});
    EXPECT_TRUE(The<QPushButton>("_sent_btn").isEnabled());
    EXPECT_TRUE(Please_Wait().close());
    EXPECT_FALSE(Please_Wait().isVisible());

    Load_Past_The_Panel(m_folder.filePath("gone.txt"));
    ASSERT_TRUE(Please_Wait().isVisible());
    Will_Answer("YESPressed");
    Load("222\n");
    EXPECT_EQ(Numbers(), QStringList{"222"});
    Expect_The_Window_Free();
    user.Will_Press("Yes");
    Click("Clear_All_Btn"); // and it is a sheet again for whatever comes then
    Expect_The_Window_Free();
}

TEST_F(Import, What_Is_No_File_And_Gigabytes_Are_Told_Like_Anything_That_Is_No_List_Of_Numbers)
{
    const QString huge = File("huge.rtf", "111\n");
    ASSERT_TRUE(QFile::resize(huge, (qint64{5} << 30))); // it takes no room on the disk
    for (const QString& path : {m_folder.path(), huge}) {
        user.Will_Press("OK");
        Load_Past_The_Panel(path);
        EXPECT_EQ(user.Was_Shown().last(), Nothing_Imported.first());
        Expect_The_Window_Free();
    }
}

TEST_F(Import, A_Hundred_Megabytes_On_One_Line_Are_Told_In_Time)
{
    user.Will_Press("OK");
    Will_Pick(File("long.txt", QByteArray(100'000'000, '1')));
    int beats = 0;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, &heartbeat, [&] { ++beats; });
    heartbeat.start(5);
    Press_Import(60);
    EXPECT_EQ(user.Was_Shown(), Nothing_Imported);
    EXPECT_GT(beats, 5); // the window was alive meanwhile
}

TEST_F(Import, Six_Million_Lines_Come_In_With_The_Window_Alive_And_The_Bar_Moving)
{
    Tick("_Skip_Duplicate_Chk");
    Will_Pick(File("millions.txt", Lines_From_100000000(6'000'000)));
    QList<int> values;
    int beats = 0;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, &heartbeat, [&] {
        ++beats;
        auto* bar = Please_Wait().findChild<QProgressBar*>("activity");
        if (Please_Wait().isVisible() && bar->maximum() == 100 && !values.contains(bar->value()))
            values.append(bar->value());
        EXPECT_FALSE(Please_Wait().isVisible() && The<QPushButton>("_sent_btn").isEnabled());
    });
    heartbeat.start(5);
    Press_Import(120);
    EXPECT_EQ(m_delegate->Recipients().Count(), 6'000'000);
    EXPECT_EQ(m_delegate->Recipients().At(5'999'999).Number, "105999999");
    EXPECT_GT(values.size(), 20);
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_GT(beats, 20);
    Expect_The_Window_Free();
}

// ---- The reading alone

namespace {

// What an import of the numbers from 100000000 on hands over.
struct Imported
{
    Recipient_List recipients;
    QStringList events;
    QList<int> percents;
    Import_Report report;
    std::function<void(int numbers)> when_told = [](int) {}; ///< of progress

    void Import(int count)
    {
        QTemporaryDir folder;
        Write_Bytes(folder.filePath("numbers.txt"), Lines_From_100000000(count));
        Import({folder.filePath("numbers.txt"), {}, {}, "text", false, false});
    }
    void Import(const Number_Import::Order& order)
    {
        Number_Import import({[&](int numbers, int percent) {
                                  EXPECT_GE(numbers, recipients.Count());
                                  percents.append(percent);
                                  when_told(numbers);
                              },
                              [&](Recipient_List& taken_over) {
                                  std::swap(recipients, taken_over);
                                  events.append(QString::number(recipients.Count()));
                              },
                              [&] { events.append("unread"); }, [&] { events.append("finished"); },
                              [&] { events.append("broken off"); },
                              [&](const Import_Report& told) {
                                  report = told;
                                  events.append("report");
                              }});
        import.Load_NUM_Thread(order);
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    }
};

} // namespace

TEST(Number_Import_Test, An_Exception_Breaks_It_Off_Quietly_With_What_Came_Before)
{
    Imported imported;
    imported.when_told = [](int numbers) {
        if (numbers == 2500) // told at the end at the latest, and now and then before
            throw std::runtime_error("out of memory");
    };
    imported.Import(2500);
    EXPECT_EQ(imported.events, (QStringList{"10", "2500", "report", "broken off"}));
    EXPECT_EQ(imported.recipients.At(2499).Number, "100002499");
    EXPECT_EQ(imported.report.Added(), 2500);
    EXPECT_EQ(imported.report.Ended(), Import_Report::End::Early);
}

TEST(Number_Import_Test, Hands_Over_Every_Number_And_Tells_How_Far_It_Has_Come)
{
    Imported imported;
    imported.Import(250'000);
    EXPECT_EQ(imported.events, (QStringList{"10", "250000", "report", "finished"}));
    EXPECT_EQ(imported.recipients.At(249'999).Number, "100249999");
    EXPECT_EQ(imported.recipients.At(249'999).Message, "text");
    ASSERT_FALSE(imported.percents.isEmpty());
    EXPECT_TRUE(std::is_sorted(imported.percents.begin(), imported.percents.end()));
    EXPECT_EQ(imported.percents.last(), 100);
}

TEST(Number_Import_Test, Keeps_Account_Of_Every_Line_Of_A_Text_Across_Its_Batches)
{
    QString text;
    for (int number = 0; number < 3000; ++number)
        text += QString::number(number) + (number % 3 == 0 ? "\n\n" : "\nname\n") + QString::number(number / 2) + '\n';
    Number_List exclusions;
    exclusions.Append(QString("2999"));
    Imported imported;
    imported.Import({{}, {}, exclusions, "text", true, true, text});
    EXPECT_EQ(imported.recipients.Count(), 2999);
    EXPECT_EQ(imported.report.Added(), 2999);
    EXPECT_EQ(imported.report.Unused(Number_Verdict::Not_Valid), 2000);
    EXPECT_EQ(imported.report.Unused(Number_Verdict::Repeated), 3000);
    EXPECT_EQ(imported.report.Unused(Number_Verdict::Excluded), 1);
    EXPECT_EQ(imported.report.Ended(), Import_Report::End::Complete);
    const QStringList lines = text.split('\n');
    ASSERT_EQ(imported.report.Noted().size(), 5001);
    for (const Import_Report::Unused_Line& noted : imported.report.Noted())
        ASSERT_EQ(lines.value(noted.line - 1), noted.text);
}

TEST(Number_Import_Test, What_Can_Not_Be_Read_Is_Told_As_That)
{
    Imported imported;
    imported.Import({"/nowhere/gone.txt", {}, {}, "text", false, false});
    EXPECT_EQ(imported.events, (QStringList{"report", "unread"}));
    EXPECT_EQ(imported.report.Ended(), Import_Report::End::Unread);
}
