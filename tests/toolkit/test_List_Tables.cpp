#include "toolkit/List_Tables.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Whole_Text_Delegate.h"
#include "toolkit/Window_Look.h"

#include <QtTest>
#include <QtWidgets>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

const QChar Ellipsis(0x2026);

// Notes the texts of the cells that are painted.
class Noting_Style : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (const auto* cell = qstyleoption_cast<const QStyleOptionViewItem*>(option))
            m_painted.append(cell->text);
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable QStringList m_painted;
};

class List_Tables : public testing::Test
{
protected:
    List_Tables()
    {
        Apply_Application_Look(*qApp);
        Prepare_List_Table(m_table, m_rows);
        m_table.resize(400, 400);
    }
    ~List_Tables() override { QToolTip::hideText(); }

    void Show(const QStringList& texts)
    {
        m_texts = texts;
        m_rows.Reload();
        m_table.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_table));
    }
    QPoint Middle_Of(int row) const { return m_table.visualRect(m_rows.index(row, 0)).center(); }
    void Click(int row, Qt::KeyboardModifiers keys = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(m_table.viewport(), button, keys, Middle_Of(row));
    }
    void Double_Click(int row, Qt::KeyboardModifiers keys = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        Click(row, keys, button);
        QTest::mouseDClick(m_table.viewport(), button, keys, Middle_Of(row));
    }
    /// What the tool tip shows for a row; nothing when there is none.
    QString Tool_Tip_At(int row)
    {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, Middle_Of(row), m_table.viewport()->mapToGlobal(Middle_Of(row)));
        QApplication::sendEvent(m_table.viewport(), &event);
        return QToolTip::text();
    }

    QStringList m_texts;
    Row_Table_Model m_rows{{{"Message", "Message"}},
                           [this] { return static_cast<int>(m_texts.size()); },
                           [this](const QString&, int row) { return m_texts.at(row); }};
    Noting_Style m_style;
    QTableView m_table;
};

TEST_F(List_Tables, A_Row_Is_Selected_Alone_Whatever_Keys_Are_Held)
{
    Show({"a", "b", "c", "d", "e"});
    for (const Qt::KeyboardModifier key : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
        Click(1);
        Click(3, Qt::ControlModifier);
        EXPECT_THAT(Rows_Selected_In(m_table), ElementsAre(1, 3));
        QTest::keyPress(&m_table, key == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control, key);
        EXPECT_EQ(QGuiApplication::keyboardModifiers(), key);
        Select_Alone(m_table, 2);
        EXPECT_THAT(Rows_Selected_In(m_table), ElementsAre(2));
        Reload_And_Select_First(m_table, m_rows);
        EXPECT_THAT(Rows_Selected_In(m_table), ElementsAre(0));
        QTest::keyRelease(&m_table, key == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control);
        Click(2, Qt::ShiftModifier);
        EXPECT_THAT(Rows_Selected_In(m_table), ElementsAre(0, 1, 2)) << "more are selected from that row on";
    }
}

TEST_F(List_Tables, A_Double_Click_Finds_Selected_What_Its_First_Click_Came_Upon)
{
    Show({"a", "b", "c", "d", "e"});
    std::vector<int> found;
    QObject::connect(&m_table, &QTableView::doubleClicked, &m_table, [&] { found = Rows_Selected_In(m_table); });
    Double_Click(1);
    EXPECT_THAT(found, ElementsAre(1));
    Click(3, Qt::ControlModifier);
    for (const int row : {1, 3, 4}) {
        Double_Click(row);
        EXPECT_THAT(found, ElementsAre(1, 3)) << row;
        EXPECT_THAT(Rows_Selected_In(m_table), ElementsAre(1, 3)) << "and they stay selected";
    }
    Double_Click(3, Qt::ControlModifier);
    EXPECT_THAT(found, ElementsAre(1, 3));
    Click(3);
    Double_Click(3);
    EXPECT_THAT(found, ElementsAre(3)) << "a click that stays alone selects its row";
    Double_Click(4, Qt::ControlModifier);
    EXPECT_THAT(found, ElementsAre(3, 4)) << "that click made them several";
    m_table.clearSelection();
    Double_Click(0);
    EXPECT_THAT(found, ElementsAre(0));
    found.clear();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        Double_Click(1, {}, button);
    EXPECT_THAT(found, IsEmpty()) << "only the left button double-clicks";
}

TEST_F(List_Tables, A_Long_Text_Is_Painted_On_One_Line_No_Longer_Than_A_Screen)
{
    const QString enormous = QStringLiteral("a\r\nb\nc\vd") + QChar(QChar::LineSeparator) + QString(1'000'000, u'x');
    m_table.setStyle(&m_style);
    Show({enormous, "short", QString(599, u'y') + "\U0001F600\U0001F600"});
    m_table.grab();
    ASSERT_TRUE(m_style.m_painted.contains("short"));
    for (const QString& text : std::as_const(m_style.m_painted)) {
        EXPECT_LE(text.size(), 601);
        EXPECT_TRUE(text.isValidUtf16());
        EXPECT_TRUE(text == "short" || text.endsWith(Ellipsis)) << "where it goes on is marked";
        if (text.startsWith(u'a')) {
            EXPECT_TRUE(text.startsWith("a b c d xxx")) << qPrintable(text.left(20));
        }
    }
    EXPECT_EQ(m_rows.index(0, 0).data().toString(), enormous);
    EXPECT_LT(static_cast<const QAbstractItemView&>(m_table).sizeHintForColumn(0),
              1000 * m_table.fontMetrics().maxWidth());
}

TEST_F(List_Tables, A_Number_Keeps_Its_Plus_In_Front_Where_People_Read_From_Right_To_Left)
{
    const auto direction = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
    QApplication::setLayoutDirection(Qt::RightToLeft);
    m_table.setStyle(&m_style);
    Show({"+44 7700 900123", "+ שלום", "00447700900123"});
    m_table.grab();
    for (const char* painted : {"\u2066+44 7700 900123\u2069", "+ שלום", "00447700900123"})
        EXPECT_TRUE(m_style.m_painted.contains(painted)) << painted;
    EXPECT_EQ(m_rows.index(0, 0).data().toString(), "+44 7700 900123") << "what is copied";
}

TEST_F(List_Tables, A_Tool_Tip_Shows_A_Text_That_Its_Cell_Does_Not_Show_Whole)
{
    const QString words = QStringLiteral("word ").repeated(100);
    Show({"short", "two\nlines", words, "<b>no</b>\n<img src=x>"});
    EXPECT_EQ(Tool_Tip_At(0), QString());
    EXPECT_EQ(Tool_Tip_At(1), "two\nlines");
    const QString wrapped = Tool_Tip_At(2);
    EXPECT_EQ(QString(wrapped).remove(u'\n'), words);
    EXPECT_GT(wrapped.count(u'\n'), 2);
    EXPECT_EQ(Tool_Tip_At(3), "<b>no</b>\n<img src=x>");
    const auto windows = QApplication::topLevelWidgets();
    const auto tip = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && window->inherits("QTipLabel");
    });
    ASSERT_NE(tip, windows.end());
    EXPECT_EQ(qobject_cast<QLabel*>(*tip)->textFormat(), Qt::PlainText);
}

TEST_F(List_Tables, An_Enormous_Text_Has_A_Tool_Tip_With_An_End_And_A_Mark)
{
    for (const QString& text :
         {QString(1'000'000, u'x'), QStringLiteral("line\n").repeated(1000), QString(5000, u'\n')}) {
        Show({text});
        const QString tip = Tool_Tip_At(0);
        EXPECT_LE(tip.count(u'\n'), 30);
        EXPECT_LE(tip.size(), 4100);
        EXPECT_TRUE(tip.endsWith(QStringLiteral("\n") + Ellipsis)) << qPrintable(tip.right(20));
    }
    EXPECT_EQ(Tool_Tip_Of(QStringLiteral("line\n").repeated(29) + "end"),
              QStringLiteral("line\n").repeated(29) + "end");
}
