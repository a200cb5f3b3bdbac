#include "platform/Text_Files.h"
#include "records/Data_Paths.h"
#include "windows/stores/Templates.h"

#include "records/Samples.h"
#include "records/Template_Store.h"
#include "toolkit/List_Tables.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/Stores_Test.h"
#include "windows/stores/UpdateTemp.h"

#include <QClipboard>
#include <QWindow>

namespace {

const QString List_Empty = QStringLiteral("\nTemplates list is empty.");
const QString None_Selected =
    QStringLiteral("\nPlease select at least one record from the templates list to continue.");
const QString Select_One = QStringLiteral("\nPlease select only one record to update.");
const QString Exists_Already = QStringLiteral("\nEntered template already exists.");
const QString Too_Long_Question = QStringLiteral(
    "Maximum characters limit is 1600.\r\n\r\nPress 'Yes to continue to composer window and it will show first 1600 "
    "characters of your message otherwise press 'No''");

class Templates_Test : public Stores_Test
{
protected:
    QString Count_Label() const { return The<QLabel>("_templ_list_count").text(); }
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
    static QString Count_In(const QWidget& dialog) { return In<QLabel>(dialog, "m_st_msg_cnt").text(); }
    static QString Hidden_In(const QWidget& dialog, const char* name) { return In<QLabel>(dialog, name).text(); }
    static void Paste(QPlainTextEdit& edit, const QString& text)
    {
        edit.selectAll();
        QApplication::clipboard()->setText(text);
        edit.paste();
    }
    static void Expect_Cleared()
    {
        const auto& dialog = *UpdateTemp::defaultInstance();
        EXPECT_EQ(Text_In(dialog).toPlainText(), QString());
        EXPECT_EQ(Hidden_In(dialog, "m_templ_index"), QString());
        EXPECT_EQ(Hidden_In(dialog, "m_s_temp_str"), QString());
        EXPECT_EQ(Count_In(dialog), QStringLiteral("0 Characters"));
    }
};

} // namespace

TEST_F(Templates_Test, The_Shared_Window_Is_Known_By_Its_Global)
{
    EXPECT_EQ(Template_Window, nullptr);
    EXPECT_EQ(Templates::defaultInstance(), Templates::defaultInstance());
    EXPECT_EQ(Template_Window, Templates::defaultInstance());
    EXPECT_EQ(UpdateTemp::defaultInstance()->parentWidget(), Template_Window);
    End_Shared_Instances();
    EXPECT_EQ(Template_Window, nullptr);
}

TEST_F(Templates_Test, The_File_Is_Shown_And_Written_Again_On_Close)
{
    Write_Bytes(Templates_Path, Golden("Templates.ZOVA"));
    EXPECT_EQ(Visit_Templates([this] {
                  EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 3"));
                  EXPECT_EQ(Shown().first(), QStringLiteral("Dear  customer, your parcel is here."));
                  Expect_Focus_On_Table();
              }),
              0);
    EXPECT_EQ(Stored(), Golden("Templates.ZOVA"));
}

TEST_F(Templates_Test, The_Selected_Template_Is_Shown_In_Full)
{
    const QString long_text = QStringLiteral("first\n") + QString(1500, u'x') + QStringLiteral("\nlast");
    Write_Bytes(Templates_Path, "short\n" + QString(long_text).replace(u"\n"_qs, u"|AP*|DX/"_qs).toUtf8() + '\n');
    Visit_Templates([&] {
        const auto& detail = The<QPlainTextEdit>("_templ_det_edit");
        EXPECT_TRUE(detail.isReadOnly());
        EXPECT_EQ(detail.toPlainText(), QString());
        Select(1);
        EXPECT_EQ(detail.toPlainText(), long_text);
        EXPECT_EQ(Table().model()->index(1, 0).data().toString(), long_text);
        m_user.When_Opens("UpdateTemp", [](QWidget& dialog) {
            In<QPlainTextEdit>(dialog, "m_templ_msg_str").setPlainText(QStringLiteral("changed"));
            Click_In(dialog, "OKPressed");
        });
        Click("Update_Btn");
        EXPECT_EQ(detail.toPlainText(), QStringLiteral("changed"));
        Click("Clear_Sel_Btn");
        EXPECT_EQ(detail.toPlainText(), QStringLiteral("short"));
        Click("Clear_Sel_Btn");
        EXPECT_EQ(detail.toPlainText(), QString());
    });
}

TEST_F(Templates_Test, Duplicates_In_The_File_Collapse_On_Load_And_Close)
{
    Write_Bytes(Templates_Path, "a\nb\na\n b \n\n");
    Visit_Templates([this] { EXPECT_EQ(Shown(), (QStringList{"a", "b", "b"})); });
    EXPECT_EQ(Stored(), QByteArray("a\nb\nb\n"));
    Visit_Templates([this] { EXPECT_EQ(Shown(), (QStringList{"a", "b"})); });
    EXPECT_EQ(Stored(), QByteArray("a\nb\n"));
}

TEST_F(Templates_Test, An_Undecodable_File_Shows_Empty_And_Its_Bytes_Are_Kept_Beside_It)
{
    Write_Bytes(Templates_Path, "a\n\xfe\n");
    Visit_Templates([this] { EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 0")); });
    EXPECT_EQ(Stored(), QByteArray());
    EXPECT_EQ(Bytes_Of(Kept_Path(Templates_Path)), QByteArray("a\n\xfe\n"));
}

TEST_F(Templates_Test, With_No_Templates_Each_Button_Has_Its_Own_Words)
{
    const std::pair<const char*, QString> cases[] = {
        {"Update_Btn", QStringLiteral("\nTemplates number list is empty.")},
        {"Clear_Sel_Btn", List_Empty},
        {"Clear_All_Btn", QStringLiteral("\nTemplates items list is empty.")},
        {"Use_template_Btn", List_Empty},
        {"Export_Btn", List_Empty}};
    for (const auto& [button, text] : cases) {
        m_user.Will_Press("OK");
        Visit_Templates([&, clicked = button] {
            Click(clicked);
            Expect_Focus_On_Table();
        });
        EXPECT_EQ(m_user.Was_Shown().last(), text);
    }
}

TEST_F(Templates_Test, With_Nothing_Selected_Each_Button_Says_So)
{
    Write_Bytes(Templates_Path, "a\nb\n");
    for (const char* button : {"Update_Btn", "Clear_Sel_Btn", "Use_template_Btn"}) {
        m_user.Will_Press("OK");
        Visit_Templates([&] {
            Click(button);
            Expect_Focus_On_Table();
        });
        EXPECT_EQ(m_user.Was_Shown().last(), None_Selected);
    }
    EXPECT_EQ(Stored(), QByteArray("a\nb\n"));
}

// -------------------------------------------------------------------------------------------------- deleting

TEST_F(Templates_Test, Selected_Templates_Leave_The_List_At_Once_And_The_File_On_Close)
{
    Write_Bytes(Templates_Path, "a\nb\nc\nd\n");
    Visit_Templates([this] {
        Select(0);
        Select_Also(2);
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Shown(), (QStringList{"b", "d"}));
        EXPECT_EQ(Selected(), QList{0});
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 2"));
        EXPECT_EQ(Stored(), QByteArray("a\nb\nc\nd\n"));
    });
    EXPECT_EQ(Stored(), QByteArray("b\nd\n"));
}

TEST_F(Templates_Test, Clearing_All_Asks_First)
{
    Write_Bytes(Templates_Path, "a\nb\n");
    m_user.Will_Press("No");
    m_user.Will_Press("Yes");
    Visit_Templates([this] {
        Click("Clear_All_Btn");
        EXPECT_EQ(Shown(), (QStringList{"a", "b"}));
        Click("Clear_All_Btn");
        EXPECT_EQ(Shown(), QStringList());
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 0"));
        EXPECT_EQ(Stored(), QByteArray());
    });
    EXPECT_EQ(m_user.Was_Shown().last(), QStringLiteral("\nThis option will clear the entire list contents. Are you "
                                                        "sure you want to continue clearing the entire list?"));
    EXPECT_EQ(Stored(), QByteArray());
}

TEST_F(Templates_Test, Templates_Appended_While_The_Window_Is_Open_Are_Still_There_After_It_Closes)
{
    Write_Bytes(Templates_Path, "a\nb\n");
    Visit_Templates([this] {
        EXPECT_TRUE(Template_Store::Append("c"));
        Select(0);
        Click("Clear_Sel_Btn");
    });
    EXPECT_EQ(Stored(), QByteArray("b\nc\n"));
}

// ---------------------------------------------------------------------------------------- adding and editing

TEST_F(Templates_Test, A_New_Template_Is_Trimmed_Added_And_Written_On_Close)
{
    Write_Bytes(Templates_Path, "a\n");
    In_The_Dialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Add Templates"));
        EXPECT_EQ(Count_In(dialog), QStringLiteral("0 Characters"));
        EXPECT_EQ(dialog.focusWidget(), &Text_In(dialog));
        Text_In(dialog).setPlainText(QStringLiteral("  line one\nline two\n\nline four \n"));
        EXPECT_EQ(Count_In(dialog), QStringLiteral("32 Characters"));
        Click_In(dialog, "OKPressed");
    });
    Visit_Templates([this] {
        Click("AddNew_Btn");
        EXPECT_EQ(Shown(), (QStringList{"a", "line one line two  line four"}));
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 2"));
        EXPECT_EQ(Stored(), QByteArray("a\n")) << "memory only";
        Expect_Cleared();
    });
    EXPECT_EQ(UpdateTemp::defaultInstance()->result(), 1);
    EXPECT_EQ(Stored(), QByteArray("a\nline one|AP*|DX/line two|AP*|DX/|AP*|DX/line four\n"));
    Visit_Templates([this] { EXPECT_EQ(Shown().size(), 2); });
    EXPECT_EQ(Stored(), QByteArray("a\nline one|AP*|DX/line two|AP*|DX/|AP*|DX/line four\n"));
}

TEST_F(Templates_Test, A_Blank_Template_Is_Refused_And_The_Text_Keeps_The_Focus)
{
    m_user.Will_Press("OK");
    In_The_Dialog([](QWidget& dialog) {
        Text_In(dialog).setPlainText(QStringLiteral("  \n "));
        Click_In(dialog, "OKPressed");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.focusWidget(), &Text_In(dialog));
        Click_In(dialog, "CancelPressed");
    });
    Visit_Templates([this] { Click("AddNew_Btn"); });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QStringLiteral("\nPlease type template message.")});
    EXPECT_EQ(UpdateTemp::defaultInstance()->result(), 0);
    Expect_Cleared();
    EXPECT_EQ(Stored(), QByteArray());
}

TEST_F(Templates_Test, A_New_Template_That_Exists_Is_Refused)
{
    Write_Bytes(Templates_Path, "a\n");
    m_user.Will_Press("OK");
    In_The_Dialog([](QWidget& dialog) {
        Text_In(dialog).setPlainText(QStringLiteral(" a "));
        Click_In(dialog, "OKPressed");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.focusWidget(), &Text_In(dialog));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Visit_Templates([this] {
        Click("AddNew_Btn");
        EXPECT_EQ(Shown(), QStringList{"a"});
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Exists_Already});
    Expect_Cleared();
}

TEST_F(Templates_Test, A_Long_Paste_Is_Cut_To_1600_Characters_At_Once)
{
    In_The_Dialog([](QWidget& dialog) {
        Paste(Text_In(dialog), QString(1700, u'x'));
        EXPECT_EQ(Text_In(dialog).toPlainText(), QString(1600, u'x'));
        EXPECT_EQ(Count_In(dialog), QStringLiteral("1600 Characters"));
        Paste(Text_In(dialog), QString(3 << 20, u'y'));
        EXPECT_EQ(Text_In(dialog).toPlainText(), QString(1600, u'y'));
        EXPECT_EQ(Count_In(dialog), QStringLiteral("1600 Characters"));
        Click_In(dialog, "OKPressed");
    });
    Visit_Templates([this] { Click("AddNew_Btn"); });
    EXPECT_EQ(Stored(), QByteArray(1600, 'y') + '\n');
}

TEST_F(Templates_Test, No_Break_Spaces_Are_Stored_As_They_Were_Typed)
{
    In_The_Dialog([](QWidget& dialog) {
        Text_In(dialog).setPlainText(QStringLiteral("a\u00a0b"));
        Click_In(dialog, "OKPressed");
    });
    Visit_Templates([this] { Click("AddNew_Btn"); });
    EXPECT_EQ(Stored(), QByteArray("a\xc2\xa0"
                                   "b\n"));
}

TEST_F(Templates_Test, Editing_Shows_The_Selected_Template_And_Puts_The_New_Text_In_Its_Place)
{
    Write_Bytes(Templates_Path, "a\nb|AP*|DX/b\nc\n");
    In_The_Dialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Update Templates"));
        EXPECT_EQ(Text_In(dialog).toPlainText(), QStringLiteral("b\nb"));
        EXPECT_EQ(Hidden_In(dialog, "m_s_temp_str"), QStringLiteral("b\nb"));
        EXPECT_EQ(Hidden_In(dialog, "m_templ_index"), QStringLiteral("1"));
        EXPECT_FALSE(In<QLabel>(dialog, "m_templ_index").isVisible());
        EXPECT_FALSE(In<QLabel>(dialog, "m_s_temp_str").isVisible());
        EXPECT_EQ(Count_In(dialog), QStringLiteral("3 Characters"));
        Text_In(dialog).setPlainText(QStringLiteral(" changed "));
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

TEST_F(Templates_Test, Editing_A_Template_Without_Changing_It_Is_Accepted)
{
    Write_Bytes(Templates_Path, "a\nb\n");
    In_The_Dialog([](QWidget& dialog) { Click_In(dialog, "OKPressed"); });
    Visit_Templates([this] {
        Select(1);
        Click("Update_Btn");
    });
    EXPECT_EQ(UpdateTemp::defaultInstance()->result(), 1);
    EXPECT_EQ(Stored(), QByteArray("a\nb\n"));
}

TEST_F(Templates_Test, Editing_A_Template_Without_Changing_It_Keeps_What_No_Text_Area_Shows)
{
    for (const char* inside : {"\r", "\r\r", "\xe2\x80\xa8", "\xe2\x80\xa9", "\xc2\xa0", "\xef\xb7\x90"}) {
        const QByteArray stored = QByteArray("a") + inside + "b\na|AP*|DX/b\n";
        Write_Bytes(Templates_Path, stored);
        In_The_Dialog([](QWidget& dialog) { Click_In(dialog, "OKPressed"); });
        Visit_Templates([this] {
            Select(0);
            Click("Update_Btn");
        });
        EXPECT_EQ(UpdateTemp::defaultInstance()->result(), 1);
        EXPECT_EQ(Stored(), stored);
    }
}

TEST_F(Templates_Test, A_Text_Cut_In_The_Middle_Of_A_Pair_Is_Not_Added_Twice)
{
    const QString text = QString(1599, u'x') + QString::fromUtf8("\U0001F600");
    const auto add = [&](bool is_there) {
        In_The_Dialog([text, is_there](QWidget& dialog) {
            Paste(Text_In(dialog), text);
            EXPECT_EQ(Count_In(dialog), QStringLiteral("1600 Characters"));
            Click_In(dialog, "OKPressed");
            EXPECT_EQ(dialog.isVisible(), is_there);
            if (is_there)
                Click_In(dialog, "CancelPressed");
        });
        if (is_there)
            m_user.Will_Press("OK");
        Click("AddNew_Btn");
    };
    Visit_Templates([&] {
        add(false);
        add(true);
        In_The_Dialog([](QWidget& dialog) { Click_In(dialog, "OKPressed"); });
        Select(0);
        Click("Update_Btn");
    });
    Visit_Templates([&] { add(true); });
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Exists_Already, Exists_Already}));
    EXPECT_EQ(Stored(), QByteArray(1599, 'x') + "\xef\xbf\xbd\n");
}

TEST_F(Templates_Test, A_Blank_Template_Can_Not_Be_Edited)
{
    Write_Bytes(Templates_Path, "a\nb\n");
    m_user.Will_Press("OK");
    Visit_Templates([this] {
        Template_Window->Replace_Template(0, QStringLiteral(" \n "));
        Select(0);
        Click("Update_Btn");
        Expect_Focus_On_Table();
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{None_Selected});
}

TEST_F(Templates_Test, Editing_A_Template_Into_Another_Or_Adding_A_Blank_To_It_Is_Refused)
{
    Write_Bytes(Templates_Path, "a\nb\n");
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    In_The_Dialog([](QWidget& dialog) {
        Text_In(dialog).setPlainText(QStringLiteral("a"));
        Click_In(dialog, "OKPressed");
        EXPECT_TRUE(dialog.isVisible());
        Text_In(dialog).setPlainText(QStringLiteral("b "));
        Click_In(dialog, "OKPressed");
        EXPECT_TRUE(dialog.isVisible());
        Click_In(dialog, "CancelPressed");
    });
    Visit_Templates([this] {
        Select(1);
        Click("Update_Btn");
    });
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Exists_Already, Exists_Already}));
    EXPECT_EQ(Stored(), QByteArray("a\nb\n"));
}

TEST_F(Templates_Test, With_Several_Selected_The_First_Is_Edited)
{
    Write_Bytes(Templates_Path, "a\nb\nc\n");
    In_The_Dialog([](QWidget& dialog) {
        EXPECT_EQ(Text_In(dialog).toPlainText(), QStringLiteral("b"));
        Click_In(dialog, "CancelPressed");
    });
    Visit_Templates([this] {
        Select(2);
        Select_Also(1);
        Click("Update_Btn");
    });
}

TEST_F(Templates_Test, A_Double_Click_Edits_The_Row)
{
    Write_Bytes(Templates_Path, "a\nb\nc\n");
    In_The_Dialog([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Update Templates"));
        EXPECT_EQ(Text_In(dialog).toPlainText(), QStringLiteral("c"));
        Click_In(dialog, "CancelPressed");
    });
    Visit_Templates([this] { Double_Click(2); });
}

TEST_F(Templates_Test, A_Double_Click_With_Several_Selected_Is_Refused)
{
    Write_Bytes(Templates_Path, "a\nb\nc\n");
    m_user.Will_Press("OK");
    Visit_Templates([this] {
        Table().setCurrentIndex(Table().model()->index(0, 0));
        Double_Click(2, Qt::ShiftModifier);
        Expect_Focus_On_Table();
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Select_One});
}

TEST_F(Templates_Test, A_Double_Click_On_One_Of_Several_Selected_Is_Refused_And_They_Stay_Selected)
{
    Write_Bytes(Templates_Path, "a\nb\nc\n");
    m_user.Will_Press("OK");
    Visit_Templates([this] {
        Select(0, 1);
        Double_Click(1);
        Expect_Focus_On_Table();
        EXPECT_EQ(Selected(), (QList<int>{0, 1}));
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Select_One});
}

TEST_F(Templates_Test, After_Editing_A_New_Template_Starts_From_Empty_Fields)
{
    Write_Bytes(Templates_Path, "a\n");
    In_The_Dialog([](QWidget& dialog) { Click_In(dialog, "CancelPressed"); });
    In_The_Dialog([](QWidget& dialog) {
        Expect_Cleared();
        Text_In(dialog).setPlainText(QStringLiteral("b"));
        Click_In(dialog, "OKPressed");
    });
    Visit_Templates([this] {
        Select(0);
        Click("Update_Btn");
        Click("AddNew_Btn");
        EXPECT_EQ(Shown(), (QStringList{"a", "b"}));
    });
}

// ------------------------------------------------------------------------------------------ using a template

TEST_F(Templates_Test, A_Template_Takes_The_Place_Of_The_Composers_Selection)
{
    Write_Bytes(Templates_Path, "a\nnew\n");
    m_window.m_choices.composer_text = QStringLiteral("one two three");
    m_window.m_selection_start = 4;
    m_window.m_selection_length = 3;
    EXPECT_EQ(Visit_Templates([this] {
                  Select(1);
                  Click("Use_template_Btn");
                  EXPECT_FALSE(m_visited->isVisible());
              }),
              1);
    EXPECT_EQ(m_window.m_choices.composer_text, QStringLiteral("one new three"));
}

TEST_F(Templates_Test, Using_A_Template_Writes_The_File)
{
    Write_Bytes(Templates_Path, "a\nb\nc\n");
    Visit_Templates([this] {
        Select(0);
        Click("Clear_Sel_Btn");
        Click("Use_template_Btn");
    });
    EXPECT_EQ(m_window.m_choices.composer_text, QStringLiteral("b"));
    EXPECT_EQ(Stored(), QByteArray("b\nc\n"));
}

TEST_F(Templates_Test, While_The_File_Is_Written_Neither_A_Second_Press_Nor_Escape_Does_Anything)
{
    Write_Bytes(Templates_Path, "a\nb\n");
    std::atomic<bool> may_write{false};
    const auto press_once_more = [&](QWidget&) {
        auto* button = &The<QPushButton>("Use_template_Btn");
        const QPoint place = button->mapTo(m_visited, button->rect().center());
        QTest::mouseClick(m_visited->windowHandle(), Qt::LeftButton, {}, place); // as from the window system
        QTest::keyClick(m_visited->windowHandle(), Qt::Key_Escape);
        m_visited->close();
        EXPECT_TRUE(m_visited->isVisible());
        may_write = true;
        may_write.notify_all();
    };
    EXPECT_EQ(Visit_Templates([&] {
                  std::atomic<bool> is_held{false};
                  Start_Worker("holds the file", [&] {
                      const File_Lock lock(Templates_Path);
                      is_held = true;
                      may_write.wait(false);
                  });
                  EXPECT_TRUE(Serve_Until([&] { return is_held.load(); }));
                  Select(1);
                  m_user.When_Opens("PleaseWait_Modeless", press_once_more); // a slow load has had its own by now
                  Click("Use_template_Btn");
              }),
              1);
    EXPECT_EQ(m_window.m_choices.composer_text, QStringLiteral("b"));
    EXPECT_EQ(Stored(), QByteArray("a\nb\n"));
}

TEST_F(Templates_Test, Several_Templates_Can_Not_Be_Used_At_Once)
{
    Write_Bytes(Templates_Path, "a\nb\n");
    m_user.Will_Press("OK");
    Visit_Templates([this] {
        Select(0, 1);
        Click("Use_template_Btn");
        Expect_Focus_On_Table();
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Select_One});
    EXPECT_EQ(m_window.m_choices.composer_text, QString());
}

TEST_F(Templates_Test, A_Text_Longer_Than_1600_Asks_And_No_Changes_Nothing)
{
    Write_Bytes(Templates_Path, QByteArray(1000, 't') + '\n');
    m_window.m_choices.composer_text = QString(700, u'c');
    m_user.Will_Press("No");
    EXPECT_EQ(Visit_Templates([this] {
                  Select(0);
                  Click("Use_template_Btn");
                  EXPECT_TRUE(m_visited->isVisible());
              }),
              0);
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Too_Long_Question});
    EXPECT_EQ(m_window.m_choices.composer_text, QString(700, u'c'));
}

TEST_F(Templates_Test, A_Text_Longer_Than_1600_Asks_And_Yes_Keeps_Its_First_1600_Characters)
{
    Write_Bytes(Templates_Path, QByteArray(1000, 't') + '\n');
    m_window.m_choices.composer_text = QString(700, u'c');
    m_window.m_selection_start = 700;
    m_user.Will_Press("Yes");
    EXPECT_EQ(Visit_Templates([this] {
                  Select(0);
                  Click("Use_template_Btn");
              }),
              1);
    EXPECT_EQ(m_window.m_choices.composer_text, QString(700, u'c') + QString(900, u't'));
}

TEST_F(Templates_Test, A_Text_Of_Exactly_1600_With_What_Is_Selected_Taken_Away_Is_Not_Asked_About)
{
    Write_Bytes(Templates_Path, QByteArray(1000, 't') + '\n');
    m_window.m_choices.composer_text = QString(700, u'c');
    m_window.m_selection_length = 100;
    EXPECT_EQ(Visit_Templates([this] {
                  Select(0);
                  Click("Use_template_Btn");
              }),
              1);
    EXPECT_EQ(m_window.m_choices.composer_text.size(), 1600);
}

// ------------------------------------------------------------------------------------------------- the list

TEST_F(Templates_Test, A_Created_Template_Is_Trimmed_And_Cut_And_A_Blank_One_Passed_Over)
{
    Visit_Templates([this] {
        Template_Window->Create_Template_List(QStringLiteral(" \n "));
        Template_Window->Create_Template_List(u' ' + QString(1700, u'x') + u' ');
        Template_Window->Create_Template_List(QStringLiteral(" b "));
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 2"));
        EXPECT_TRUE(Template_Window->Check_Duplicate_Template(QStringLiteral("b")));
        EXPECT_FALSE(Template_Window->Check_Duplicate_Template(QStringLiteral(" b")));
    });
    EXPECT_EQ(Stored(), QByteArray(1600, 'x') + "\nb\n");
}

TEST_F(Templates_Test, The_Count_Label_Reloads_The_Table_Once_At_Exactly_Ten)
{
    Visit_Templates([this] {
        for (int i = 1; i <= 12; ++i) {
            Template_Window->Create_Template_List(QString::number(i));
            EXPECT_EQ(Table().model()->rowCount(), i < 10 ? 0 : 10);
        }
    });
}

TEST_F(Templates_Test, A_Long_Load_Shows_Its_First_Ten_Rows_Early)
{
    QByteArray lines;
    for (int i = 0; i < 500; ++i)
        lines += QByteArray::number(i) + '\n';
    Write_Bytes(Templates_Path, lines);
    QList<int> rows_shown;
    auto* table = Templates::defaultInstance()->findChild<QTableView*>();
    QObject::connect(table->model(), &QAbstractItemModel::rowsInserted, table,
                     [&] { rows_shown.append(table->model()->rowCount()); });
    Visit_Templates([] {});
    EXPECT_EQ(rows_shown, (QList{10, 500}));
}

TEST_F(Templates_Test, A_Row_Outside_The_List_Is_An_Invalid_Parameter)
{
    Write_Bytes(Templates_Path, "a\n");
    Visit_Templates([this] {
        EXPECT_THROW(Template_Window->tableView(&Table(), "Message", -1), Invalid_Parameter);
        EXPECT_THROW(Template_Window->tableView(&Table(), "Message", 1), Invalid_Parameter);
        EXPECT_EQ(Template_Window->tableView(&Table(), "Message", 0), QStringLiteral("a"));
    });
}
