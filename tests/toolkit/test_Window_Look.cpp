#include "support/Contrast.h"
#include "support/Serve_Until.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Window_Look.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

struct Pair
{
    const char* name;
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

const Pair Pairs[]{{"labels", QPalette::WindowText, QPalette::Window},
                   {"fields", QPalette::Text, QPalette::Base},
                   {"rows", QPalette::Text, QPalette::AlternateBase},
                   {"buttons", QPalette::ButtonText, QPalette::Button},
                   {"selections", QPalette::HighlightedText, QPalette::Highlight},
                   {"tool tips", QPalette::ToolTipText, QPalette::ToolTipBase},
                   {"links", QPalette::Link, QPalette::Window},
                   {"links in fields", QPalette::Link, QPalette::Base}};

class Window_Look_In_The_Dark : public testing::Test
{
protected:
    Window_Look_In_The_Dark()
    {
        QPalette dark(QColor(0x20, 0x20, 0x20));
        for (int role = 0; role < QPalette::NColorRoles; ++role)
            dark.setColor(static_cast<QPalette::ColorRole>(role), QColor(0x20, 0x20, 0x20));
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText,
                                QPalette::ToolTipText, QPalette::HighlightedText})
            dark.setColor(role, Qt::white);
        QApplication::setPalette(dark);
        Apply_Application_Look(*qApp);
    }
};

} // namespace

TEST_F(Window_Look_In_The_Dark, Texts_Stand_Out_From_Their_Ground_And_What_Is_Switched_Off_Can_Still_Be_Read)
{
    const QPalette palette = QApplication::palette();
    for (const auto& [name, text, ground] : Pairs) {
        for (const auto& [group, least] :
             {std::pair(QPalette::Active, 4.5), {QPalette::Inactive, 4.5}, {QPalette::Disabled, 4.5}})
            EXPECT_GE(Contrast(palette.color(group, text), palette.color(group, ground)), least) << name;
    }
    EXPECT_GE(Contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)), 4.5);
}

TEST_F(Window_Look_In_The_Dark, A_Label_Is_Drawn_Dark_On_The_Given_Background)
{
    EXPECT_EQ(Window_Background().name(), "#f1f4fa");
    QWidget window;
    QPalette odd;
    odd.setColor(QPalette::Window, Qt::black);
    window.setPalette(odd);
    Apply_Window_Look(window);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel("MMMMMMMM"));
    const QImage picture = window.grab().toImage();
    double darkest = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            darkest = std::min(darkest, Luminance(picture.pixelColor(x, y)));
    }
    EXPECT_LT(darkest, 0.1);
    EXPECT_EQ(picture.pixelColor(0, 0).name(), "#f1f4fa");
}

TEST_F(Window_Look_In_The_Dark, The_Please_Wait_Sheet_Says_So)
{
    QWidget window;
    window.resize(600, 400);
    window.show();
    PleaseWait_Modeless sheet(&window);
    EXPECT_EQ(sheet.objectName(), "PleaseWait_Modeless");
    sheet.Begin_Sheet(&window);
    EXPECT_TRUE(sheet.isVisible());
    ASSERT_NE(sheet.findChild<QLabel*>(), nullptr);
    EXPECT_EQ(sheet.findChild<QLabel*>()->text(), "Please wait ...");
    ASSERT_NE(sheet.findChild<QProgressBar*>(), nullptr);
    EXPECT_FALSE(sheet.findChild<QProgressBar*>()->accessibleName().isEmpty());
    EXPECT_EQ(sheet.grab().toImage().pixelColor(2, 2).name(), "#f1f4fa");
    sheet.End_Sheet();
}

TEST(Window_Fit, A_Line_That_Gets_Longer_While_It_Is_Shown_Is_Not_Squeezed)
{
    Apply_Application_Look(*qApp);
    QDialog window;
    auto* column = new QVBoxLayout(&window);
    auto* list = new QPlainTextEdit;
    auto* line = new QLabel("short");
    line->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(new QPushButton("Close"));
    column->addWidget(list, 1);
    column->addWidget(line);
    column->addLayout(buttons);
    Apply_Window_Look(window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const auto is_whole = [line] { return line->height() >= line->heightForWidth(line->width()); };
    for (const int more : {1, 2}) {
        line->setText(line->text() + QStringLiteral("\nlonger").repeated(more));
        EXPECT_TRUE(Serve_Until(is_whole)) << line->height();
        window.resize(window.minimumSize());
        EXPECT_TRUE(Serve_Until(is_whole)) << line->height();
    }
}

TEST(Window_Fit, Nothing_Is_Left_Empty_Above_Buttons_That_Are_Wider_Than_The_Text)
{
    Apply_Application_Look(*qApp);
    QDialog window;
    auto* column = new QVBoxLayout(&window);
    auto* line = new QLabel(QStringLiteral("some words ").repeated(20).trimmed());
    line->setWordWrap(true);
    auto* buttons = new QHBoxLayout;
    auto* button = new QPushButton("Close");
    button->setMinimumWidth(line->sizeHint().width() + 300);
    buttons->addWidget(button);
    column->addWidget(line);
    column->addStretch();
    column->addLayout(buttons);
    Apply_Window_Look(window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_EQ(line->height(), line->heightForWidth(line->width()));
    const int above = button->mapTo(&window, QPoint()).y() - line->mapTo(&window, QPoint(0, line->height())).y();
    EXPECT_LT(above, line->fontMetrics().lineSpacing());
}
