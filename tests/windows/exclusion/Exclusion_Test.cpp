#include "windows/exclusion/Exclusion_Test.h"

#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "toolkit/Window_Look.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QWindow>

QString Boxed(const char* text)
{
    return QString("\n") + text;
}

Exclusion_Test::Exclusion_Test()
{
    Apply_Application_Look(*qApp);
    Set_Pace(200);
    Forget_Program_Exit();
    m_window = std::make_unique<Exclusion_Wizard>();
}

Exclusion_Test::~Exclusion_Test()
{
    m_window.reset();
    Finish_Workers();
    Set_Pace(1);
}

void Exclusion_Test::Run(const std::function<void()>& steps)
{
    m_user.When_Opens("Exclusion_Wizard", [this, steps](QWidget&) {
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        steps();
        if (m_window->isVisible())
            m_window->Cancel_Btn();
    });
    m_window->Open_Exclusion_Wnd();
}

QStringList Exclusion_Test::Rows_Of(const QTableView& table)
{
    QStringList rows;
    for (int row = 0; row < table.model()->rowCount(); ++row)
        rows.append(table.model()->index(row, 0).data().toString());
    return rows;
}

std::vector<int> Exclusion_Test::Selected_In(const QTableView& table)
{
    std::vector<int> rows;
    const auto indexes = table.selectionModel()->selectedRows();
    for (const auto& index : indexes)
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void Exclusion_Test::Select(QTableView& table, const std::vector<int>& rows)
{
    table.clearSelection();
    for (const int row : rows)
        table.selectionModel()->select(table.model()->index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void Exclusion_Test::Click(const char* name, Qt::KeyboardModifiers keys) const
{
    QWidget& control = Control(name);
    ASSERT_TRUE(control.isVisible()) << name;
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, keys,
                      control.mapTo(m_window.get(), control.rect().center()));
}

void Exclusion_Test::Click_Row(const QTableView& table, int row, Qt::KeyboardModifiers keys) const
{
    const QPoint middle = table.visualRect(table.model()->index(row, 0)).center();
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, keys, table.viewport()->mapTo(m_window.get(), middle));
}

void Exclusion_Test::Double_Click_Row(const QTableView& table, int row, Qt::KeyboardModifiers keys) const
{
    const QPoint middle = table.visualRect(table.model()->index(row, 0)).center();
    QTest::mouseDClick(m_window->windowHandle(), Qt::LeftButton, keys, table.viewport()->mapTo(m_window.get(), middle));
}

void Exclusion_Test::Expect_Told(const std::function<void()>& step, const char* text, const char* focused)
{
    const auto before = m_user.Was_Shown().size();
    m_user.Will_Press("OK");
    step();
    const auto shown = m_user.Was_Shown().mid(before);
    EXPECT_EQ(shown, QStringList(Boxed(text)));
    EXPECT_EQ(m_window->focusWidget(), &Control(focused)) << text;
}

void Exclusion_Test::Expect_Told_By(const char* button, const char* text, const char* focused)
{
    SCOPED_TRACE(button);
    Expect_Told([this, button] { Click(button); }, text, focused);
}

void Exclusion_Test::Expect_Asked(const std::function<void()>& step, const char* text, const char* answer)
{
    const auto before = m_user.Was_Shown().size();
    m_user.Will_Press(answer);
    step();
    EXPECT_EQ(m_user.Was_Shown().mid(before), QStringList(text));
}

void Exclusion_Test::Begin_New_List(const QString& name) const
{
    Click("m_addnew_btn");
    Type("m_ex_list_name_edit", name);
    Click("m_next_btn");
    ASSERT_TRUE(Is_On_Numbers_Screen());
}

void Exclusion_Test::Add_Number(const QString& number) const
{
    Type("m_loadnum_edit", number);
    Click("m_add_num_btn");
}

void Exclusion_Test::Edit_List(int row) const
{
    Click_Row(Available(), row);
    Click("m_update_btn");
    ASSERT_TRUE(Is_On_Numbers_Screen());
}

void Exclusion_Test::Finish()
{
    Expect_Asked([this] { Click("m_finish_btn"); }, "\nAre you sure you want to continue", "Yes");
}
