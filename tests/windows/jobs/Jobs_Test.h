#pragma once

#include "engine/Receipts_Test.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "records/Job_Shelf.h"
#include "support/In_Windows.h"
#include "toolkit/Window_Look.h"
#include "windows/jobs/Receipt_Wnd.h"
#include "windows/jobs/Unfinished_Strip.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QVBoxLayout>
#include <gmock/gmock.h>

// Jobs in a folder, and the person who looks at them.
class Jobs_Test : public Receipts_Test
{
protected:
    Jobs_Test()
    {
        Set_Pace(100);
        Apply_Application_Look(*qApp);
    }

    ~Jobs_Test() override
    {
        Finish_Workers();
        Set_Pace(1);
    }

    /// Makes a job and leaves it, as a program does that is killed. Its letters as in Make; "W" is for a row not tried.
    void Leave(const QString& id, const QString& letters)
    {
        QList<Receipt_Job_Row> rows;
        for (const QChar letter : letters)
            rows.append({Row_To("0044770090010" + QString::number(rows.size())), letter == u'W' ? "" : QString(letter),
                         letter == u'U' ? "no-result" : "cms:500"});
        Make(rows, true, id);
    }

    QStringList Bytes_Of_All() const
    {
        QStringList all;
        for (const QString& name : Names())
            all.append(name + ": " + QString::fromLatin1(Bytes_Of(m_folder + "/" + name).toHex()));
        return all;
    }

    static QString Text_Of(const QWidget& window, const char* label) { return In<QLabel>(window, label).text(); }

    static QStringList Cells(const QTableView& table, int row)
    {
        QStringList cells;
        for (int column = 0; column < table.model()->columnCount(); ++column)
            cells.append(table.model()->index(row, column).data().toString());
        return cells;
    }

    /// The texts of the buttons that can be seen.
    static QStringList Offered_In(const QWidget& widget)
    {
        QStringList offered;
        for (const auto* button : widget.findChildren<QPushButton*>()) {
            if (button->isVisibleTo(&widget))
                offered.append(button->text());
        }
        return offered;
    }

    User m_user;
};

// A window with a strip on top and something else below it.
class Window_With_A_Strip : public QWidget
{
public:
    Window_With_A_Strip()
    {
        setObjectName("Window_With_A_Strip");
        auto* column = new QVBoxLayout(this);
        m_strip = new Unfinished_Strip;
        column->addWidget(m_strip);
        column->addWidget(new QTableView, 1);
        Apply_Window_Look(*this);
        show();
        resize(900, 500);
    }

    Unfinished_Strip* m_strip;
};
