#include "support/Serve_Until.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Window_Look.h"

#include <QtTest>
#include <QtWidgets>
#include <gmock/gmock.h>

namespace {

constexpr int Narrow = 90;
constexpr int Wide = 350;
const QString Long_Title = QStringLiteral("The whole path of the device");

// A table whose first heading has these words.
struct Titled_Table
{
    explicit Titled_Table(const QString& title, int width)
        : m_rows(
              {{"Path", title}, {"State", "State"}}, [] { return 0; }, [](const QString&, int) { return QString(); })
    {
        Prepare_List_Table(m_table, m_rows);
        m_table.setColumnWidth(0, width);
        m_table.resize(500, 300);
        m_table.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_table));
    }
    QImage Picture() { return m_table.horizontalHeader()->grab().toImage(); }
    QString Tool_Tip_Over(int column)
    {
        QToolTip::hideText();
        EXPECT_TRUE(Serve_Until([] { return QToolTip::text().isEmpty(); }));
        const auto& headings = *m_table.horizontalHeader();
        const QPoint place(headings.sectionViewportPosition(column) + 5, headings.height() / 2);
        QHelpEvent event(QEvent::ToolTip, place, headings.viewport()->mapToGlobal(place));
        QApplication::sendEvent(headings.viewport(), &event);
        return QToolTip::text();
    }

    Row_Table_Model m_rows;
    QTableView m_table;
};

} // namespace

class Headings : public testing::Test
{
protected:
    Headings() { Apply_Application_Look(*qApp); }
    ~Headings() override
    {
        QToolTip::hideText();
        EXPECT_TRUE(Serve_Until([] { return !QToolTip::isVisible(); }));
    }
};

TEST_F(Headings, That_Are_Cut_End_With_A_Mark)
{
    const QImage cut = Titled_Table(Long_Title, Narrow).Picture();
    int letters = 0;
    for (int count = 1; count < Long_Title.size() && letters == 0; ++count)
        letters = Titled_Table(Long_Title.left(count) + QChar(0x2026), Narrow).Picture() == cut ? count : 0;
    EXPECT_GE(letters, 3) << "it is painted as a beginning with a mark behind it";
    EXPECT_LT(letters, 20);
    EXPECT_NE(Titled_Table(Long_Title.left(12) + QChar(0x2026), Wide).Picture(),
              Titled_Table(Long_Title, Wide).Picture());
}

TEST_F(Headings, That_Are_Cut_Are_Told_Whole)
{
    Titled_Table table(Long_Title, Wide);
    EXPECT_EQ(table.Tool_Tip_Over(0), QString());
    table.m_table.setColumnWidth(0, Narrow);
    EXPECT_EQ(table.Tool_Tip_Over(0), Long_Title);
    EXPECT_EQ(table.Tool_Tip_Over(1), QString());
    table.m_table.setColumnWidth(0, Wide);
    EXPECT_EQ(table.Tool_Tip_Over(0), QString());
}
