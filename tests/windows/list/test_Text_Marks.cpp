#include "toolkit/Plain_Text_Edit.h"
#include "windows/list/Text_Marks.h"

#include <QAccessible>
#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

// A text area as a person sees it. The cursor is none, so that nothing blinks.
class Text_Marks_Test : public testing::Test
{
protected:
    Text_Marks_Test()
    {
        m_edit.resize(420, 160);
        m_edit.setCursorWidth(0);
        m_edit.show();
    }

    void Write(const QString& text, const std::vector<Text_Stretch>& marked)
    {
        m_edit.setPlainText(text);
        Mark(marked);
    }
    void Mark(const std::vector<Text_Stretch>& marked)
    {
        std::vector<Marked_Place> places;
        for (const Text_Stretch& stretch : marked)
            places.push_back({stretch.at, stretch.length, 0});
        Mark_Places(m_edit, places);
    }
    void Type_At(int place, const QString& keys)
    {
        Put_Cursor(place);
        QTest::keyClicks(&m_edit, keys);
    }
    void Put_Cursor(int place)
    {
        QTextCursor cursor = m_edit.textCursor();
        cursor.setPosition(place);
        m_edit.setTextCursor(cursor);
    }

    QImage Seen() { return m_edit.viewport()->grab().toImage(); }

    /// The points that look otherwise than they would without marks.
    QRegion Waves()
    {
        const QImage with = Seen();
        const Text_Stretches marks = m_edit.Marks();
        m_edit.Mark({});
        const QImage without = Seen();
        m_edit.Mark(marks);
        QRegion waves;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x) {
                if (with.pixel(x, y) != without.pixel(x, y))
                    waves += QRect(x, y, 1, 1);
            }
        }
        return waves;
    }

    QRect At(int place) const
    {
        QTextCursor cursor(m_edit.document());
        cursor.setPosition(place);
        return m_edit.cursorRect(cursor);
    }
    /// Where a wave has its place, under a stretch of one line that runs from the left to the right.
    QRect Under(int from, int to) const
    {
        const QRect begin = At(from);
        const int baseline = begin.top() + m_edit.fontMetrics().ascent();
        return {QPoint(begin.left(), baseline), QPoint(At(to).left(), begin.bottom())};
    }
    static bool Is_Underlined(const QRegion& waves, const QRect& place)
    {
        int columns = 0;
        for (int x = place.left(); x <= place.right(); ++x)
            columns += waves.intersects(QRect(x, place.top(), 1, place.height())) ? 1 : 0;
        return columns > place.width() / 2;
    }
    /// Waves are under these stretches, and nowhere else.
    void Expect_Waves(const std::vector<Text_Stretch>& stretches)
    {
        QRegion rest = Waves();
        for (const Text_Stretch& stretch : stretches) {
            const QRect place = Under(stretch.at, stretch.at + stretch.length);
            EXPECT_TRUE(Is_Underlined(rest, place)) << stretch.at;
            rest -= place.adjusted(-1, 0, 1, 0);
        }
        EXPECT_TRUE(rest.isEmpty()) << rest.boundingRect().left() << " " << rest.boundingRect().top();
    }

    Plain_Text_Edit m_edit;
};

TEST_F(Text_Marks_Test, A_Mark_Is_A_Wave_Under_Its_Text_And_Nowhere_Else)
{
    Write("abc def\nghi jkl", {{4, 3}, {12, 2}});
    Expect_Waves({{4, 3}, {12, 2}});
    Mark({{0, 3}});
    Expect_Waves({{0, 3}});
    Mark({});
    EXPECT_TRUE(Waves().isEmpty());
}

TEST_F(Text_Marks_Test, What_Changes_Is_Painted_Anew_Without_Anybody_Asking)
{
    Write("abc def\nghi jkl", {{4, 3}});
    QCoreApplication::processEvents();
    const auto painted_by = [&](const std::vector<Text_Stretch>& marks) {
        struct Watch : QObject
        {
            bool eventFilter(QObject* /*watched*/, QEvent* event) override
            {
                if (event->type() == QEvent::Paint)
                    painted += static_cast<QPaintEvent*>(event)->region();
                return false;
            }
            QRegion painted;
        } watch;
        m_edit.viewport()->installEventFilter(&watch);
        Mark(marks);
        QCoreApplication::processEvents();
        return watch.painted;
    };
    const QRegion gone = painted_by({});
    EXPECT_TRUE(gone.contains(Under(4, 7)));
    EXPECT_FALSE(gone.intersects(Under(8, 11))) << "nothing has changed there";
    EXPECT_TRUE(painted_by({{8, 3}}).contains(Under(8, 11)));
    EXPECT_TRUE(painted_by({{8, 3}}).isEmpty());
    EXPECT_TRUE(painted_by({{4, 3}, {8, 3}}).contains(Under(4, 7)));
}

TEST_F(Text_Marks_Test, Marks_Move_With_Their_Text)
{
    Write("abc def ghi", {{4, 3}, {8, 3}});
    Type_At(2, "xyz");
    EXPECT_EQ(Marked_Texts(m_edit), (QStringList{"def", "ghi"}));
    Expect_Waves({{7, 3}, {11, 3}});
    m_edit.undo();
    EXPECT_EQ(m_edit.toPlainText(), "abc def ghi");
    Expect_Waves({{4, 3}, {8, 3}});
    m_edit.redo();
    Expect_Waves({{7, 3}, {11, 3}});
    Put_Cursor(3);
    QTest::keyClick(&m_edit, Qt::Key_Return);
    Expect_Waves({{8, 3}, {12, 3}});
    Put_Cursor(4);
    QTest::keyClick(&m_edit, Qt::Key_Backspace);
    Expect_Waves({{7, 3}, {11, 3}});
    Type_At(14, " end");
    Expect_Waves({{7, 3}, {11, 3}});
}

TEST_F(Text_Marks_Test, Marks_Of_Text_That_Is_Changed_Are_Gone)
{
    Write("abc def ghi", {{4, 3}, {8, 3}});
    Type_At(5, "x");
    EXPECT_EQ(Marked_Texts(m_edit), QStringList{"ghi"});
    Expect_Waves({{9, 3}});
    m_edit.setPlainText("another text");
    EXPECT_TRUE(Waves().isEmpty());
}

TEST_F(Text_Marks_Test, Neighbours_Share_A_Mark)
{
    Write("abc def", {{4, 1}, {5, 1}, {6, 1}});
    EXPECT_EQ(Marked_Texts(m_edit), QStringList{"def"});
    Expect_Waves({{4, 3}});
}

TEST_F(Text_Marks_Test, A_Mark_Goes_On_In_The_Next_Line)
{
    const QString text = QStringLiteral("abcdefgh ").repeated(30);
    Write(text, {{2, static_cast<int>(text.size()) - 5}});
    const QRegion waves = Waves();
    const int lines = m_edit.document()->firstBlock().layout()->lineCount();
    ASSERT_GT(lines, 3);
    const QTextLayout& layout = *m_edit.document()->firstBlock().layout();
    for (int line = 0; line < 3; ++line) {
        const int begin = layout.lineAt(line).textStart();
        EXPECT_TRUE(Is_Underlined(waves, Under(begin + 2, begin + 8))) << line;
    }
    EXPECT_FALSE(waves.intersects(Under(0, 2).adjusted(0, 0, -2, 0)));
}

TEST_F(Text_Marks_Test, Marks_Scroll_With_Their_Text)
{
    const QString line = QStringLiteral("abc def\n");
    Write(line.repeated(100), {{99 * 8 + 4, 3}});
    EXPECT_TRUE(Waves().isEmpty());
    m_edit.verticalScrollBar()->setValue(m_edit.verticalScrollBar()->maximum());
    Expect_Waves({{99 * 8 + 4, 3}});
}

TEST_F(Text_Marks_Test, A_Mark_In_Text_That_Runs_To_The_Left_Is_Under_Its_Letters)
{
    // Each letter by itself; then all of them at once.
    for (const QString& text :
         {QStringLiteral("\u05D0\u05D1\u05D2\u05D3"), QStringLiteral("ab \u05D0\u05D1\u05D2\u05D3 cd"),
          QStringLiteral("\u05D0\u05D1\u05D2\u05D3 ab"), QStringLiteral("\U0001F642 \u05D0\u05D1\u05D2\u05D3")}) {
        const int first = static_cast<int>(text.indexOf(QChar(0x05D0)));
        std::vector<QRect> letters;
        for (int at = first; at < first + 4; ++at) {
            Write(text, {{at, 1}});
            letters.push_back(Waves().boundingRect());
            ASSERT_FALSE(letters.back().isEmpty()) << text.toStdString() << at;
        }
        for (std::size_t at = 1; at < letters.size(); ++at)
            EXPECT_LE(letters[at].right(), letters[at - 1].left() + 1) << text.toStdString() << at;
        Write(text, {{first, 4}});
        const QRect all = Waves().boundingRect();
        EXPECT_NEAR(all.left(), letters.back().left(), 1);
        EXPECT_NEAR(all.right(), letters.front().right(), 1);
    }
}

TEST_F(Text_Marks_Test, A_Mark_Under_Both_Directions_Is_Not_Under_What_Lies_Between)
{
    const QString text = QStringLiteral("abc \u05D0\u05D1\u05D2\u05D3 def");
    Write(text, {{2, 3}}); // the c, the blank and the first of the letters, which is the rightmost
    const QRegion waves = Waves();
    Write(text, {{5, 3}}); // the others
    const QRegion others = Waves();
    ASSERT_FALSE(others.isEmpty());
    const QRect between = others.boundingRect().adjusted(2, 0, -2, 0);
    EXPECT_FALSE(waves.intersects(between));
    EXPECT_LT(waves.boundingRect().left(), between.left());
    EXPECT_GT(waves.boundingRect().right(), between.right());
}

TEST_F(Text_Marks_Test, A_Pair_Of_Surrogates_Has_One_Wave)
{
    Write(QStringLiteral("a\U0001F642b"), {{1, 2}});
    Expect_Waves({{1, 2}});
}

TEST_F(Text_Marks_Test, Letters_Stay_As_They_Are_Around_A_Mark)
{
    const QString text = QStringLiteral("AVAVAV fi ffi \u0627\u0644");
    m_edit.setPlainText(text);
    const auto width = [&] { return m_edit.document()->firstBlock().layout()->lineAt(0).naturalTextWidth(); };
    const double before = width();
    Mark({{0, 1}, {2, 1}, {8, 1}, {11, 1}, {14, 1}});
    EXPECT_EQ(width(), before);
    const QRegion waves = Waves();
    EXPECT_FALSE(waves.isEmpty());
    EXPECT_GE(waves.boundingRect().top(), At(0).top() + m_edit.fontMetrics().ascent()) << "no letter has changed";
}

TEST_F(Text_Marks_Test, Half_Of_A_Ligature_Is_Marked)
{
    Write("fi", {{1, 1}});
    Expect_Waves({{1, 1}});
    Write("fi", {{0, 1}});
    Expect_Waves({{0, 1}});
}

TEST_F(Text_Marks_Test, A_Wave_Has_The_Colour_Of_The_Text)
{
    QFont large = m_edit.font();
    large.setPointSize(40);
    m_edit.setFont(large);
    for (const auto& [text, ground] :
         {std::pair(Qt::black, Qt::white), std::pair(Qt::white, Qt::black), std::pair(Qt::yellow, Qt::darkBlue)}) {
        QPalette colours = m_edit.palette();
        colours.setColor(QPalette::Text, text);
        colours.setColor(QPalette::Base, ground);
        m_edit.setPalette(colours);
        Write("mmm", {{1, 1}});
        const QRegion waves = Waves();
        const QImage seen = Seen();
        const QColor colour(text);
        const bool has_colour = std::any_of(waves.begin(), waves.end(), [&](const QRect& points) {
            const QColor point = seen.pixelColor(points.topLeft());
            return std::abs(point.red() - colour.red()) + std::abs(point.green() - colour.green()) +
                       std::abs(point.blue() - colour.blue()) <
                   80;
        });
        EXPECT_TRUE(has_colour) << colour.name().toStdString();
    }
}

TEST_F(Text_Marks_Test, Marks_Make_Room_For_What_Is_Being_Composed)
{
    Write("abc def", {{0, 2}, {4, 3}});
    m_edit.setFocus();
    Put_Cursor(4);
    const int shift = m_edit.fontMetrics().horizontalAdvance("xx");
    QInputMethodEvent composing("xx", {});
    const QRect before = Under(4, 7);
    QCoreApplication::sendEvent(&m_edit, &composing);
    Mark({{0, 2}, {4, 3}});
    const QRegion waves = Waves();
    EXPECT_TRUE(Is_Underlined(waves, before.translated(shift, 0)));
    EXPECT_FALSE(waves.intersects(QRect(before.left() + 1, before.top(), shift - 2, before.height())));
    EXPECT_TRUE(Is_Underlined(waves, Under(0, 2)));
}

TEST_F(Text_Marks_Test, A_Screen_Reader_And_The_History_Notice_Nothing)
{
    m_edit.setPlainText("abc def");
    auto* reader = QAccessible::queryAccessibleInterface(&m_edit);
    ASSERT_TRUE(reader && reader->textInterface());
    int begin = 0;
    int end = 0;
    const QString attributes = reader->textInterface()->attributes(4, &begin, &end);
    const QSignalSpy changes(&m_edit, &QPlainTextEdit::textChanged);
    Mark({{4, 3}});
    EXPECT_EQ(reader->textInterface()->text(0, 7), "abc def");
    EXPECT_EQ(reader->textInterface()->attributes(4, &begin, &end), attributes);
    EXPECT_EQ(begin, 0);
    EXPECT_EQ(end, 7);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_FALSE(m_edit.document()->isUndoAvailable());
    EXPECT_FALSE(m_edit.document()->isModified());
}

} // namespace
