#include "support/Heartbeat.h"
#include "support/In_Windows.h"
#include "support/Keys.h"
#include "toolkit/Find_Strip.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Row_Finder.h"
#include "toolkit/Row_Table_Model.h"

using testing::ElementsAre;
using testing::IsEmpty;

// A window with a table of words, in which a person finds and sorts.
class Finding : public testing::Test
{
protected:
    Finding()
    {
        auto* column = new QVBoxLayout(&m_window);
        column->addWidget(m_strip);
        column->addWidget(m_table);
        Prepare_List_Table(*m_table, m_rows);
        m_finder = std::make_unique<Row_Finder>(*m_table, m_rows, *m_strip, [this] {
            ++m_searches;
            return Row_Source{static_cast<int>(m_words.size()), 2,
                              [words = m_words](int, int row) { return words.at(row); }};
        });
        m_window.show();
        QApplication::setActiveWindow(&m_window);
    }
    ~Finding() override { Finish_Workers(); }

    void Fill(const QStringList& words)
    {
        m_words = words;
        m_rows.Reload();
    }
    void Fill_With(int count)
    {
        QStringList words;
        words.reserve(count);
        for (int i = 0; i < count; ++i)
            words.append(QString::number(10'000'000 + i * 7919LL % 9'000'011));
        Fill(words);
    }
    QStringList Shown()
    {
        QStringList shown;
        for (int row = 0; row < m_rows.rowCount(); ++row)
            shown.append(m_rows.index(row, 0).data().toString());
        return shown;
    }
    void Find(const QString& words)
    {
        Press_Key(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(&Field(), words);
    }
    void Click_Heading(int column)
    {
        auto& headings = *m_table->horizontalHeader();
        QTest::mouseClick(headings.viewport(), Qt::LeftButton, {},
                          QPoint(headings.sectionViewportPosition(column) + 30, headings.height() / 2));
    }
    void Select(const std::vector<int>& rows) { Select_Rows_In(*m_table, rows); }
    QLineEdit& Field() { return In<QLineEdit>(m_window, "_Find_Edit"); }
    QString Count() { return In<QLabel>(m_window, "_Find_Count").text(); }

    QStringList m_words;
    int m_searches = 0;
    QWidget m_window;
    Find_Strip* m_strip = new Find_Strip;
    QTableView* m_table = new QTableView;
    Row_Table_Model m_rows{{{"Word", "Word"}, {"Again", "Again"}},
                           [this] { return static_cast<int>(m_words.size()); },
                           [this](const QString&, int row) { return m_words.at(row); }};
    std::unique_ptr<Row_Finder> m_finder;
};

TEST_F(Finding, Costs_Nothing_While_Nothing_Is_Sought)
{
    Fill({"b", "a"});
    EXPECT_FALSE(m_strip->isVisible());
    EXPECT_TRUE(m_rows.Shows_All());
    EXPECT_EQ(m_searches, 0);
    EXPECT_THAT(Shown(), ElementsAre("b", "a"));
}

TEST_F(Finding, Shows_What_Has_The_Words_And_All_Again_After_Escape)
{
    Fill({"banana", "cherry", "Anna", "apple"});
    Find("an");
    EXPECT_TRUE(m_strip->isVisible());
    EXPECT_THAT(Shown(), ElementsAre("banana", "Anna"));
    EXPECT_EQ(Count(), "2 of 4");
    QTest::keyClicks(&Field(), "x");
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_EQ(Count(), "0 of 4");
    Press_Key(Qt::Key_Escape);
    EXPECT_FALSE(m_strip->isVisible());
    EXPECT_THAT(Shown(), ElementsAre("banana", "cherry", "Anna", "apple"));
    EXPECT_TRUE(m_rows.Shows_All());
    EXPECT_TRUE(m_table->hasFocus());
    Find("ch");
    Click_In(m_window, "Close_Find");
    EXPECT_EQ(Shown().size(), 4);
}

TEST_F(Finding, Keys_Lead_From_The_Field_Into_The_Table)
{
    Fill({"banana", "cherry", "Anna"});
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        m_table->clearSelection();
        Find("anna");
        EXPECT_TRUE(Field().hasFocus());
        Press_Key(key);
        EXPECT_TRUE(m_table->hasFocus());
        EXPECT_THAT(Rows_Selected_In(*m_table), ElementsAre(2));
        Press_Key(Qt::Key_F, Qt::ControlModifier);
        EXPECT_EQ(Field().selectedText(), "anna");
        Press_Key(Qt::Key_Escape);
    }
}

TEST_F(Finding, A_Heading_Sorts_Up_And_Down_And_Not_At_All)
{
    Fill({"b", "c", "a"});
    Click_Heading(0);
    EXPECT_THAT(Shown(), ElementsAre("a", "b", "c"));
    EXPECT_EQ(m_table->horizontalHeader()->sortIndicatorSection(), 0);
    Click_Heading(0);
    EXPECT_THAT(Shown(), ElementsAre("c", "b", "a"));
    Click_Heading(0);
    EXPECT_THAT(Shown(), ElementsAre("b", "c", "a"));
    EXPECT_TRUE(m_rows.Shows_All());
    EXPECT_EQ(m_table->horizontalHeader()->sortIndicatorSection(), -1);
    Click_Heading(1);
    EXPECT_THAT(Shown(), ElementsAre("a", "b", "c"));
    Click_Heading(0); // another column begins upwards
    EXPECT_THAT(Shown(), ElementsAre("a", "b", "c"));
    m_finder->End();
    EXPECT_THAT(Shown(), ElementsAre("b", "c", "a"));
}

TEST_F(Finding, The_Menu_Sorts_As_The_Headings_Do)
{
    Fill({"b", "c", "a"});
    const auto choose = [this](const char* words) {
        Q_EMIT m_finder->Orders().aboutToShow();
        const auto actions = m_finder->Orders().actions();
        for (QAction* action : actions) {
            if (action->text() == words)
                action->trigger();
        }
    };
    choose("Word, downwards");
    EXPECT_THAT(Shown(), ElementsAre("c", "b", "a"));
    Q_EMIT m_finder->Orders().aboutToShow();
    EXPECT_TRUE(m_finder->Orders().actions().at(1)->isChecked());
    choose("As in the list");
    EXPECT_THAT(Shown(), ElementsAre("b", "c", "a"));
}

TEST_F(Finding, What_Is_Selected_Are_Rows_Of_The_List_And_They_Stay_So)
{
    Fill({"d", "b", "c", "a"});
    Click_Heading(0); // a b c d
    Select({0, 2});
    EXPECT_THAT(Rows_Selected_In(*m_table), ElementsAre(2, 3));
    EXPECT_THAT(Rows_Selected_As_Shown(*m_table), ElementsAre(3, 2));
    Click_Heading(0); // d c b a
    EXPECT_THAT(Rows_Selected_In(*m_table), ElementsAre(2, 3));
    Click_Heading(0);
    EXPECT_THAT(Rows_Selected_In(*m_table), ElementsAre(2, 3));
    Find("c");
    EXPECT_THAT(Rows_Selected_In(*m_table), ElementsAre(2)); // what is not shown is not selected
    m_words[2] = "cc";
    m_words.append("ccc");
    m_rows.Reload();
    EXPECT_THAT(Shown(), ElementsAre("cc", "ccc"));
    EXPECT_THAT(Rows_Selected_In(*m_table), ElementsAre(2));
    EXPECT_EQ(m_rows.headerData(1, Qt::Vertical, Qt::DisplayRole).toInt(), 5);
}

TEST_F(Finding, Follows_The_List)
{
    Fill({"b", "a"});
    Find("a");
    Fill({"ba", "c", "a", "aa"});
    EXPECT_THAT(Shown(), ElementsAre("ba", "a", "aa"));
    EXPECT_EQ(Count(), "3 of 4");
    m_words.clear(); // gone before the table is told
    EXPECT_THAT(Shown(), ElementsAre("", "", ""));
    m_rows.Reload();
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_EQ(Count(), "0 of 0");
}

TEST_F(Finding, A_Million_Rows_Are_Looked_Through_Behind_The_Window)
{
    constexpr int Many = 1'000'000;
    Fill_With(Many);
    Heartbeat heartbeat;
    Press_Key(Qt::Key_F, Qt::ControlModifier);
    for (const char letter : {'1', '2', '3', '4'})
        QTest::keyClick(&Field(), letter); // each search takes the place of the one before it
    EXPECT_EQ(Count(), "Searching ...");
    EXPECT_EQ(m_rows.rowCount(), Many) << "all are shown as long as nothing is found";
    EXPECT_TRUE(Serve_Until([this] { return Count() != "Searching ..."; }, 60));
    EXPECT_THAT(Shown(), testing::Each(testing::Truly([](const QString& word) { return word.contains("1234"); })));
    EXPECT_GT(m_rows.rowCount(), 100);
    Press_Key(Qt::Key_Escape);
    Click_Heading(0);
    EXPECT_TRUE(Serve_Until([this] { return !m_rows.Shows_All(); }, 60));
    EXPECT_EQ(m_rows.index(0, 0).data(), "10000000");
    EXPECT_LT(heartbeat.Longest_Work(), 1.0);
}

TEST_F(Finding, A_Search_Of_What_Is_No_More_Is_Dropped)
{
    Fill_With(300'000);
    Click_Heading(0);
    m_finder->List_Will_Change(); // it waits until the worker has let go
    Fill({"b", "a"});
    EXPECT_TRUE(Serve_Until([this] { return Shown() == QStringList({"a", "b"}); }));
    QTest::qWait(50);
    EXPECT_THAT(Shown(), ElementsAre("a", "b"));
    Fill_With(300'000);
    EXPECT_THAT(Shown(), IsEmpty()) << "until the new ones are sorted";
    m_finder.reset(); // in the middle of it
}
