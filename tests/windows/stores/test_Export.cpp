#include "support/Opened_Files.h"
#include "windows/stores/Export_Option.h"
#include "windows/stores/Open_Export_Log.h"
#include "windows/stores/Stores_Test.h"

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
    int Offer_The_File() { return Open_Export_Log::defaultInstance()->Open_Dialog(&m_window); }
    /// Exports the list of the present visit under a name, in the mode.
    void Export_To(const char* typed, bool is_html)
    {
        Will_Choose(is_html);
        Will_Be_Offered_The_File();
        Will_Enter_Path(m_user, m_folder.Beside(typed));
        Click("Export_Btn");
    }

    Opened_Files m_desktop;
};

TEST_F(Export_Test, Both_Lists_In_Both_Modes)
{
    Write_Bytes(m_folder.Beside("SentItems.txt"), QByteArray(100'000, 'x'));
    m_user.Will_Press("Yes"); // that one may be replaced
    for (const bool is_html : {false, true}) {
        Visit_Sent_Items([&] { Export_To("SentItems", is_html); });
        Visit_Templates([&] { Export_To("Templates", is_html); });
    }
    for (const char* name : {"SentItems.txt", "SentItems.html", "Templates.txt", "Templates.html"})
        EXPECT_EQ(Bytes_Of(m_folder.Beside(name)), Golden(name)) << name;
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Golden("SentItem.ZOVA"));
    EXPECT_EQ(Bytes_Of(Templates_Path), Golden("Templates.ZOVA"));
    EXPECT_TRUE(m_desktop.m_urls.isEmpty());
}

TEST_F(Export_Test, An_Extension_In_Any_Case_Is_Kept_And_Any_Other_Gets_One_More)
{
    const std::tuple<const char*, bool, const char*> cases[] = {{"a.TXT", false, "a.TXT"},
                                                                {"b.Html", true, "b.Html"},
                                                                {"c.htm", true, "c.htm.html"},
                                                                {"d.txt", true, "d.txt.html"},
                                                                {"e.csv", false, "e.csv.txt"}};
    for (const auto& [typed, is_html, written] : cases) {
        Visit_Sent_Items([&, name = typed, in_html = is_html] { Export_To(name, in_html); });
        EXPECT_EQ(Export_File_Path, m_folder.Beside(written));
        EXPECT_TRUE(QFile::exists(Export_File_Path)) << typed;
    }
}

TEST_F(Export_Test, Leaving_The_Choice_Or_The_Panel_And_Any_Other_Mode_End_The_Export_Without_A_Word)
{
    Visit_Sent_Items([this] {
        Will_Choose(true, "CancelPressed");
        Click("Export_Btn");
        EXPECT_EQ(SENT_EXPORT_MODE, 0);
        m_user.When_Opens("Export_Option", [](QWidget& dialog) {
            In<QRadioButton>(dialog, "Export_In_Html_RD").click();
            QTest::keyClick(&dialog, Qt::Key_Escape);
            EXPECT_FALSE(dialog.isVisible());
        });
        Click("Export_Btn");
        EXPECT_EQ(SENT_EXPORT_MODE, 0);
        EXPECT_EQ(Export_Option::defaultInstance()->result(), 0);
        Will_Choose(true);
        m_user.Will_Do([](QDialog* panel) { panel->reject(); });
        Click("Export_Btn");
        Will_Choose(false);
        m_user.Will_Do([this](QDialog* panel) {
            SENT_EXPORT_MODE = 2;
            qobject_cast<QFileDialog*>(panel)->selectFile(m_folder.Beside("list"));
            panel->accept();
        });
        Click("Export_Btn");
        EXPECT_TRUE(m_visited->isVisible());
    });
    EXPECT_EQ(Export_File_Path, QString());
    EXPECT_FALSE(QFile::exists(m_folder.Beside("list.txt")));
}

TEST_F(Export_Test, The_Choice_Goes_With_The_Arrow_Keys_OK_Keeps_The_Mode_And_Nothing_Opens_Once_The_Program_Exits)
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
    Begin_Program_Exit();
    EXPECT_EQ(Export_Option::defaultInstance()->Open_Dialog(&m_window), 0);
    EXPECT_EQ(Offer_The_File(), 0);
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
    EXPECT_EQ(m_user.Was_Shown(), QStringList{"\nError in file accessing."});
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Golden("SentItem.ZOVA"));
}

TEST_F(Export_Test, The_File_Is_Opened_By_The_Desktop_When_The_Box_Is_Ticked_And_The_Offer_Taken)
{
    Export_File_Path = m_folder.Beside("a name with # and % and ä.txt");
    Will_Be_Offered_The_File("OKPressed", false);
    EXPECT_EQ(Offer_The_File(), 1);
    Will_Be_Offered_The_File("CancelPressed");
    EXPECT_EQ(Offer_The_File(), 0);
    m_user.When_Opens("Open_Export_Log", [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(Offer_The_File(), 0);
    EXPECT_TRUE(m_desktop.m_urls.isEmpty());
    Will_Be_Offered_The_File("OKPressed");
    EXPECT_EQ(Offer_The_File(), 1);
    EXPECT_EQ(m_desktop.m_urls, QList{QUrl::fromLocalFile(Export_File_Path)});
}

TEST_F(Export_Test, A_File_That_Nothing_Opens_Is_Told_Of_In_The_Dialog_Which_Closes_All_The_Same_Or_Tries_Again)
{
    const QList<std::pair<std::function<void(QWidget&)>, int>> ways_out = {
        {[](QWidget& dialog) { Click_In(dialog, "OKPressed"); }, 1},
        {[](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }, 1},
        {[](QWidget& dialog) { Click_In(dialog, "CancelPressed"); }, 0},
        {[](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }, 0},
        {[](QWidget& dialog) { dialog.close(); }, 0},
        {[this](QWidget& dialog) { // once more
             m_desktop.Has_A_Program();
             In<QCheckBox>(dialog, "Open_File_Chk").click();
             Click_In(dialog, "OKPressed");
         },
         1},
    };
    Export_File_Path = m_folder.Beside("list.txt");
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
            EXPECT_TRUE(notice.text().startsWith("The file could not be opened"));
            EXPECT_TRUE(Serve_Until([&] { return dialog.height() > size.height(); })) << "the line has its own room";
            leave(dialog);
            EXPECT_FALSE(dialog.isVisible());
        });
        EXPECT_EQ(Offer_The_File(), code);
    }
    EXPECT_EQ(m_desktop.m_urls, QList{QUrl::fromLocalFile(Export_File_Path)});
}
