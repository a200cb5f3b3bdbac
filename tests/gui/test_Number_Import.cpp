#include "gui/Open_Program.h"
#include "list/Number_Import.h"
#include "platform/Waiting.h"
#include "windows/main/Load_Num_Info.h"

#include <QFile>
#include <QFileDialog>
#include <QProgressBar>
#include <QTemporaryDir>
#include <algorithm>
#include <stdexcept>
#include <sys/stat.h>

using testing::ElementsAre;

namespace {

const QString Nothing_Imported = QStringLiteral(
    "\nEither file is corrupted or selected file contains invalid characters.\n\nOR\n\nRecipient number is "
    "skipped because of using 'Skip Dulicate Numbers' or 'Exclusion List' option.");

// The main window, and files of numbers in a folder of the test's own.
class Import : public Open_Program
{
protected:
    QString File(const QString& name, const QByteArray& content)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return path;
    }

    /// Picks a file in the panel that opens next.
    void Will_Pick(const QString& path)
    {
        user.Will_Do([path](QDialog* dialog) {
            auto* panel = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(panel, nullptr);
            EXPECT_EQ(panel->fileMode(), QFileDialog::ExistingFile);
            auto* name = panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(name, nullptr);
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
        });
    }

    void Will_Cancel_The_Panel()
    {
        user.Will_Do([](QDialog* dialog) { dialog->reject(); });
    }

    void Will_Answer(const char* button)
    {
        user.When_Opens("Load_Num_Info", [button](QWidget& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
    }

    /// Presses the import button and returns when the import has ended.
    void Press_Import(double seconds = 20)
    {
        Click("Load_Number");
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }, seconds));
    }

    void Load_From(const QString& path)
    {
        Will_Pick(path);
        Press_Import();
    }

    void Load(const QByteArray& content, const QString& name = "numbers.txt") { Load_From(File(name, content)); }

    QWidget& Please_Wait() { return *m_delegate->findChild<QWidget*>("PleaseWait_Modeless"); }
    void Expect_The_Window_Free()
    {
        EXPECT_FALSE(Please_Wait().isVisible());
        EXPECT_TRUE(The<QPushButton>("_sent_btn").isEnabled());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(Import, Three_Numbers_Become_Three_Recipients_With_The_Composers_Text)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
    Load("111\n222\n333\n");
    EXPECT_EQ(Numbers(), (QStringList{"111", "222", "333"}));
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(Shown(row, 1), QStringLiteral("Hello"));
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 3"));
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), QStringLiteral("Hello"));
    Expect_The_Window_Free();
}

TEST_F(Import, The_Number_Field_Is_Emptied_First)
{
    Type_Number("999");
    Will_Cancel_The_Panel();
    Press_Import();
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), QString());
}

TEST_F(Import, No_Appends_To_The_List)
{
    Add("999");
    Will_Answer("NOPressed");
    Load("111\n");
    EXPECT_EQ(Numbers(), (QStringList{"999", "111"}));
}

TEST_F(Import, Yes_Replaces_The_List)
{
    Add("999");
    Will_Answer("YESPressed");
    Load("111\n");
    EXPECT_EQ(Numbers(), QStringList{"111"});
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 1"));
}

TEST_F(Import, Cancel_Leaves_The_List_And_Opens_No_Panel)
{
    Add("999");
    Will_Answer("CancelPressed");
    Press_Import();
    EXPECT_EQ(Numbers(), QStringList{"999"});
}

TEST_F(Import, Escape_Is_Cancel)
{
    Add("999");
    user.When_Opens("Load_Num_Info", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Press_Import();
    EXPECT_EQ(Numbers(), QStringList{"999"});
}

TEST_F(Import, Yes_Empties_The_List_Before_The_Panel_And_Cancelling_The_Panel_Does_Not_Bring_It_Back)
{
    Add("999");
    Will_Answer("YESPressed");
    Will_Cancel_The_Panel();
    Press_Import();
    EXPECT_EQ(Numbers(), QStringList());
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 0"));
    EXPECT_EQ(user.Was_Shown(), QStringList());
}

TEST_F(Import, Signs_Are_Left_Out_And_A_Plus_Becomes_Two_Zeros)
{
    Load("+44-20-7946-0000\n{\\12-34}\n");
    EXPECT_EQ(Numbers(), (QStringList{"00442079460000", "1234"}));
}

TEST_F(Import, Lines_May_End_In_Carriage_Return_And_Line_Feed)
{
    Load("111\r\n222\r\n333");
    EXPECT_EQ(Numbers(), (QStringList{"111", "222", "333"}));
}

TEST_F(Import, Carriage_Returns_Alone_End_No_Line)
{
    user.Will_Press("OK");
    Load("111\r222\r");
    EXPECT_EQ(Numbers(), QStringList());
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
}

TEST_F(Import, What_Is_No_Number_Is_Passed_Over)
{
    Load("Name;Number\n111\n12,34\n44+1\n123456789012345678901\n\n  222  \n22 22\n");
    EXPECT_EQ(Numbers(), (QStringList{"111", "222"}));
    EXPECT_EQ(user.Was_Shown(), QStringList());
}

TEST_F(Import, Nothing_But_Duplicates_Is_Told)
{
    Add("111");
    Tick("_Skip_Duplicate_Chk");
    Will_Answer("NOPressed");
    user.Will_Press("OK");
    Load("111\n111\n");
    EXPECT_EQ(Numbers(), QStringList{"111"});
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
    Expect_The_Window_Free();
}

TEST_F(Import, A_Number_Twice_In_The_File_Comes_Once_When_Duplicates_Are_Skipped)
{
    Tick("_Skip_Duplicate_Chk");
    Load("111\n222\n111\n");
    EXPECT_EQ(Numbers(), (QStringList{"111", "222"}));
}

TEST_F(Import, Excluded_Numbers_Do_Not_Come_In)
{
    Tick("_Exclusion_Chk");
    m_delegate->Create_Exclusion_List("222");
    Load("111\n222\n");
    EXPECT_EQ(Numbers(), QStringList{"111"});
    Will_Answer("NOPressed");
    user.Will_Press("OK");
    Load("222\n");
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
}

TEST_F(Import, An_Empty_File_Is_Told)
{
    user.Will_Press("OK");
    Load("");
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
    Expect_The_Window_Free();
}

TEST_F(Import, A_File_That_Is_No_UTF_8_Is_Told)
{
    user.Will_Press("OK");
    Load("111\n\xff\n222\n");
    EXPECT_EQ(Numbers(), QStringList());
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
}

TEST_F(Import, A_Byte_Order_Mark_At_The_Front_Is_Passed_Over)
{
    Load("\xef\xbb\xbf"
         "111\n222\n");
    EXPECT_EQ(Numbers(), (QStringList{"111", "222"}));
}

TEST_F(Import, Sixteen_Bit_Text_Is_Told)
{
    const QString text = QStringLiteral("111\n222\n");
    user.Will_Press("OK");
    Load("\xff\xfe" + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
}

TEST_F(Import, A_NUL_Spoils_Its_Line_Only)
{
    Load(QByteArray("111\n22\0002\n333\n", 13));
    EXPECT_EQ(Numbers(), (QStringList{"111", "333"}));
}

TEST_F(Import, Rich_Text_Gives_A_Number_For_Each_Paragraph)
{
    Load("{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 +44-20-7946-0000\\par 222\\par 333}", "numbers.RTF");
    EXPECT_EQ(Numbers(), (QStringList{"00442079460000", "222", "333"}));
}

TEST_F(Import, A_Table_Of_Numbers_And_Names_Gives_Its_Numbers_And_What_Is_Hidden_None)
{
    Load("{\\rtf1\\ansi\\trowd\\cellx2000\\cellx4000\\intbl 111\\cell Ann\\cell\\row"
         "\\trowd\\cellx2000\\cellx4000\\intbl Bob{\\v 999}\\cell +222\\cell\\row\\pard{\\v 888\\par}"
         "{\\deleted 777\\par}333{\\*\\annotation 666}\\par}",
         "numbers.rtf");
    EXPECT_EQ(Numbers(), (QStringList{"111", "00222", "333"}));
}

// The panel lets nobody pick these; a file may change after it was picked.
TEST_F(Import, A_File_That_Has_Gone_Leaves_The_Sheet_To_Be_Closed_By_Hand)
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
}

TEST_F(Import, The_Next_Import_Takes_The_Sheet_That_Was_Left)
{
    m_delegate->Load_NUM_Thread(m_folder.filePath("gone.txt"));
    ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    ASSERT_TRUE(Please_Wait().isVisible());
    Load("111\n");
    EXPECT_EQ(Numbers(), QStringList{"111"});
    Expect_The_Window_Free();
    user.Will_Press("Yes");
    Click("Clear_All_Btn"); // and it is a sheet again for whatever comes then
    Expect_The_Window_Free();
}

TEST_F(Import, A_Pipe_Is_No_File_Of_Numbers)
{
    const QString path = m_folder.filePath("pipe");
    ASSERT_EQ(mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    user.Will_Press("OK");
    m_delegate->Load_NUM_Thread(path);
    ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
    Expect_The_Window_Free();
}

TEST_F(Import, A_Folder_Is_No_File_Of_Numbers)
{
    user.Will_Press("OK");
    m_delegate->Load_NUM_Thread(m_folder.path());
    ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
}

TEST_F(Import, Gigabytes_Are_Told_Like_Anything_That_Is_No_List_Of_Numbers)
{
    for (const char* name : {"huge.txt", "huge.rtf"}) {
        const QString path = File(name, "111\n");
        ASSERT_TRUE(QFile::resize(path, (qint64{5} << 30))); // it takes no room on the disk
        user.Will_Press("OK");
        m_delegate->Load_NUM_Thread(path);
        ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        EXPECT_EQ(user.Was_Shown().last(), Nothing_Imported);
        Expect_The_Window_Free();
    }
}

TEST_F(Import, A_Hundred_Megabytes_On_One_Line_Are_Told_In_Time)
{
    const QString path = File("long.txt", QByteArray(100'000'000, '1'));
    user.Will_Press("OK");
    Will_Pick(path);
    int beats = 0;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, &heartbeat, [&] { ++beats; });
    heartbeat.start(5);
    Press_Import(60);
    EXPECT_EQ(user.Was_Shown(), QStringList{Nothing_Imported});
    EXPECT_GT(beats, 5); // the window was alive meanwhile
}

TEST_F(Import, Six_Million_Lines_Come_In_With_The_Window_Alive_And_The_Bar_Moving)
{
    QByteArray content;
    content.reserve(66'000'000);
    for (int line = 0; line < 6'000'000; ++line)
        content += QByteArray::number(100'000'000 + line) + '\n';
    Tick("_Skip_Duplicate_Chk");
    Will_Pick(File("millions.txt", content));
    QList<int> values;
    int beats = 0;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, &heartbeat, [&] {
        ++beats;
        auto* bar = Please_Wait().findChild<QProgressBar*>(QStringLiteral("activity"));
        if (Please_Wait().isVisible() && bar->maximum() == 100 && !values.contains(bar->value()))
            values.append(bar->value());
        EXPECT_FALSE(Please_Wait().isVisible() && The<QPushButton>("_sent_btn").isEnabled());
    });
    heartbeat.start(5);
    Press_Import(120);
    EXPECT_EQ(m_delegate->Recipients().Count(), 6'000'000);
    EXPECT_EQ(m_delegate->Recipients().At(5'999'999).Number, QStringLiteral("105999999"));
    EXPECT_GT(values.size(), 20);
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_GT(beats, 20);
    Expect_The_Window_Free();
}

TEST_F(Import, Leaving_In_The_Middle_Ends_It)
{
    QByteArray content;
    content.reserve(33'000'000);
    for (int line = 0; line < 3'000'000; ++line)
        content += QByteArray::number(100'000'000 + line) + '\n';
    m_delegate->Load_NUM_Thread(File("many.txt", content));
    ASSERT_TRUE(Serve_Until([this] { return m_delegate->Recipients().Count() > 0; }));
    Begin_Program_Exit();
    ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    Forget_Program_Exit();
    EXPECT_LT(m_delegate->Recipients().Count(), 3'000'000);
}

// ---- The reading alone

namespace {

// What an import of the numbers from 10000 on hands over.
struct Imported
{
    Recipient_List recipients;
    QStringList events;
    QList<int> percents;
    std::function<void(int numbers)> when_told; ///< of progress

    void Import(int count)
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("numbers.txt"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        for (int line = 0; line < count; ++line)
            file.write(QByteArray::number(10000 + line) + '\n');
        file.close();
        Number_Import import({[&](int numbers, int percent) {
                                  EXPECT_GE(numbers, recipients.Count());
                                  percents.append(percent);
                                  if (when_told)
                                      when_told(numbers);
                              },
                              [&](Recipient_List& taken_over) {
                                  std::swap(recipients, taken_over);
                                  events.append(QString::number(recipients.Count()));
                              },
                              [&] { events.append("unread"); }, [&] { events.append("finished"); },
                              [&] { events.append("broken off"); }});
        import.Load_NUM_Thread({file.fileName(), {}, {}, QStringLiteral("text"), false, false});
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
    EXPECT_EQ(imported.events, (QStringList{"10", "2500", "broken off"}));
    EXPECT_EQ(imported.recipients.At(2499).Number, QStringLiteral("12499"));
}

TEST(Number_Import_Test, Hands_Over_Every_Number_And_Tells_How_Far_It_Has_Come)
{
    Imported imported;
    imported.Import(250'000);
    EXPECT_EQ(imported.events, (QStringList{"10", "250000", "finished"}));
    EXPECT_EQ(imported.recipients.At(249'999).Number, QStringLiteral("259999"));
    EXPECT_EQ(imported.recipients.At(249'999).Message, QStringLiteral("text"));
    ASSERT_FALSE(imported.percents.isEmpty());
    EXPECT_TRUE(std::is_sorted(imported.percents.begin(), imported.percents.end()));
    EXPECT_EQ(imported.percents.last(), 100);
}
