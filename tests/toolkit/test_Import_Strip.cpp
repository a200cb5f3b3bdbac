#include "support/In_Windows.h"
#include "toolkit/Import_Strip.h"
#include "toolkit/Window_Look.h"

#include <QAccessible>

namespace {

Import_Report Report_Of(int added, const QStringList& unused = {},
                        Import_Report::End end = Import_Report::End::Complete)
{
    Import_Report report;
    for (int number = 0; number < added; ++number)
        report.Count_Added();
    for (const QString& line : unused)
        report.Accepts(line, {}, {});
    report.Set_End(end);
    return report;
}

struct Said
{
    const char* name;
    int added;
    int unused;
    Import_Report::End end;
    const char* words;
};

class Import_Words : public testing::TestWithParam<Said>
{
};

TEST_P(Import_Words, Say_What_An_Import_Did)
{
    const auto& [name, added, unused, end, words] = GetParam();
    EXPECT_EQ(Import_In_Words(Report_Of(added, QStringList(unused, "name"), end)), words);
}

INSTANTIATE_TEST_SUITE_P(
    Each, Import_Words,
    testing::Values(
        Said{"Some_And_Some_Not", 198, 2, Import_Report::End::Complete, "198 added, 2 lines not used."},
        Said{"One_Not", 1, 1, Import_Report::End::Complete, "1 added, 1 line not used."},
        Said{"All", 3, 0, Import_Report::End::Complete, "3 added."},
        Said{"None", 0, 3, Import_Report::End::Complete, "0 added, 3 lines not used."},
        Said{"More_Than_Are_Noted", 0, 10'500, Import_Report::End::Complete, "0 added, 10500 lines not used."},
        Said{"No_Text", 0, 0, Import_Report::End::Complete, "0 added: there was no text that could be read."},
        Said{"No_File", 0, 0, Import_Report::End::Unread, "0 added: the file could not be read."},
        Said{"Broken_Off", 5, 2, Import_Report::End::Early, "5 added, 2 lines not used.\nThen it ended early."},
        Said{"Broken_Off_At_Once", 0, 0, Import_Report::End::Early, "0 added.\nThen it ended early."}),
    [](const auto& each) { return each.param.name; });

// A strip between a field and a button of a window.
class Import_Strip_Test : public testing::Test
{
protected:
    Import_Strip_Test()
    {
        Apply_Application_Look(*qApp);
        auto* column = new QVBoxLayout(&m_window);
        for (QWidget* part :
             {static_cast<QWidget*>(m_field), static_cast<QWidget*>(m_strip), static_cast<QWidget*>(m_button)})
            column->addWidget(part);
        m_strip->Follow(*m_field);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field->setFocus();
    }

    QString Words() const { return In<QLabel>(*m_strip, "_Import_Words").text(); }
    QWidget* Lines() const { return m_window.findChild<QWidget*>("Unused_Lines_Wnd"); }
    bool Are_Lines_Shown() const { return Lines() && Lines()->isVisible(); }
    QTableView& Rows() const { return In<QTableView>(*Lines(), "_Rows"); }

    QWidget m_window;
    QLineEdit* m_field = new QLineEdit;
    Import_Strip* m_strip = new Import_Strip;
    QPushButton* m_button = new QPushButton("Go");
};

TEST_F(Import_Strip_Test, Is_Hidden_Until_There_Is_Something_To_Say_And_After_It_Was_Read_Whoever_Shows_All_Of_A_Panel)
{
    m_strip->show();
    EXPECT_FALSE(m_strip->isVisible());
    m_strip->Show_Report(Report_Of(3));
    EXPECT_TRUE(m_strip->isVisible());
    EXPECT_EQ(Words(), "3 added.");
    EXPECT_FALSE(In<QWidget>(*m_strip, "Show_Unused_Btn").isVisible());
    m_strip->setHidden(true);
    m_strip->setHidden(false);
    EXPECT_TRUE(m_strip->isVisible());
    Click_In(*m_strip, "Dismiss_Import_Btn");
    EXPECT_FALSE(m_strip->isVisible());
    m_strip->setHidden(false);
    EXPECT_FALSE(m_strip->isVisible());
}

TEST_F(Import_Strip_Test, Takes_No_Focus_And_Is_Reached_With_The_Keyboard)
{
    m_strip->Show_Report(Report_Of(3, {"name"}));
    EXPECT_EQ(m_window.focusWidget(), m_field);
    m_field->setObjectName("field");
    m_button->setObjectName("button");
    EXPECT_EQ(Tab_Order(m_window).join(u' '), "field Show_Unused_Btn Dismiss_Import_Btn button");
    In<QWidget>(*m_strip, "Show_Unused_Btn").setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(Are_Lines_Shown());
    QTest::keyClick(Lines(), Qt::Key_Escape);
    EXPECT_FALSE(Are_Lines_Shown());
    EXPECT_TRUE(m_strip->isVisible());
}

TEST_F(Import_Strip_Test, Shows_The_Lines_As_They_Stood_On_One_Line_And_With_Pictures_For_Controls)
{
    m_strip->Show_Report(
        Report_Of(0, {"", "<b>Ann</b>", "a\u2028b\r", QString("x") + QChar(0x1B) + QChar(0x202E), QString(500, u'y')}));
    EXPECT_FALSE(Are_Lines_Shown());
    Click_In(*m_strip, "Show_Unused_Btn");
    ASSERT_TRUE(Are_Lines_Shown());
    EXPECT_FALSE(Lines()->isModal());
    EXPECT_EQ(Rows_Of(Rows(), 0).join(u' '), "2 3 4 5");
    EXPECT_EQ(Rows_Of(Rows(), 1), (QStringList{"<b>Ann</b>", "a b", QString("x") + QChar(0x241B) + QChar(0x202E),
                                               QString(100, u'y') + QChar(0x2026)}));
    EXPECT_EQ(Rows_Of(Rows(), 2), QStringList(4, "No phone number"));
    EXPECT_EQ(In<QLabel>(*Lines(), "_Sums").text(), "Lines not used: 4. No phone number: 4.");
}

TEST_F(Import_Strip_Test, Says_How_Many_There_Are_For_Each_Reason_And_That_Not_All_Are_Shown)
{
    Number_List present;
    present.Append(QString("1"));
    Number_List excluded;
    excluded.Append(QString("2"));
    Import_Report report = Report_Of(1, QStringList(10'000, "name"));
    for (const char* number : {"1", "1", "2"})
        report.Accepts(QString(number), *Packed_Number::Of(QString(number)), {&present, &excluded});
    m_strip->Show_Report(report);
    Click_In(*m_strip, "Show_Unused_Btn");
    EXPECT_EQ(Rows().model()->rowCount(), 10'000);
    EXPECT_EQ(
        In<QLabel>(*Lines(), "_Sums").text(),
        "Lines not used: 10003. No phone number: 10000. Already in the list: 2. In an exclusion list: 1. These are "
        "the first 10000.");
}

TEST_F(Import_Strip_Test, The_Lines_Go_With_What_Speaks_Of_Them)
{
    const auto show_lines = [this] {
        m_strip->Show_Report(Report_Of(0, {"name", "another"}));
        Click_In(*m_strip, "Show_Unused_Btn");
        return Are_Lines_Shown();
    };
    ASSERT_TRUE(show_lines());
    m_strip->Show_Report(Report_Of(2, {"a third"}));
    EXPECT_FALSE(Are_Lines_Shown());
    Click_In(*m_strip, "Show_Unused_Btn");
    EXPECT_EQ(Rows_Of(Rows(), 1), QStringList("a third"));
    m_strip->Forget();
    EXPECT_FALSE(Are_Lines_Shown());
    ASSERT_TRUE(show_lines());
    Click_In(*m_strip, "Dismiss_Import_Btn");
    EXPECT_FALSE(Are_Lines_Shown());
    ASSERT_TRUE(show_lines());
    m_window.hide();
    EXPECT_FALSE(Are_Lines_Shown());
    m_window.show();
    ASSERT_TRUE(show_lines());
    Click_In(*Lines(), "Close_Btn");
    EXPECT_FALSE(Are_Lines_Shown());
    EXPECT_TRUE(m_strip->isVisible());
}

TEST_F(Import_Strip_Test, Is_A_Line_Of_Status_To_Those_Who_Do_Not_See_It)
{
    m_strip->Show_Report(Report_Of(3));
    const auto* words = QAccessible::queryAccessibleInterface(&In<QLabel>(*m_strip, "_Import_Words"));
    EXPECT_EQ(words->role(), QAccessible::StatusBar);
    EXPECT_EQ(words->text(QAccessible::Name), "3 added.");
    EXPECT_FALSE(m_strip->accessibleName().isEmpty());
}

} // namespace
