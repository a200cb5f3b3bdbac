#include "support/Serve_Until.h"
#include "toolkit/Window_Look.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

TEST(Window_Fit, A_Line_That_Gets_Longer_While_It_Is_Shown_Is_Not_Squeezed)
{
    Apply_Application_Look(*qApp);
    QDialog window;
    auto* column = new QVBoxLayout(&window);
    auto* list = new QPlainTextEdit;
    auto* line = new QLabel(QStringLiteral("short"));
    line->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(new QPushButton(QStringLiteral("Close")));
    column->addWidget(list, 1);
    column->addWidget(line);
    column->addLayout(buttons);
    Apply_Window_Look(window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const int more : {1, 2}) {
        line->setText(line->text() + QStringLiteral("\nlonger").repeated(more));
        EXPECT_TRUE(Serve_Until([&] { return line->height() >= line->heightForWidth(line->width()); }))
            << line->height() << " of " << line->heightForWidth(line->width());
        window.resize(window.minimumSize());
        EXPECT_TRUE(Serve_Until([&] { return line->height() >= line->heightForWidth(line->width()); }))
            << line->height() << " of " << line->heightForWidth(line->width());
    }
}
