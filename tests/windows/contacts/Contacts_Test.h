#pragma once

#include "list/Contact_Table.h"
#include "plan/Plan_Pace.h"
#include "platform/Pace.h"
#include "support/Files.h"
#include "support/In_Windows.h"
#include "support/Window_For_Tests.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Window_Look.h"
#include "windows/contacts/Contacts_Wnd.h"

#include <QTemporaryDir>

// A main window with a list, and the sheet of contacts over it, used by clicks.
class Contacts_Test : public testing::Test
{
protected:
    Contacts_Test()
    {
        Set_Pace(100);
        Apply_Application_Look(*qApp);
        m_sheet = std::make_unique<Contacts_Wnd>(m_window, &m_pace);
        QObject::connect(m_sheet.get(), &Contacts_Wnd::Added, &m_window, [this](int rows, int not_used) {
            m_added = {rows, not_used};
        });
    }
    ~Contacts_Test() override
    {
        m_sheet.reset();
        Finish_Workers();
        Set_Pace(1);
    }

    QString File(const QString& name, const QByteArray& bytes) const
    {
        Write_Bytes(m_folder.filePath(name), bytes);
        return m_folder.filePath(name);
    }

    /// Until no worker has anything to do or to hand over.
    static void Await(double seconds = 20)
    {
        for (int turn = 0; turn < 3; ++turn) { // one step may begin another
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }, seconds));
            QCoreApplication::processEvents();
        }
    }

    void Import(const QString& path)
    {
        m_sheet->Import({path});
        Await();
    }
    void Import_Csv(const QByteArray& bytes) { Import(File(QStringLiteral("list.csv"), bytes)); }
    void Press(const char* button)
    {
        Click_In(*m_sheet, button);
        Await();
    }
    void Choose(const char* box, int index)
    {
        auto& combo = In<QComboBox>(*m_sheet, box);
        combo.setCurrentIndex(index);
        Q_EMIT combo.activated(index);
        Await();
    }
    void Choose(const char* box, const QString& text)
    {
        const int index = In<QComboBox>(*m_sheet, box).findText(text, Qt::MatchStartsWith);
        ASSERT_GE(index, 0) << text.toStdString();
        Choose(box, index);
    }
    QString Chosen(const char* box) const { return In<QComboBox>(*m_sheet, box).currentText(); }
    QString Text_Of(const char* label) const { return In<QLabel>(*m_sheet, label).text(); }
    bool Is_Offered(const char* control) const { return In<QWidget>(*m_sheet, control).isVisible(); }

    QTableView& Sample() const { return In<QTableView>(*m_sheet, "_Sample"); }
    QTableView& Rows() const { return In<QTableView>(*m_sheet, "_Rows"); }
    static QStringList Headings(const QTableView& table)
    {
        QStringList headings;
        for (int column = 0; column < table.model()->columnCount(); ++column)
            headings.append(table.model()->headerData(column, Qt::Horizontal).toString());
        return headings;
    }
    /// A row of a table in "|".
    static QString Row(const QTableView& table, int row)
    {
        QStringList cells;
        for (int column = 0; column < table.model()->columnCount(); ++column)
            cells.append(table.model()->index(row, column).data().toString());
        return cells.join(u'|');
    }
    static QStringList All(const QTableView& table)
    {
        QStringList rows;
        for (int row = 0; row < table.model()->rowCount(); ++row)
            rows.append(Row(table, row));
        return rows;
    }
    QStringList Listed() const
    {
        QStringList rows;
        for (int row = 0; row < m_window.m_recipients.Count(); ++row)
            rows.append(m_window.m_recipients.At(row).Number + u' ' + m_window.m_recipients.Text_At(row).text);
        return rows;
    }

    QTemporaryDir m_folder;
    User user;
    Window_For_Tests m_window;
    Plan_Pace m_pace;
    std::unique_ptr<Contacts_Wnd> m_sheet;
    std::pair<int, int> m_added{-1, -1};
};
