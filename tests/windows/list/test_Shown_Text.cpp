#include "toolkit/Plain_Text_Edit.h"
#include "windows/list/Shown_Text.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>
#include <random>

namespace {

QString Shown_At_Once(const QString& text)
{
    QPlainTextEdit fresh;
    fresh.setPlainText(text);
    return Exact_Text(fresh);
}

TEST(Shown_Text, Shows_Each_Text_As_If_It_Were_The_First)
{
    const QStringList pieces = {"a",      "b",      " ",      "\n",     "\r",         "\r\n",   "\u2028",
                                "\u2029", "\u00A0", "\uFDD0", "\u05D0", "\U0001F642", "e\u0301"};
    std::mt19937 random(20); // the same texts each time
    const auto below = [&](qsizetype end) { return static_cast<qsizetype>(random() % static_cast<unsigned>(end)); };
    Shown_Text shown;
    shown.show();
    QString text;
    for (int change = 0; change < 2000; ++change) {
        const qsizetype at = below(text.size() + 1);
        text.replace(at, std::min(below(4), text.size() - at), pieces[below(pieces.size())].repeated(below(3)));
        shown.Show_Text(text, static_cast<int>(at));
        ASSERT_EQ(Exact_Text(shown), Shown_At_Once(text)) << change;
        if (change % 100 == 0)
            text.clear();
    }
}

TEST(Shown_Text, Keeps_The_Place_In_Sight)
{
    Shown_Text shown;
    shown.resize(300, shown.sizeHint().height());
    shown.show();
    QString text = QStringLiteral("word ").repeated(200);
    for (const int place : {1000, 0, 500, 999}) {
        text.insert(place, u'x');
        shown.Show_Text(text, place);
        QTextCursor cursor(shown.document());
        cursor.setPosition(place);
        EXPECT_TRUE(shown.viewport()->rect().contains(shown.cursorRect(cursor).center())) << place;
    }
}

} // namespace
