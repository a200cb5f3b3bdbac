#include "toolkit/Empty_List_Hint.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

class Empty_List_Hint_Test : public testing::Test
{
protected:
    Empty_List_Hint_Test()
    {
        m_table.setModel(&m_rows);
        m_hint = new Empty_List_Hint(m_table, "Step");
        m_table.resize(500, 300);
        m_table.show();
    }

    QPushButton& Step() { return *m_hint->findChild<QPushButton*>("Step"); }
    QLabel& Words() { return *m_hint->findChild<QLabel*>(); }
    void Fill() { m_rows.appendRow(new QStandardItem("something")); }

    QTableView m_table;
    QStandardItemModel m_rows;
    Empty_List_Hint* m_hint = nullptr;
};

TEST_F(Empty_List_Hint_Test, Is_There_While_It_Is_True_And_There_Are_No_Rows)
{
    m_hint->Say("Nothing is here yet.", "Begin ...");
    EXPECT_FALSE(m_hint->isVisible()) << "the list may still be on its way";
    m_hint->Hold_True(true);
    EXPECT_TRUE(m_hint->isVisible() && Words().isVisible() && Step().isVisible());
    EXPECT_EQ(m_table.accessibleDescription(), "Nothing is here yet.");
    Fill();
    EXPECT_FALSE(m_hint->isVisible());
    EXPECT_EQ(m_table.accessibleDescription(), QString());
    m_rows.removeRow(0);
    EXPECT_TRUE(m_hint->isVisible());
    Fill();
    m_rows.clear();
    EXPECT_TRUE(m_hint->isVisible());
    m_hint->Hold_True(false);
    EXPECT_FALSE(m_hint->isVisible());
    EXPECT_EQ(m_table.accessibleDescription(), QString());
}

TEST_F(Empty_List_Hint_Test, Offers_A_Step_That_No_Key_Leads_To)
{
    m_hint->Say("Nothing is here yet.", "Begin ...");
    m_hint->Hold_True(true);
    QSignalSpy wanted(m_hint, &Empty_List_Hint::Step_Wanted);
    QTest::mouseClick(&Step(), Qt::LeftButton);
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_EQ(Step().focusPolicy(), Qt::NoFocus);
    m_hint->Say("Nothing is here yet, and so it is.");
    EXPECT_FALSE(Step().isVisible());
    EXPECT_TRUE(Words().isVisible());
    EXPECT_EQ(m_table.accessibleDescription(), Words().text());
}

TEST_F(Empty_List_Hint_Test, Lies_In_The_Middle_And_Leaves_Out_What_Has_No_Room)
{
    m_hint->Say("Nothing is here yet, and nobody knows when there will be something.", "Begin ...");
    m_hint->Hold_True(true);
    const auto middle = [this] { return m_table.viewport()->rect().center(); };
    EXPECT_LE((m_hint->geometry().center() - middle()).manhattanLength(), 2);
    m_table.resize(260, 300);
    QCoreApplication::processEvents();
    EXPECT_LE((m_hint->geometry().center() - middle()).manhattanLength(), 2);
    EXPECT_TRUE(m_table.viewport()->rect().contains(m_hint->geometry()));
    EXPECT_GE(Words().height(), Words().heightForWidth(Words().width())) << "its lines are broken and whole";
    m_table.resize(260, m_table.horizontalHeader()->height() + Step().height() + 24);
    QCoreApplication::processEvents();
    EXPECT_FALSE(Words().isVisible());
    EXPECT_TRUE(Step().isVisible());
    EXPECT_TRUE(m_table.viewport()->rect().contains(m_hint->geometry()));
    m_table.resize(40, 60);
    QCoreApplication::processEvents();
    EXPECT_FALSE(Words().isVisible() || Step().isVisible());
}

} // namespace
