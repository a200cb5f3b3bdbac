#include "toolkit/List_Tables.h"
#include "toolkit/Row_Table_Model.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

class Row_Table : public testing::Test
{
protected:
    QString Shown(int row, int column) const { return m_model.index(row, column).data().toString(); }

    int m_rows = 0;
    int m_reads = 0;
    Row_Table_Model m_model{{{"Number", "Phone number"}, {"Message", "Text"}},
                            [this] { return m_rows; },
                            [this](const QString& identifier, int row) {
                                ++m_reads;
                                return identifier + ' ' + QString::number(row);
                            }};
};

TEST_F(Row_Table, A_Cell_Shows_The_Value_Under_Its_Columns_Identifier_And_A_Heading_Its_Title)
{
    m_rows = 3;
    m_model.Reload();
    EXPECT_EQ(m_model.rowCount(), 3);
    EXPECT_EQ(m_model.columnCount(), 2);
    EXPECT_EQ(Shown(2, 0), "Number 2");
    EXPECT_EQ(Shown(0, 1), "Message 0");
    EXPECT_FALSE(m_model.data(m_model.index(0, 0), Qt::DecorationRole).isValid());
    EXPECT_FALSE(m_model.data({}, Qt::DisplayRole).isValid());
    EXPECT_EQ(m_model.rowCount(m_model.index(0, 0)), 0);
    EXPECT_EQ(m_model.columnCount(m_model.index(0, 0)), 0);
    EXPECT_FALSE(m_model.flags(m_model.index(0, 0)).testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(m_model.setData(m_model.index(0, 0), "other"));

    EXPECT_EQ(m_model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), "Phone number");
    EXPECT_EQ(m_model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "Text");
    EXPECT_EQ(m_model.headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), QString());
    EXPECT_EQ(m_model.headerData(0, Qt::Vertical, Qt::DisplayRole).toInt(), 1);
    EXPECT_FALSE(m_model.headerData(0, Qt::Horizontal, Qt::FontRole).isValid());
}

TEST_F(Row_Table, What_The_Table_Shows_Changes_At_A_Reload_Only)
{
    m_rows = 3;
    EXPECT_EQ(m_model.rowCount(), 0);
    m_model.Reload();
    m_rows = 1;
    EXPECT_EQ(m_model.rowCount(), 3);
    EXPECT_EQ(Shown(0, 0), "Number 0");
    m_reads = 0;
    EXPECT_EQ(Shown(2, 0), QString()) << "a row that has gone";
    EXPECT_EQ(m_reads, 0) << "is not even asked for";
    m_model.Reload();
    EXPECT_EQ(m_model.rowCount(), 1);
}

TEST_F(Row_Table, A_Reload_Tells_Views_The_Truth)
{
    const QAbstractItemModelTester tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy inserted(&m_model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&m_model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&m_model, &QAbstractItemModel::dataChanged);
    for (const int rows : {0, 5, 5, 2, 9, 0}) {
        m_rows = rows;
        m_model.Reload();
        EXPECT_EQ(m_model.rowCount(), rows);
    }
    EXPECT_EQ(inserted.size(), 2);
    EXPECT_EQ(removed.size(), 2);
    EXPECT_EQ(changed.size(), 4);
    EXPECT_EQ(changed[2][1].toModelIndex().column(), 1);
}

TEST_F(Row_Table, A_Reload_Keeps_The_Selection_Of_Rows_That_Still_Exist)
{
    m_rows = 10;
    m_model.Reload();
    QTableView view;
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setModel(&m_model);
    QSignalSpy resets(&m_model, &QAbstractItemModel::modelReset);
    for (const int row : {1, 4, 8})
        view.selectionModel()->select(m_model.index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_rows = 20;
    m_model.Reload();
    EXPECT_EQ(Rows_Selected_In(view), (std::vector<int>{1, 4, 8}));
    m_rows = 5;
    m_model.Reload();
    EXPECT_EQ(Rows_Selected_In(view), (std::vector<int>{1, 4}));
    EXPECT_EQ(resets.size(), 0);
}

TEST_F(Row_Table, Some_Of_The_Rows_Are_Shown_In_Any_Order_Until_All_Are_Again)
{
    const QAbstractItemModelTester tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_rows = 5;
    m_model.Reload();
    m_model.Show_Rows(std::vector<int>{4, 0, 2});
    EXPECT_EQ(m_model.rowCount(), 3);
    EXPECT_EQ(Shown(0, 0), "Number 4");
    EXPECT_EQ(Shown(2, 1), "Message 2");
    EXPECT_EQ(m_model.List_Row(1), 0);
    EXPECT_EQ(m_model.List_Row(3), -1);
    EXPECT_EQ(m_model.headerData(2, Qt::Vertical, Qt::DisplayRole).toInt(), 3);
    m_rows = 3;
    EXPECT_EQ(Shown(0, 0), QString()) << "a row that has gone";
    QSignalSpy reloading(&m_model, &Row_Table_Model::Reloading);
    m_model.Reload();
    EXPECT_EQ(reloading.size(), 1);
    EXPECT_EQ(m_model.rowCount(), 3) << "whoever chose them chooses again";
    m_model.Show_Rows(std::nullopt);
    EXPECT_TRUE(m_model.Shows_All());
    EXPECT_EQ(Shown(0, 0), "Number 0");
    EXPECT_EQ(m_model.List_Row(1), 1);
}

TEST_F(Row_Table, Many_Rows_At_Once_Leave_The_Columns_As_They_Are)
{
    QTableView view;
    view.setModel(&m_model);
    view.setColumnWidth(0, 123);
    const QAbstractItemModelTester tester(&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const int rows : {100'000, 3, 0, 150'000, 150'001}) {
        m_rows = rows;
        m_model.Reload();
        EXPECT_EQ(m_model.rowCount(), rows);
        EXPECT_EQ(view.verticalHeader()->count(), rows);
        EXPECT_EQ(view.columnWidth(0), 123);
        EXPECT_EQ(Shown(rows - 1, 0), rows > 0 ? "Number " + QString::number(rows - 1) : QString());
    }
}

TEST_F(Row_Table, A_Million_Rows_Are_Served_On_Demand)
{
    QTableView view;
    view.setModel(&m_model);
    view.resize(800, 600);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    m_rows = 1'000'000;
    m_model.Reload();
    view.grab();
    EXPECT_GT(m_reads, 0);
    EXPECT_LT(m_reads, 2000) << "cells asked for to draw the first page";
    m_reads = 0;
    view.scrollToBottom();
    view.grab();
    EXPECT_GT(m_reads, 0);
    EXPECT_LT(m_reads, 2000) << "cells asked for to draw the last page";
    EXPECT_EQ(Shown(999'999, 0), "Number 999999");
    view.selectAll();
    m_reads = 0;
    m_model.Reload();
    EXPECT_EQ(m_reads, 0) << "a reload asks for nothing itself";
    EXPECT_TRUE(view.selectionModel()->isRowSelected(999'999));
}
