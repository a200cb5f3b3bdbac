#include "support/Contrast.h"
#include "toolkit/Line_Icons.h"
#include "toolkit/Look.h"
#include "toolkit/Outcome_Colours.h"
#include "toolkit/Window_Look.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

using Token = QColor Look_Tokens::*;

constexpr double Of_Words = 4.5;
constexpr double Of_Lines = 3.0;

struct Pair
{
    const char* name;
    Token first;
    Token second;
    double least;
};

using T = Look_Tokens;

const Pair Pairs[]{
    {"words on the ground", &T::ink, &T::ground, Of_Words},
    {"words on a card", &T::ink, &T::card, Of_Words},
    {"words in a field", &T::ink, &T::field, Of_Words},
    {"words in a bubble and on a button near the pointer", &T::ink, &T::bubble, Of_Words},
    {"words in a selected row", &T::ink, &T::chosen, Of_Words},
    {"soft words on the ground, and what is switched off", &T::soft, &T::ground, Of_Words},
    {"soft words on a card", &T::soft, &T::card, Of_Words},
    {"placeholders", &T::soft, &T::field, Of_Words},
    {"soft words in a bubble, and a first button that is switched off", &T::soft, &T::bubble, Of_Words},
    {"an outcome that is not, in a selected row", &T::soft, &T::chosen, Of_Words},
    {"the first button, and selected words", &T::on_accent, &T::accent, Of_Words},
    {"a flat button on the ground", &T::accent, &T::ground, Of_Words},
    {"a flat button on a card", &T::accent, &T::card, Of_Words},
    {"a flat button near the pointer", &T::accent, &T::bubble, Of_Words},
    {"the link without a device", &T::link, &T::ground, Of_Words},
    {"a good outcome", &T::ok, &T::card, Of_Words},
    {"a good outcome in a selected row", &T::ok, &T::chosen, Of_Words},
    {"a doubtful outcome", &T::warn, &T::card, Of_Words},
    {"a doubtful outcome in a selected row", &T::warn, &T::chosen, Of_Words},
    {"a bad outcome", &T::error, &T::card, Of_Words},
    {"a bad outcome in a selected row", &T::error, &T::chosen, Of_Words},
    {"the edge of a field on a card", &T::edge, &T::card, Of_Lines},
    {"the edge of a field on the ground", &T::edge, &T::ground, Of_Lines},
    {"the edge of a field and its filling", &T::edge, &T::field, Of_Lines},
    {"the focus on a card", &T::accent, &T::card, Of_Lines},
    {"the focus on the ground", &T::accent, &T::ground, Of_Lines},
    {"the focus in a first button", &T::on_accent, &T::accent, Of_Lines},
    {"the mark of a selected row", &T::accent, &T::chosen, Of_Lines},
    {"the tick of a box that is switched off", &T::on_accent, &T::edge, Of_Lines},
    {"what is done of a bar", &T::accent, &T::bubble, Of_Lines},
};

const std::pair<const char*, Look> Looks[]{
    {"light", Look::Light}, {"dark", Look::Dark}, {"high contrast", Look::High_Contrast}};

class Look_Of_The_Program : public testing::Test
{
protected:
    Look_Of_The_Program() { Apply_Application_Look(*qApp); }
    ~Look_Of_The_Program() override { Choose_Look(Look::Light); }
};

} // namespace

TEST(Look_Tokens, Every_Pair_That_Meets_On_The_Screen_Can_Be_Told_Apart)
{
    for (const auto& [look_name, look] : Looks) {
        for (const auto& [name, first, second, least] : Pairs)
            EXPECT_GE(Contrast(Tokens_Of(look).*first, Tokens_Of(look).*second), least) << look_name << ": " << name;
    }
}

TEST(Look_Tokens, The_Light_Ground_Is_The_Given_One)
{
    EXPECT_EQ(Tokens_Of(Look::Light).ground, QColor(241, 244, 250));
}

TEST_F(Look_Of_The_Program, Palettes_Have_Words_That_Can_Be_Read_In_Every_State)
{
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> words[]{
        {QPalette::WindowText, QPalette::Window},       {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},      {QPalette::ButtonText, QPalette::Button},
        {QPalette::PlaceholderText, QPalette::Base},    {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase}, {QPalette::Link, QPalette::Window}};
    for (const auto& [name, look] : Looks) {
        const QPalette palette = Palette_Of(Tokens_Of(look));
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto& [text, ground] : words)
                EXPECT_GE(Contrast(palette.color(group, text), palette.color(group, ground)), Of_Words)
                    << name << ", role " << text << ", group " << group;
        }
    }
}

TEST_F(Look_Of_The_Program, Open_Windows_And_What_Lies_On_Their_Ground_Take_On_Another_Look_At_Once)
{
    QDialog window;
    auto* column = new QVBoxLayout(&window);
    auto* shown = new QPlainTextEdit(QStringLiteral("words"));
    column->addWidget(shown);
    Apply_Window_Look(window);
    Lie_On_The_Ground(*shown);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const auto& [name, look] : Looks) {
        Choose_Look(look);
        EXPECT_EQ(Look_Now(), look);
        EXPECT_EQ(window.grab().toImage().pixelColor(1, 1), Tokens_Of(look).ground) << name;
        EXPECT_EQ(shown->palette().color(QPalette::Base), Tokens_Of(look).ground) << name;
        EXPECT_EQ(shown->palette().color(QPalette::Text), Tokens_Of(look).ink) << name;
        EXPECT_EQ(Window_Background(), Tokens_Of(look).ground) << name;
    }
}

TEST_F(Look_Of_The_Program, The_First_Button_Is_Filled_And_The_Others_Are_Not)
{
    QPushButton button(QStringLiteral("Send"));
    button.resize(button.sizeHint());
    const auto ground_of = [&] { return button.grab().toImage().pixelColor(8, button.height() / 2); };
    EXPECT_EQ(ground_of(), Tokens_Now().card);
    button.setFlat(true);
    EXPECT_EQ(ground_of(), Tokens_Now().ground);
    button.setFlat(false);
    button.setProperty("is_first", true);
    EXPECT_EQ(ground_of(), Tokens_Now().accent);
}

TEST_F(Look_Of_The_Program, A_Button_Has_Room_For_Its_Icon)
{
    const auto width_with = [](const char* icon) {
        QPushButton button(QStringLiteral("Check before sending"));
        button.setProperty("line_icon", QLatin1String(icon));
        return button.sizeHint().width();
    };
    EXPECT_GT(width_with("send"), width_with(""));
    EXPECT_EQ(width_with("no such icon"), width_with(""));
}

TEST(Line_Icons, Each_Is_Drawn_Within_Its_Square_At_Any_Size)
{
    for (const char* name : {"phone", "send", "add", "import", "contacts", "paste", "export", "clear", "template",
                             "exclusion", "clock", "warning", "ok", "help", "notice", "look", "receipt", "words"}) {
        EXPECT_TRUE(Is_Line_Icon(QLatin1String(name))) << name;
        for (const int side : {16, 20, 64}) {
            QImage picture(side + 20, side + 20, QImage::Format_RGB32);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            Paint_Line_Icon(painter, QRectF(10, 10, side, side), QLatin1String(name), Qt::black);
            painter.end();
            QRect drawn;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    if (picture.pixelColor(x, y).lightness() < 200)
                        drawn |= QRect(x, y, 1, 1);
            EXPECT_TRUE(QRect(10, 10, side, side).contains(drawn)) << name << " at " << side;
            EXPECT_GT(drawn.height(), side / 2) << name << " at " << side;
        }
    }
    EXPECT_FALSE(Is_Line_Icon(QStringLiteral("no such icon")));
}

TEST_F(Look_Of_The_Program, Outcomes_Have_The_Colours_Of_What_They_Say)
{
    for (const auto& [name, look] : Looks) {
        Choose_Look(look);
        EXPECT_EQ(Colour_Of(Row_State::Sent), Tokens_Of(look).ok) << name;
        EXPECT_EQ(Colour_Of(Row_State::May_Have_Been_Sent), Tokens_Of(look).warn) << name;
        EXPECT_EQ(Colour_Of(Row_State::Refused), Tokens_Of(look).error) << name;
        EXPECT_EQ(Colour_Of(Row_State::Not_Tried), Tokens_Of(look).soft) << name;
    }
}
