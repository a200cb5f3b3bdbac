#pragma once

#include "platform/Pace.h"
#include "platform/Text_Files.h"
#include "records/Store_Files.h"
#include "support/In_Windows.h"
#include "support/Window_For_Tests.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"
#include "windows/stores/Sent_Items.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/Templates.h"

/// So many lines of the sent items' file, with the numbers from 1000 on.
inline QByteArray Records(int count)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += "\a" + QByteArray::number(1000 + i) + "\vmessage " + QByteArray::number(i) + "\a05/03/2024\v\n";
    return lines;
}

// A data folder, a main window, and the person who opens the windows of the stores.
class Stores_Test : public testing::Test
{
protected:
    Stores_Test()
    {
        Set_Pace(100);
        Apply_Application_Look(*qApp);
    }
    ~Stores_Test() override
    {
        Finish_Workers();
        Forget_Program_Exit();
        End_Shared_Instances();
        Set_Pace(1);
    }

    /// Opens the window, does the visit once the whole list is in, and closes what the visit leaves open.
    void Visit_Sent_Items(const std::function<void()>& visit) { Visit(*Sent_Items::defaultInstance(), visit); }
    void Visit(Sent_Items& window, const std::function<void()>& visit)
    {
        Expect_Visit(window, visit);
        window.Open_Sent_Item_Wnd();
    }
    int Visit_Templates(const std::function<void()>& visit)
    {
        Expect_Visit(*Templates::defaultInstance(), visit);
        return Templates::defaultInstance()->Open_Template_Wnd();
    }
    void Expect_Visit(List_Window& window, const std::function<void()>& visit)
    {
        m_visited = &window;
        m_user.When_Opens(window.objectName(), [&window, visit](QWidget&) {
            EXPECT_TRUE(Serve_Until([&] { return !window.Is_Loading(); }));
            visit();
            if (window.isVisible())
                Click_In(window, "Cancel_Btn");
            EXPECT_FALSE(window.isVisible());
        });
    }

    /// What the window of the present visit holds.
    template <typename Control>
    Control& The(const char* name) const
    {
        return In<Control>(*m_visited, name);
    }
    QString Count_Label() const
    {
        return m_visited->findChildren<QLabel*>(QRegularExpression("_list_count$")).at(0)->text();
    }
    QPlainTextEdit& Detail_View() const
    {
        return *m_visited->findChildren<QPlainTextEdit*>(QRegularExpression("_det_edit$")).at(0);
    }
    QString Detail() const { return Detail_View().toPlainText(); }

    static void Click_In(QWidget& window, const char* button)
    {
        In<QPushButton>(window, button).setFocus();
        ::Click_In(window, button);
    }
    void Click(const char* button) const { Click_In(*m_visited, button); }
    /// Clicks a button, which must show exactly this box and put the focus on the table.
    void Expect_Told(const char* button, const QString& text)
    {
        const auto before = m_user.Was_Shown().size();
        m_user.Will_Press("OK");
        Click(button);
        EXPECT_EQ(m_user.Was_Shown().mid(before), QStringList(text)) << button;
        Expect_Focus_On_Table();
    }

    QTableView& Table() const { return *m_visited->findChild<QTableView*>(); }
    void Select(int first, int last) const
    {
        const auto* model = Table().model();
        Table().selectionModel()->select(QItemSelection(model->index(first, 0), model->index(last, 0)),
                                         QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    void Select(int row) const { Select(row, row); }
    void Select_Also(int row) const
    {
        Table().selectionModel()->select(Table().model()->index(row, 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    void Clear(int first, int last) const
    {
        Select(first, last);
        Click("Clear_Sel_Btn");
    }
    void Clear(int row) const { Clear(row, row); }
    std::vector<int> Selected() const { return Rows_Selected_In(Table()); }
    /// What the cells of one column are painted with, from the top.
    QStringList Shown(int column = 0) const
    {
        const auto* delegate = qobject_cast<const QStyledItemDelegate*>(Table().itemDelegate());
        QStringList cells;
        for (int row = 0; row < Table().model()->rowCount(); ++row)
            cells.append(delegate->displayText(Table().model()->index(row, column).data(), QLocale()));
        return cells;
    }
    void Double_Click(int row) const
    {
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, Middle_Of(Table(), row));
        QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {}, Middle_Of(Table(), row));
    }
    void Expect_Focus_On_Table() const { EXPECT_EQ(m_visited->focusWidget(), &Table()); }

    /// The person enters this text in the dialog of a template that opens next.
    void Will_Enter(const QString& text)
    {
        m_user.When_Opens("UpdateTemp", [text](QWidget& dialog) {
            In<QPlainTextEdit>(dialog, "m_templ_msg_str").setPlainText(text);
            Click_In(dialog, "OKPressed");
        });
    }

    Data_Folder m_folder;
    User m_user;
    Window_For_Tests m_window;
    QWidget* m_visited = nullptr;
};
