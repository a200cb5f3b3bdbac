#include "records/Data_Paths.h"
#include "windows/stores/Export_Option.h"
#include "windows/stores/Open_Export_Log.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/Stores_Test.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QRadioButton>
#include <QUrl>

namespace {

// Stands for the desktop, which would start a program for the file, if it has one.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { Has_A_Program(); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    void Has_A_Program() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Open"); }
    void Has_No_Program() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "Nothing"); } // no such slot

    QList<QUrl> m_opened;

public Q_SLOTS:
    void Open(const QUrl& url) { m_opened.append(url); }
};

class Export_Test : public Stores_Test
{
protected:
    Export_Test()
    {
        Write_Bytes(Sent_Item_Path, Golden("SentItem.ZOVA"));
        Write_Bytes(Templates_Path, Golden("Templates.ZOVA"));
        Export_File_Path.clear();
    }

    void Will_Choose(bool is_html, const char* button = "OKPressed")
    {
        m_user.When_Opens("Export_Option", [=](QWidget& dialog) {
            EXPECT_EQ(SENT_EXPORT_MODE, 0);
            EXPECT_TRUE(In<QRadioButton>(dialog, "Export_In_Text_RD").isChecked());
            if (is_html)
                QTest::mouseClick(&In<QRadioButton>(dialog, "Export_In_Html_RD"), Qt::LeftButton, {}, {8, 8});
            EXPECT_EQ(SENT_EXPORT_MODE, is_html ? 1 : 0);
            Click_In(dialog, button);
            EXPECT_TRUE(In<QRadioButton>(dialog, "Export_In_Text_RD").isChecked());
            EXPECT_FALSE(In<QRadioButton>(dialog, "Export_In_Html_RD").isChecked());
        });
    }
    void Will_Be_Offered_The_File(const char* button = "CancelPressed", bool ticked = true)
    {
        m_user.When_Opens("Open_Export_Log", [=](QWidget& dialog) {
            EXPECT_TRUE(In<QCheckBox>(dialog, "Open_File_Chk").isChecked());
            In<QCheckBox>(dialog, "Open_File_Chk").setChecked(ticked);
            Click_In(dialog, button);
            EXPECT_TRUE(In<QCheckBox>(dialog, "Open_File_Chk").isChecked());
        });
    }
    void Export_To(const char* typed)
    {
        Will_Save_As(m_folder.Beside(typed));
        Click("Export_Btn");
    }
    /// Saves the sent items under a name in the mode, and gives the name that was written.
    QString Name_Written(const char* typed, bool is_html)
    {
        Will_Choose(is_html);
        Will_Be_Offered_The_File();
        Visit_Sent_Items([&] { Export_To(typed); });
        EXPECT_TRUE(QFileInfo::exists(Export_File_Path)) << qPrintable(Export_File_Path);
        return QFileInfo(Export_File_Path).fileName();
    }

    Desktop m_desktop;
};

} // namespace

TEST_F(Export_Test, Sent_Items_As_Text)
{
    EXPECT_EQ(Name_Written("list", false), QStringLiteral("list.txt"));
    EXPECT_EQ(Bytes_Of(m_folder.Beside("list.txt")), Golden("SentItems.txt"));
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Golden("SentItem.ZOVA"));
    EXPECT_TRUE(m_desktop.m_opened.isEmpty());
}

TEST_F(Export_Test, Sent_Items_As_Html)
{
    EXPECT_EQ(Name_Written("list", true), QStringLiteral("list.html"));
    EXPECT_EQ(Bytes_Of(m_folder.Beside("list.html")), Golden("SentItems.html"));
}

TEST_F(Export_Test, Templates_In_Both_Modes)
{
    for (const bool is_html : {false, true}) {
        Will_Choose(is_html);
        Will_Be_Offered_The_File();
        Visit_Templates([this] { Export_To("templates"); });
    }
    EXPECT_EQ(Bytes_Of(m_folder.Beside("templates.txt")), Golden("Templates.txt"));
    EXPECT_EQ(Bytes_Of(m_folder.Beside("templates.html")), Golden("Templates.html"));
    EXPECT_EQ(Bytes_Of(Templates_Path), Golden("Templates.ZOVA"));
}

TEST_F(Export_Test, An_Extension_In_Any_Case_Is_Kept_And_Any_Other_Gets_One_More)
{
    EXPECT_EQ(Name_Written("a.TXT", false), QStringLiteral("a.TXT"));
    EXPECT_EQ(Name_Written("b.Html", true), QStringLiteral("b.Html"));
    EXPECT_EQ(Name_Written("c.htm", true), QStringLiteral("c.htm.html"));
    EXPECT_EQ(Name_Written("d.txt", true), QStringLiteral("d.txt.html"));
    EXPECT_EQ(Name_Written("e.csv", false), QStringLiteral("e.csv.txt"));
}

TEST_F(Export_Test, A_File_That_Stands_There_Is_Replaced_Once_The_Panel_Has_Asked)
{
    Write_Bytes(m_folder.Beside("list.txt"), QByteArray(100'000, 'x'));
    m_user.Will_Press("Yes");
    EXPECT_EQ(Name_Written("list", false), QStringLiteral("list.txt"));
    EXPECT_EQ(Bytes_Of(m_folder.Beside("list.txt")), Golden("SentItems.txt"));
    EXPECT_EQ(m_user.Was_Shown().size(), 1);
}

TEST_F(Export_Test, Cancelling_The_Choice_Ends_The_Export_And_Leaves_The_Mode_At_Text)
{
    Will_Choose(true, "CancelPressed");
    Visit_Sent_Items([this] { Click("Export_Btn"); });
    EXPECT_EQ(SENT_EXPORT_MODE, 0);
    EXPECT_EQ(Export_File_Path, QString());
    EXPECT_EQ(Name_Written("list", false), QStringLiteral("list.txt"));
}

TEST_F(Export_Test, Escape_In_The_Choice_Cancels_It)
{
    m_user.When_Opens("Export_Option", [](QWidget& dialog) {
        In<QRadioButton>(dialog, "Export_In_Html_RD").click();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    Visit_Templates([this] { Click("Export_Btn"); });
    EXPECT_EQ(SENT_EXPORT_MODE, 0);
    EXPECT_EQ(Export_Option::defaultInstance()->result(), 0);
}

TEST_F(Export_Test, The_Choice_Goes_With_The_Arrow_Keys_And_OK_Keeps_The_Mode)
{
    m_user.When_Opens("Export_Option", [](QWidget& dialog) {
        auto& text = In<QRadioButton>(dialog, "Export_In_Text_RD");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        EXPECT_EQ(dialog.focusWidget(), &text);
        QTest::keyClick(&text, Qt::Key_Down);
        EXPECT_EQ(SENT_EXPORT_MODE, 1);
        QTest::keyClick(&In<QRadioButton>(dialog, "Export_In_Html_RD"), Qt::Key_Up);
        EXPECT_EQ(SENT_EXPORT_MODE, 0);
        QTest::keyClick(&text, Qt::Key_Down);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(Export_Option::defaultInstance()->Open_Dialog(&m_window), 1);
    EXPECT_EQ(SENT_EXPORT_MODE, 1);
    EXPECT_TRUE(In<QRadioButton>(*Export_Option::defaultInstance(), "Export_In_Text_RD").isChecked());
}

TEST_F(Export_Test, Cancelling_The_File_Panel_Ends_The_Export)
{
    Will_Choose(true);
    Visit_Sent_Items([this] {
        m_user.Will_Do([](QDialog* panel) {
            EXPECT_NE(qobject_cast<QFileDialog*>(panel), nullptr);
            panel->reject();
        });
        Click("Export_Btn");
        EXPECT_TRUE(m_visited->isVisible());
    });
    EXPECT_EQ(Export_File_Path, QString());
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Export_Test, Any_Other_Mode_Ends_The_Export_Without_A_Word)
{
    Will_Choose(false);
    Visit_Sent_Items([this] {
        m_user.Will_Do([this](QDialog* panel) {
            SENT_EXPORT_MODE = 2;
            qobject_cast<QFileDialog*>(panel)->selectFile(m_folder.Beside("list"));
            panel->accept();
        });
        Click("Export_Btn");
    });
    EXPECT_EQ(Export_File_Path, QString());
    EXPECT_FALSE(QFileInfo::exists(m_folder.Beside("list.txt")));
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Export_Test, A_File_That_Can_Not_Be_Written_Is_An_Error)
{
    ASSERT_TRUE(QDir().mkpath(m_folder.Beside("gone")));
    Will_Choose(false);
    m_user.Will_Press("OK");
    Visit_Sent_Items([this] {
        m_user.Will_Do([this](QDialog* panel) {
            qobject_cast<QFileDialog*>(panel)->selectFile(m_folder.Beside("gone/list.txt"));
            EXPECT_TRUE(QDir(m_folder.Beside("gone")).removeRecursively());
            panel->done(QDialog::Accepted);
        });
        Click("Export_Btn");
        EXPECT_TRUE(m_visited->isVisible());
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QStringLiteral("\nError in file accessing.")});
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Golden("SentItem.ZOVA"));
}

TEST_F(Export_Test, The_File_Is_Opened_By_The_Desktop_When_The_Box_Is_Ticked)
{
    Export_File_Path = m_folder.Beside("a name with # and % and ä.txt");
    Will_Be_Offered_The_File("OKPressed");
    EXPECT_EQ(Open_Export_Log::defaultInstance()->Open_Dialog(&m_window), 1);
    EXPECT_EQ(m_desktop.m_opened, QList{QUrl::fromLocalFile(Export_File_Path)});
}

TEST_F(Export_Test, The_File_Stays_Closed_When_The_Box_Is_Not_Ticked_Or_The_Offer_Is_Left)
{
    Export_File_Path = m_folder.Beside("list.txt");
    Will_Be_Offered_The_File("OKPressed", false);
    EXPECT_EQ(Open_Export_Log::defaultInstance()->Open_Dialog(&m_window), 1);
    Will_Be_Offered_The_File("CancelPressed");
    EXPECT_EQ(Open_Export_Log::defaultInstance()->Open_Dialog(&m_window), 0);
    m_user.When_Opens("Open_Export_Log", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(Open_Export_Log::defaultInstance()->Open_Dialog(&m_window), 0);
    EXPECT_TRUE(m_desktop.m_opened.isEmpty());
}

TEST_F(Export_Test, A_File_That_Nothing_Opens_Is_Told_Of_In_The_Dialog_Which_Closes_All_The_Same)
{
    const QList<std::pair<std::function<void(QWidget&)>, int>> ways_out = {
        {[](QWidget& dialog) { Click_In(dialog, "OKPressed"); }, 1},
        {[](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }, 1},
        {[](QWidget& dialog) { Click_In(dialog, "CancelPressed"); }, 0},
        {[](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }, 0},
        {[](QWidget& dialog) { dialog.close(); }, 0},
    };
    m_desktop.Has_No_Program();
    QSize size;
    for (const auto& [leave, code] : ways_out) {
        m_user.When_Opens("Open_Export_Log", [&size, leave = leave](QWidget& dialog) {
            const auto& box = In<QCheckBox>(dialog, "Open_File_Chk");
            const auto& notice = In<QLabel>(dialog, "_notice");
            EXPECT_TRUE(box.isChecked());
            EXPECT_FALSE(notice.isVisible());
            if (size.isEmpty())
                size = dialog.size();
            EXPECT_EQ(dialog.size(), size) << "no room is left of the last line";
            Click_In(dialog, "OKPressed");
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_FALSE(box.isChecked());
            EXPECT_TRUE(notice.isVisible());
            EXPECT_TRUE(notice.text().startsWith(QStringLiteral("The file could not be opened")));
            EXPECT_TRUE(Serve_Until([&] { return dialog.height() > size.height(); })) << "the line has its own room";
            leave(dialog);
            EXPECT_FALSE(dialog.isVisible());
        });
        EXPECT_EQ(Open_Export_Log::defaultInstance()->Open_Dialog(&m_window), code);
    }
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Export_Test, A_File_That_Nothing_Opened_Can_Be_Tried_Once_More)
{
    Export_File_Path = m_folder.Beside("list.txt");
    m_desktop.Has_No_Program();
    m_user.When_Opens("Open_Export_Log", [this](QWidget& dialog) {
        Click_In(dialog, "OKPressed");
        m_desktop.Has_A_Program();
        In<QCheckBox>(dialog, "Open_File_Chk").click();
        Click_In(dialog, "OKPressed");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(Open_Export_Log::defaultInstance()->Open_Dialog(&m_window), 1);
    EXPECT_EQ(m_desktop.m_opened, QList{QUrl::fromLocalFile(Export_File_Path)});
}

TEST_F(Export_Test, No_Dialog_Opens_Once_The_Program_Exits)
{
    Begin_Program_Exit();
    EXPECT_EQ(Export_Option::defaultInstance()->Open_Dialog(&m_window), 0);
    EXPECT_EQ(Open_Export_Log::defaultInstance()->Open_Dialog(&m_window), 0);
}

#include "test_Export.moc"
