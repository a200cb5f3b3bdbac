#include "gui/Importing_Program.h"
#include "support/Keys.h"

#include <algorithm>

// What is said of numbers that come in many at a time, and the ways of theirs beside the panel.
class List_Arrivals_Test : public Importing_Program
{
protected:
    QWidget& Strip() { return The<QWidget>("_Import_Strip"); }
    /// What is said; nothing while the strip is hidden.
    QString Said() { return Strip().isVisible() ? The<QLabel>("_Import_Words").text() : QString(); }
    bool Are_Lines_Shown() const { return Is_Shown("Unused_Lines_Wnd"); }
    QStringList Lines(int column) { return Rows_Of(In<QTableView>(The<QWidget>("Unused_Lines_Wnd"), "_Rows"), column); }

    void Paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QApplication::setActiveWindow(m_delegate.get()); // which a desktop does when the sheet has gone
        The<QTableView>("idTableView").setFocus();
        QTest::keySequence(m_delegate->windowHandle(), QKeySequence::Paste);
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    }

    /// Drags files over a control and lets go of them there. Answers whether they were taken.
    bool Drop(const char* control, const QStringList& paths, Qt::DropActions offered = Qt::CopyAction | Qt::LinkAction)
    {
        QMimeData data;
        QList<QUrl> places;
        for (const QString& path : paths)
            places.append(QUrl::fromLocalFile(path));
        data.setUrls(places);
        const auto& target = The<QWidget>(control);
        const QPoint place = target.mapTo(m_delegate.get(), target.rect().center());
        QDragEnterEvent enter(place, offered, &data, Qt::LeftButton, {});
        QApplication::sendEvent(m_delegate->windowHandle(), &enter);
        QDropEvent drop(place, offered, &data, Qt::LeftButton, {});
        if (enter.isAccepted())
            QApplication::sendEvent(m_delegate->windowHandle(), &drop);
        QCoreApplication::processEvents();
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        return enter.isAccepted();
    }
};

TEST_F(List_Arrivals_Test, An_Import_Says_What_It_Did_And_Shows_The_Lines_That_It_Did_Not_Use)
{
    m_delegate->Create_Exclusion_List("333");
    Tick("_Skip_Duplicate_Chk");
    Tick("_Exclusion_Chk");
    Load("111\r\nAnn;222\n\n111\n333\n444\n");
    EXPECT_EQ(Numbers(), (QStringList{"111", "444"}));
    EXPECT_EQ(Said(), "2 added, 3 lines not used.");
    EXPECT_TRUE(Has_Focus("Load_Number"));
    EXPECT_FALSE(Are_Lines_Shown());
    Click("Show_Unused_Btn");
    ASSERT_TRUE(Are_Lines_Shown());
    EXPECT_EQ(Lines(0).join(u' '), "2 4 5");
    EXPECT_EQ(Lines(1), (QStringList{"Ann;222", "111", "333"}));
    EXPECT_EQ(Lines(2), (QStringList{"No phone number", "Already in the list", "In an exclusion list"}));
    Add("555"); // the main window takes input
    EXPECT_EQ(Numbers().last(), "555");
    EXPECT_EQ(Said(), "2 added, 3 lines not used.");
    Click_In(The<QWidget>("Unused_Lines_Wnd"), "Close_Btn");
    EXPECT_FALSE(Are_Lines_Shown());
    Click("Dismiss_Import_Btn");
    EXPECT_EQ(Said(), "");
    EXPECT_EQ(user.Was_Shown(), QStringList());
}

TEST_F(List_Arrivals_Test, Tab_Comes_To_What_Is_Said_After_The_List)
{
    Load("111\nname\n");
    The<QTableView>("idTableView").setFocus();
    EXPECT_TRUE(
        Tab_Order(*m_delegate).join(u' ').startsWith("idTableView Show_Unused_Btn Dismiss_Import_Btn Export_Btn "));
}

TEST_F(List_Arrivals_Test, The_Next_Import_Takes_The_Place_Of_The_Last)
{
    Load("111\nname\n");
    EXPECT_EQ(Said(), "1 added, 1 line not used.");
    Click("Show_Unused_Btn");
    Will_Answer("NOPressed");
    Load("222\n333\n");
    EXPECT_EQ(Said(), "2 added.");
    EXPECT_FALSE(Are_Lines_Shown());
    EXPECT_FALSE(The<QWidget>("Show_Unused_Btn").isVisible());
    Will_Answer("NOPressed");
    user.Will_Handle(
        [this](QMessageBox& box) {
            EXPECT_EQ(Said(), ""); // one after the other
            box.accept();
        },
        "the notice that nothing was added");
    Load("name\n");
    EXPECT_EQ(Said(), "0 added, 1 line not used.");
    user.Will_Press("OK");
    Load_Past_The_Panel(File("other.txt", "\xff\n"));
    EXPECT_EQ(Said(), "0 added: there was no text that could be read.");
    Load_Past_The_Panel(m_folder.filePath("gone.txt"));
    EXPECT_EQ(Said(), "0 added: the file could not be read.");
    EXPECT_EQ(user.Was_Shown().size(), 2);
}

TEST_F(List_Arrivals_Test, What_Was_Said_Goes_When_The_List_Is_Emptied)
{
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"Clear All",
         [this] {
             user.Will_Press("Yes");
             Click("Clear_All_Btn");
         }},
        {"Clear Selected",
         [this] {
             Select_Rows({0});
             Click("Clear_Sel_Btn");
             EXPECT_EQ(Said(), "2 added, 1 line not used.");
             Click("Clear_Sel_Btn");
         }},
        {"Reset", [this] { Click("Reset_Btn"); }},
        {"the answer before an import",
         [this] {
             Will_Answer("YESPressed");
             user.Will_Do([](QDialog* panel) { panel->reject(); });
             Press_Import();
         }},
    };
    for (const auto& [name, empty] : ways) {
        SCOPED_TRACE(name);
        Load("111\n222\nname\n");
        Click("Show_Unused_Btn");
        ASSERT_TRUE(Are_Lines_Shown());
        empty();
        EXPECT_EQ(Said(), "");
        EXPECT_FALSE(Are_Lines_Shown());
    }
}

TEST_F(List_Arrivals_Test, An_Import_That_Is_Not_Begun_Leaves_What_Was_Said)
{
    Load("111\nname\n");
    Will_Answer("CancelPressed");
    Press_Import();
    EXPECT_EQ(Said(), "1 added, 1 line not used.");
}

// ---- The clipboard

TEST_F(List_Arrivals_Test, Numbers_Are_Pasted_Behind_Those_In_The_List_With_The_Composers_Text)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
    Add("999");
    Type_Number("12"); // which stays
    Tick("_Skip_Duplicate_Chk");
    Paste("+44-20\r\n999\n\nAnn\n{\\222}");
    EXPECT_EQ(Numbers(), (QStringList{"999", "004420", "222"}));
    EXPECT_EQ(Shown(2, 1), "Hello");
    EXPECT_EQ(Count_Label(), "Total Numbers : 3");
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), "Hello");
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "12");
    EXPECT_EQ(Said(), "2 added, 2 lines not used.");
    EXPECT_TRUE(Has_Focus("idTableView"));
    Click("Show_Unused_Btn");
    EXPECT_EQ(Lines(1), (QStringList{"999", "Ann"}));
    EXPECT_EQ(user.Was_Shown(), QStringList());
    Expect_The_Window_Free();
}

TEST_F(List_Arrivals_Test, What_Brings_Nothing_Is_Said_Without_A_Box)
{
    Paste("Ann\nBob\n");
    EXPECT_EQ(Said(), "0 added, 2 lines not used.");
    Paste("");
    EXPECT_EQ(Said(), "0 added: there was no text that could be read.");
    QGuiApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
    m_delegate->Paste_Numbers();
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_EQ(Said(), "0 added: there was no text that could be read.");
    EXPECT_EQ(Numbers(), QStringList());
    EXPECT_EQ(user.Was_Shown(), QStringList());
    Expect_The_Window_Free();
    user.Will_Press("OK"); // but a file still gets the one it always got
    Load("Ann\n");
    EXPECT_EQ(user.Was_Shown().size(), 1);
}

TEST_F(List_Arrivals_Test, Pasting_Is_In_The_Menu_Of_The_List_And_Elsewhere_Means_What_It_Means_Everywhere)
{
    QGuiApplication::clipboard()->setText("111\n222");
    The<QPlainTextEdit>("_messageEdit").setFocus();
    QTest::keySequence(m_delegate->windowHandle(), QKeySequence::Paste);
    EXPECT_EQ(The<QPlainTextEdit>("_messageEdit").toPlainText(), "111\n222");
    EXPECT_EQ(Numbers(), QStringList());
    auto& table = The<QTableView>("idTableView");
    bool was_there = false;
    QTimer::singleShot(0, &table, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        const auto actions = menu->actions();
        was_there = std::any_of(actions.begin(), actions.end(),
                                [](const QAction* action) { return action->text() == "&Paste numbers"; });
        QTest::keyClick(menu, Qt::Key_P);
    });
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(5, 5), table.viewport()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(table.viewport(), &asked);
    EXPECT_TRUE(was_there);
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    EXPECT_EQ(Numbers(), (QStringList{"111", "222"}));
}

// ---- Files that are dropped

TEST_F(List_Arrivals_Test, A_File_Dropped_On_The_List_Comes_In_As_If_It_Had_Been_Picked)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
    Type_Number("999"); // which goes
    EXPECT_TRUE(Drop("idTableView", {File("numbers.txt", "111\nname\n")}));
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "");
    EXPECT_EQ(Numbers(), QStringList{"111"});
    EXPECT_EQ(Shown(0, 1), "Hello");
    EXPECT_EQ(Said(), "1 added, 1 line not used.");
    Will_Answer("CancelPressed");
    EXPECT_TRUE(Drop("idTableView", {File("more.txt", "222\n")}));
    EXPECT_EQ(Numbers(), QStringList{"111"});
    Will_Answer("NOPressed");
    EXPECT_TRUE(Drop("_gsm_list_count", {File("more.rtf", "{\\rtf1\\ansi +222\\par}")}));
    EXPECT_EQ(Numbers(), (QStringList{"111", "00222"}));
    Will_Answer("YESPressed");
    EXPECT_TRUE(Drop("idTableView", {File("more.txt", "333\n")}));
    EXPECT_EQ(Numbers(), QStringList{"333"});
    Will_Answer("NOPressed");
    user.Will_Press("OK");
    EXPECT_TRUE(Drop("idTableView", {File("none.txt", "name\n")}));
    EXPECT_EQ(Said(), "0 added, 1 line not used.");
    Expect_The_Window_Free();
}

TEST_F(List_Arrivals_Test, What_Is_Not_One_File_Is_Not_Taken)
{
    const QString file = File("numbers.txt", "111\n");
    const std::pair<QStringList, Qt::DropActions> cases[] = {
        {{}, Qt::CopyAction},
        {{file, file}, Qt::CopyAction},
        {{m_folder.path()}, Qt::CopyAction},
        {{m_folder.filePath("gone.txt")}, Qt::CopyAction},
        {{"/dev/zero"}, Qt::CopyAction},
        {{file}, Qt::MoveAction}, // which would take it away from where it is
    };
    for (const auto& [paths, offered] : cases)
        EXPECT_FALSE(Drop("idTableView", paths, offered)) << qPrintable(paths.join(u' '));
    EXPECT_EQ(Numbers(), QStringList());
    EXPECT_EQ(Said(), "");
}
