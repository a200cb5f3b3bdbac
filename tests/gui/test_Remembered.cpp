#include "gui/Remembering_Program.h"
#include "support/Heartbeat.h"
#include "toolkit/File_Panels.h"

using testing::IsEmpty;

TEST_F(Remembered_Things, Without_A_Wish_No_List_Is_Kept)
{
    Add_Recipients();
    EXPECT_FALSE(Remember().isChecked());
    Leave_And_Begin_Again();
    EXPECT_THAT(Recipients(), IsEmpty());
    EXPECT_EQ(News(), "");
    EXPECT_FALSE(QFile::exists(Kept_List()));
    EXPECT_FALSE(QFile::exists(Settings_Path));
}

TEST_F(Remembered_Things, A_List_That_Is_To_Be_Remembered_Is_There_Again_As_It_Was)
{
    Remember().trigger();
    const QStringList awkward{"Hello", "", "two\nlines", "a \"quoted\", thing", QString(QChar(0xFEFF)) + "mark", "\t"};
    for (const QString& message : awkward)
        Window().Create_Num_Msg_List("0044770", message);
    const QStringList before = Recipients();
    Leave_And_Begin_Again();
    EXPECT_EQ(Recipients(), before);
    EXPECT_EQ(The<QLabel>("_gsm_list_count").text(), "Total Numbers : 6");
    EXPECT_EQ(News(), "Recipients from the last time: 6.");
    EXPECT_TRUE(Remember().isChecked());
    EXPECT_EQ(QFileInfo(Kept_List()).permissions() & 0x0077, QFile::Permissions()) << "for the user alone";
    Leave_And_Begin_Again();
    EXPECT_EQ(Recipients(), before);
}

TEST_F(Remembered_Things, Fields_Come_Back_With_Their_Recipients)
{
    Remember().trigger();
    Leave();
    Write_Bytes(Kept_List(), "\xEF\xBB\xBF\"Number\",\"Message\",\"Name\"\r\n\"1\",\"Dear {{Name}}\",\"Ann\"\r\n"
                             "\"2\",\"plain\"\r\n");
    Begin();
    EXPECT_EQ(Window().Recipients().Text_At(0).text, "Dear Ann");
    EXPECT_EQ(Window().Recipients().Table_At(1), nullptr);
    const QByteArray kept = Bytes_Of(Kept_List());
    Leave();
    EXPECT_EQ(Bytes_Of(Kept_List()), kept);
}

TEST_F(Remembered_Things, Who_Chooses_Otherwise_Leaves_No_List)
{
    Remember().trigger();
    Add_Recipients();
    Leave_And_Begin_Again();
    EXPECT_TRUE(QFile::exists(Kept_List()));
    Remember().trigger();
    EXPECT_FALSE(QFile::exists(Kept_List()));
    EXPECT_EQ(Recipients().size(), 3);
    Leave_And_Begin_Again();
    EXPECT_THAT(Recipients(), IsEmpty());
    EXPECT_FALSE(QFile::exists(Kept_List()));
}

TEST_F(Remembered_Things, An_Empty_List_Leaves_No_File)
{
    Remember().trigger();
    Add_Recipients();
    Leave_And_Begin_Again();
    Window().Replace_Recipients({});
    Leave();
    EXPECT_FALSE(QFile::exists(Kept_List()));
}

TEST_F(Remembered_Things, A_File_That_Is_No_List_Stays_And_Is_Told_Of)
{
    Remember().trigger();
    Leave();
    for (const char* bytes : {"", "nonsense", "\"Number\",\"Other\"\r\n1,2\r\n", "PK\3\4"}) {
        Write_Bytes(Kept_List(), bytes);
        Begin();
        EXPECT_THAT(Recipients(), IsEmpty());
        EXPECT_EQ(News(), "The list from the last time cannot be read.") << bytes;
        Leave();
        EXPECT_EQ(Bytes_Of(Kept_List()), bytes);
    }
}

TEST_F(Remembered_Things, A_Million_Recipients_Do_Not_Hold_Up_The_Exit)
{
    constexpr int Many = 1'000'000;
    Remember().trigger();
    Recipient_List list;
    for (int i = 0; i < Many; ++i)
        list.Append(QString::number(10'000'000'000 + i), "the same for all");
    Window().Replace_Recipients(std::exchange(list, {}));
    Heartbeat heartbeat;
    QPointer<QWidget> window = &Window();
    double gone_after = -1;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (gone_after < 0 && (!window || !window->isVisible()))
            gone_after = heartbeat.Whole();
    });
    watch.start(1);
    QTimer::singleShot(0, m_program.get(), [this] { m_program->Leave(); });
    EXPECT_EQ(m_program->Run(), 0);
    m_program.reset();
    EXPECT_GE(gone_after, 0);
    EXPECT_LT(heartbeat.Longest_Gap(), 1.0);
    Begin();
    EXPECT_EQ(Window().Recipients().Count(), Many);
    EXPECT_EQ(Window().Recipients().Numbers().At(Many - 1), "10000999999");
}

TEST_F(Remembered_Things, A_Window_That_Was_Resized_By_Hand_Has_Its_Size_Again)
{
    const QSize first = Window().size();
    Window().resize(first + QSize(30, 10)); // by the program
    Leave_And_Begin_Again();
    EXPECT_EQ(Window().size(), first);
    const QSize chosen = first + QSize(60, 20);
    Resize_By_Hand(Window(), chosen);
    Leave_And_Begin_Again();
    EXPECT_EQ(Window().size(), chosen);
}

TEST_F(Remembered_Things, A_Size_That_Does_Not_Fit_The_Screen_Is_Not_Taken)
{
    const QSize first = Window().size();
    Leave();
    for (const char* word : {"90000x300", "300x90000", "0x0", "-5x-5", "x", "1200", "1200x800x2", "ax b"}) {
        EXPECT_TRUE(Settings_File(Settings_Path).Put_Word("Windows/Size/CorvaneAppDelegate", word));
        Begin();
        EXPECT_EQ(Window().size(), first) << word;
        Leave();
    }
}

TEST_F(Remembered_Things, File_Panels_Open_Where_The_Last_File_Was)
{
    const QTemporaryDir folder;
    Write_Bytes(folder.filePath("numbers.txt"), "123\n");
    user.Will_Do([&](QDialog* panel) {
        static_cast<QFileDialog*>(panel)->setDirectory(folder.path());
        static_cast<QFileDialog*>(panel)->selectFile(folder.filePath("numbers.txt"));
        panel->accept();
    });
    EXPECT_EQ(Ask_For_File_To_Open(&Window()), folder.filePath("numbers.txt"));
    Leave_And_Begin_Again();
    QFileDialog().setDirectory(QDir::homePath()); // which the toolkit itself remembers
    user.Will_Do([&](QDialog* panel) {
        EXPECT_EQ(static_cast<QFileDialog*>(panel)->directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        panel->reject();
    });
    EXPECT_EQ(Ask_For_File_To_Save(&Window(), "txt"), std::nullopt);
}
