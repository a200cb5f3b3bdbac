#include "support/Keys.h"
#include "windows/stores/Stores_Test.h"
#include "windows/stores/UpdateTemp.h"

const QString List_Empty = "\nTemplates list is empty.";
const QString Empty_At_Update = "\nTemplates number list is empty.";
const QString None_Selected = "\nPlease select at least one record from the templates list to continue.";
const QString Select_One = "\nPlease select only one record to update.";
const QString Exists_Already = "\nEntered template already exists.";
const QString Too_Long_Question =
    "Maximum characters limit is 1600.\r\n\r\nPress 'Yes to continue to composer window and it will show first 1600 "
    "characters of your message otherwise press 'No''";

class Templates_Test : public Stores_Test
{
protected:
    static void Store(const QByteArray& bytes) { Write_Bytes(Templates_Path, bytes); }
    static QByteArray Stored() { return Bytes_Of(Templates_Path); }

    /// The editing dialog that opens next is shown to the person, who has to close it.
    void In_The_Dialog(const std::function<void(QWidget&)>& do_there)
    {
        m_user.When_Opens("UpdateTemp", [do_there](QWidget& dialog) {
            do_there(dialog);
            EXPECT_FALSE(dialog.isVisible());
            if (dialog.isVisible())
                dialog.close();
        });
    }
    static QPlainTextEdit& Text_In(const QWidget& dialog) { return In<QPlainTextEdit>(dialog, "m_templ_msg_str"); }
    static QString Label_In(const QWidget& dialog, const char* name) { return In<QLabel>(dialog, name).text(); }
    static QString Count_In(const QWidget& dialog) { return Label_In(dialog, "m_st_msg_cnt"); }
    static void Expect_Cleared()
    {
        const auto& dialog = *UpdateTemp::defaultInstance();
        EXPECT_EQ(Text_In(dialog).toPlainText(), QString());
        EXPECT_EQ(Label_In(dialog, "m_templ_index"), QString());
        EXPECT_EQ(Label_In(dialog, "m_s_temp_str"), QString());
        EXPECT_EQ(Count_In(dialog), "0 Characters");
    }
};

TEST_F(Templates_Test, The_File_Is_Shown_And_Written_Again_On_Close)
{
    Store(Golden("Templates.ZOVA"));
    Visit_Templates([this] {
        EXPECT_EQ(Count_Label(), "Total Items : 3");
        EXPECT_EQ(Shown().first(), "Dear  customer, your parcel is here.");
        Expect_Focus_On_Table();
    });
    EXPECT_EQ(Stored(), Golden("Templates.ZOVA"));
}

TEST_F(Templates_Test, The_Selected_Template_Is_Shown_In_Full)
{
    const QString long_text = "first\n" + QString(1500, u'x') + "\nlast";
    Store("short\n" + QString(long_text).replace(u"\n"_qs, u"|AP*|DX/"_qs).toUtf8() + '\n');
    Visit_Templates([&] {
        EXPECT_TRUE(Detail_View().isReadOnly());
        EXPECT_EQ(Detail(), QString());
        Select(1);
        EXPECT_EQ(Detail(), long_text);
        EXPECT_EQ(Table().model()->index(1, 0).data().toString(), long_text);
        Will_Enter("changed");
        Click("Update_Btn");
        EXPECT_EQ(Detail(), "changed");
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Detail(), "short");
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Detail(), QString());
    });
}

TEST_F(Templates_Test, What_A_Button_Or_Key_Can_Not_Do_Is_Told_And_The_Table_Has_The_Focus)
{
    Visit_Templates([this] {
        Expect_Told("Update_Btn", Empty_At_Update);
        Expect_Told("Clear_Sel_Btn", List_Empty);
        Expect_Told("Clear_All_Btn", "\nTemplates items list is empty.");
        Expect_Told("Use_template_Btn", List_Empty);
        Expect_Told("Export_Btn", List_Empty);
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Delete}) {
            m_user.Will_Press("OK");
            Press_Key(key);
            Expect_Focus_On_Table();
        }
        EXPECT_EQ(m_user.Was_Shown().mid(5), (QStringList{Empty_At_Update, List_Empty}));
    });
    Store("a\nb\n");
    Visit_Templates([this] {
        for (const char* button : {"Update_Btn", "Clear_Sel_Btn", "Use_template_Btn"})
            Expect_Told(button, None_Selected);
        Template_Window->Replace_Template(0, " \n ");
        Select(0);
        Expect_Told("Update_Btn", None_Selected); // a blank one can not be edited
        Template_Window->Replace_Template(0, "a");
        Select(0, 1);
        Expect_Told("Use_template_Btn", Select_One);
    });
    EXPECT_EQ(m_window.m_choices.composer_text, QString());
    EXPECT_EQ(Stored(), QByteArray("a\nb\n"));
}

TEST_F(Templates_Test, A_New_Template_Is_Trimmed_Added_And_Written_On_Close)
{
    Store("a\n");
    In_The_Dialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Add Templates");
        EXPECT_EQ(Count_In(dialog), "0 Characters");
        EXPECT_EQ(dialog.focusWidget(), &Text_In(dialog));
        Text_In(dialog).setPlainText("  line one\nline two\n\nline\u00a0four \n");
        EXPECT_EQ(Count_In(dialog), "32 Characters");
        Click_In(dialog, "OKPressed");
    });
    Visit_Templates([this] {
        Click("AddNew_Btn");
        EXPECT_EQ(Shown(), (QStringList{"a", "line one line two  line\u00a0four"}));
        EXPECT_EQ(Count_Label(), "Total Items : 2");
        EXPECT_EQ(Stored(), QByteArray("a\n")) << "memory only";
        Expect_Cleared();
    });
    EXPECT_EQ(UpdateTemp::defaultInstance()->result(), 1);
    EXPECT_EQ(Stored(), QByteArray("a\nline one|AP*|DX/line two|AP*|DX/|AP*|DX/line\xc2\xa0"
                                   "four\n"));
}

TEST_F(Templates_Test, A_Blank_Text_And_One_That_Exists_Are_Refused_And_The_Text_Keeps_The_Focus)
{
    const struct
    {
        const char* button;
        const char* text;
        QString told;
    } cases[] = {{"AddNew_Btn", "  \n ", "\nPlease type template message."},
                 {"AddNew_Btn", " a ", Exists_Already},
                 {"Update_Btn", "a", Exists_Already},
                 {"Update_Btn", "b ", Exists_Already}}; // itself, but for a blank
    Store("a\nb\n");
    Visit_Templates([&] {
        for (const auto& each : cases) {
            SCOPED_TRACE(each.text);
            m_user.Will_Press("OK");
            In_The_Dialog([&](QWidget& dialog) {
                Text_In(dialog).setPlainText(each.text);
                Click_In(dialog, "OKPressed");
                EXPECT_EQ(m_user.Was_Shown().last(), each.told);
                EXPECT_TRUE(dialog.isVisible());
                EXPECT_EQ(dialog.focusWidget(), &Text_In(dialog));
                Click_In(dialog, "CancelPressed");
            });
            Select(1);
            Click(each.button);
            EXPECT_EQ(UpdateTemp::defaultInstance()->result(), 0);
            Expect_Cleared();
        }
        EXPECT_EQ(Shown(), (QStringList{"a", "b"}));
    });
    EXPECT_EQ(Stored(), QByteArray("a\nb\n"));
}

TEST_F(Templates_Test, A_Long_Paste_Is_Cut_To_1600_Characters_And_In_The_Middle_Of_A_Pair_Is_Not_Added_Twice)
{
    const auto add = [&](bool is_there) {
        In_The_Dialog([is_there](QWidget& dialog) {
            for (const QString& text :
                 {QString(3 << 20, u'y'), QString(1599, u'x') + QString::fromUtf8("\U0001F600")}) {
                Text_In(dialog).selectAll();
                QApplication::clipboard()->setText(text);
                Text_In(dialog).paste();
                EXPECT_EQ(Text_In(dialog).toPlainText(), text.left(1600));
                EXPECT_EQ(Count_In(dialog), "1600 Characters");
            }
            Click_In(dialog, "OKPressed");
            EXPECT_EQ(dialog.isVisible(), is_there);
            dialog.close();
        });
        Click("AddNew_Btn");
    };
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    Visit_Templates([&] {
        add(false);
        add(true);
    });
    Visit_Templates([&] { add(true); });
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Exists_Already, Exists_Already}));
    EXPECT_EQ(Stored(), QByteArray(1599, 'x') + "\xef\xbf\xbd\n");
}

TEST_F(Templates_Test, Editing_Shows_The_Selected_Template_And_Puts_The_New_Text_In_Its_Place)
{
    Store("a\nb|AP*|DX/b\nc\n");
    In_The_Dialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Update Templates");
        EXPECT_EQ(Text_In(dialog).toPlainText(), "b\nb");
        EXPECT_EQ(Label_In(dialog, "m_s_temp_str"), "b\nb");
        EXPECT_EQ(Label_In(dialog, "m_templ_index"), "1");
        EXPECT_FALSE(In<QLabel>(dialog, "m_templ_index").isVisible());
        EXPECT_FALSE(In<QLabel>(dialog, "m_s_temp_str").isVisible());
        EXPECT_EQ(Count_In(dialog), "3 Characters");
        Text_In(dialog).setPlainText(" changed ");
        Click_In(dialog, "OKPressed");
    });
    Visit_Templates([this] {
        Select(1);
        Click("Update_Btn");
        EXPECT_EQ(Shown(), (QStringList{"a", "changed", "c"}));
        Expect_Cleared();
    });
    EXPECT_EQ(Stored(), QByteArray("a\nchanged\nc\n"));
}

TEST_F(Templates_Test, Editing_A_Template_Without_Changing_It_Keeps_What_No_Text_Area_Shows)
{
    for (const char* inside :
         {"", "\r", "\r\r", "\xe2\x80\xa8", "\xe2\x80\xa9", "\xc2\xa0", "\xef\xb7\x90", "\xef\xbf\xbd"}) {
        const QByteArray stored = QByteArray("a") + inside + "b\na|AP*|DX/b\n";
        Store(stored);
        In_The_Dialog([](QWidget& dialog) { Click_In(dialog, "OKPressed"); });
        Visit_Templates([this] {
            Select(0);
            Click("Update_Btn");
        });
        EXPECT_EQ(UpdateTemp::defaultInstance()->result(), 1);
        EXPECT_EQ(Stored(), stored);
    }
}

TEST_F(Templates_Test, F2_Return_Enter_And_A_Double_Click_Edit_The_Selected_Template)
{
    Store("a\nb\nc\nd\n");
    QStringList seen;
    Visit_Templates([&] {
        const std::function<void()> ways[] = {[] { Press_Key(Qt::Key_F2); }, [] { Press_Key(Qt::Key_Return); },
                                              [] { Press_Key(Qt::Key_Enter); }, [this] { Double_Click(3); }};
        for (const auto& open : ways) {
            Select(static_cast<int>(seen.size()));
            In_The_Dialog([&](QWidget& dialog) {
                EXPECT_EQ(dialog.windowTitle(), "Update Templates");
                seen.append(Text_In(dialog).toPlainText());
                Press_Key(Qt::Key_Escape);
            });
            open();
            Expect_Cleared(); // for a new one
        }
        EXPECT_EQ(seen, Shown());
    });
    EXPECT_EQ(seen.size(), 4);
}

TEST_F(Templates_Test, With_Several_Selected_Edit_Takes_The_First_And_A_Double_Click_Is_Refused)
{
    Store("a\nb\nc\n");
    In_The_Dialog([](QWidget& dialog) {
        EXPECT_EQ(Text_In(dialog).toPlainText(), "b");
        Click_In(dialog, "CancelPressed");
    });
    m_user.Will_Press("OK");
    Visit_Templates([this] {
        Select(2);
        Select_Also(1);
        Click("Update_Btn");
        Select(0, 1);
        Double_Click(1);
        Expect_Focus_On_Table();
        EXPECT_EQ(Selected(), (std::vector{0, 1}));
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Select_One});
}

TEST_F(Templates_Test, A_Created_Template_Is_Trimmed_And_Cut_And_A_Blank_One_Passed_Over)
{
    Visit_Templates([this] {
        Template_Window->Create_Template_List(" \n ");
        Template_Window->Create_Template_List(u' ' + QString(1700, u'x') + u' ');
        Template_Window->Create_Template_List(" b ");
        EXPECT_EQ(Count_Label(), "Total Items : 2");
        EXPECT_TRUE(Template_Window->Check_Duplicate_Template("b"));
        EXPECT_FALSE(Template_Window->Check_Duplicate_Template(" b"));
    });
    EXPECT_EQ(Stored(), QByteArray(1600, 'x') + "\nb\n");
}

TEST_F(Templates_Test, A_Template_Takes_The_Place_Of_The_Composers_Selection_And_The_File_Is_Written)
{
    Store("a\nnew\nc\n");
    m_window.m_choices.composer_text = "one two three";
    m_window.m_selection_start = 4;
    m_window.m_selection_length = 3;
    Visit_Templates([this] {
        Clear(0); // which leaves row 0 selected
        Click("Use_template_Btn");
        EXPECT_FALSE(m_visited->isVisible());
    });
    EXPECT_EQ(m_window.m_choices.composer_text, "one new three");
    EXPECT_EQ(Stored(), QByteArray("new\nc\n"));
}

TEST_F(Templates_Test, While_The_File_Is_Written_Neither_A_Second_Press_Nor_Escape_Does_Anything)
{
    Store("a\nb\n");
    std::unique_ptr<File_Lock> lock;
    const auto press_once_more = [&](QWidget&) {
        auto* button = &The<QPushButton>("Use_template_Btn");
        const QPoint place = button->mapTo(m_visited, button->rect().center());
        QTest::mouseClick(m_visited->windowHandle(), Qt::LeftButton, {},
                          place); // as from the window system
        QTest::keyClick(m_visited->windowHandle(), Qt::Key_Escape);
        m_visited->close();
        EXPECT_TRUE(m_visited->isVisible());
        lock.reset();
    };
    Visit_Templates([&] {
        lock = std::make_unique<File_Lock>(Templates_Path);
        Select(1);
        m_user.When_Opens("PleaseWait_Modeless",
                          press_once_more); // a slow load has had its own by now
        Click("Use_template_Btn");
    });
    EXPECT_EQ(m_window.m_choices.composer_text, "b");
    EXPECT_EQ(Stored(), QByteArray("a\nb\n"));
}

TEST_F(Templates_Test, A_Text_Longer_Than_1600_Is_Asked_About_And_Yes_Keeps_Its_First_1600_Characters)
{
    const struct
    {
        const char* name;
        int selected;
        QStringList answers;
        int code;
        QString text;
    } cases[] = {
        {"no", 99, {"No"}, 0, QString(700, u'c')},
        {"yes", 99, {"Yes"}, 1, QString(601, u'c') + QString(999, u't')},
        {"exactly 1600 with what is selected taken away", 100, {}, 1, QString(600, u'c') + QString(1000, u't')},
    };
    Store(QByteArray(1000, 't') + '\n');
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        const auto asked_before = m_user.Was_Shown().size();
        m_window.m_choices.composer_text = QString(700, u'c');
        m_window.m_selection_start = 700 - each.selected;
        m_window.m_selection_length = each.selected;
        for (const QString& answer : each.answers)
            m_user.Will_Press(answer);
        EXPECT_EQ(Visit_Templates([&] {
                      Select(0);
                      Click("Use_template_Btn");
                      EXPECT_EQ(m_visited->isVisible(), each.code == 0);
                  }),
                  each.code);
        EXPECT_EQ(m_user.Was_Shown().mid(asked_before), QStringList(each.answers.size(), Too_Long_Question));
        EXPECT_EQ(m_window.m_choices.composer_text, each.text);
    }
}

TEST_F(Templates_Test, An_Empty_List_Offers_To_Add_The_First)
{
    Visit_Templates([this] {
        auto& step = The<QPushButton>("First_Step_Here");
        EXPECT_TRUE(step.isVisible());
        EXPECT_EQ(Table().accessibleDescription(), "No text is kept here yet.");
        Will_Enter("See you");
        Click_Middle_Of(step);
        EXPECT_EQ(Shown(), QStringList("See you"));
        EXPECT_FALSE(step.isVisible());
    });
    EXPECT_EQ(Stored(), "See you\n");
}
