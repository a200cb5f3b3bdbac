#include "gui/Open_Program.h"
#include "support/In_Language.h"
#include "support/Screens.h"

#include <tuple>

namespace {

constexpr int Digits = 15;

/// Whether the whole text is seen while it is written: a field whose text is too long shows its end.
bool Is_Seen_Whole(QLineEdit& field)
{
    field.setCursorPosition(static_cast<int>(field.text().size()));
    field.grab(); // which is when it scrolls
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = 1;
    const QRect words = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    return field.cursorPositionAt(QPoint(words.left() + 3, words.center().y())) == 0;
}

} // namespace

class Number_Field : public testing::TestWithParam<std::tuple<const char*, const char*>>
{
protected:
    struct Program : Open_Program
    {
        using Open_Program::m_delegate;
        using Open_Program::Type_Number;
        Program(const QFont& font, QScreen* screen) : Open_Program(font, screen) {}
        void TestBody() override {}
        QLineEdit& Field() { return The<QLineEdit>("_numberEdit"); }
    };
};

TEST_P(Number_Field, Shows_Fifteen_Digits_However_Small_The_Window_Is)
{
    const auto& [screen_name, language] = GetParam();
    const In_Language reading{QString(language)};
    QScreen* screen = Screen_Called(screen_name);
    for (const int points : {9, 10, 12}) {
        SCOPED_TRACE(testing::Message() << points << " pt");
        Program program(QFont("DejaVu Sans", points), screen); // the widest letters that desktops come with
        program.Type_Number(QString(Digits, u'0'));
        for (const QSize size : {program.m_delegate->size(), program.m_delegate->minimumSize()}) {
            program.m_delegate->resize(size);
            for (int round = 0; round < 4; ++round)
                QCoreApplication::processEvents();
            EXPECT_TRUE(Is_Seen_Whole(program.Field()))
                << size.width() << " wide, the field " << program.Field().width();
        }
        const QSignalBlocker uncut(program.Field());
        program.Field().setText(QString(200, u'0'));
        EXPECT_FALSE(Is_Seen_Whole(program.Field())) << "so that this can be told at all";
    }
}

INSTANTIATE_TEST_SUITE_P(On, Number_Field,
                         testing::Combine(testing::Values("desk", "small", "enlarged"),
                                          testing::Values("en", "de", "es", "fr", "it", "pl", "pt")),
                         [](const auto& one) {
                             return std::string(std::get<0>(one.param)) + "_" + std::get<1>(one.param);
                         });
