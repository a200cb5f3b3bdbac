#include "gui/Open_Program.h"
#include "support/In_Language.h"
#include "support/Opened_Files.h"
#include "windows/main/Help_Wnd.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

// A reader who looks for the guide, from the main window on.
class Reader_Of_The_Guide : private In_Language, public Open_Program
{
protected:
    explicit Reader_Of_The_Guide(const char* language = "en") : In_Language(language) {}

    void Open_The_Guide()
    {
        user.When_Opens("Help_Wnd", [](QWidget& help) {
            Click_In(help, "Open_Guide");
            Click_In(help, "OKPressed");
        });
        Click("Help_Btn");
    }

    Opened_Files m_opened;
};

struct Language_And_Title
{
    const char* language;
    const char* title; ///< of the guide that its readers get
};

class Guide : public Reader_Of_The_Guide, public testing::WithParamInterface<Language_And_Title>
{
protected:
    Guide() : Reader_Of_The_Guide(GetParam().language) {}
};

TEST_P(Guide, Opens_In_The_Language_Of_The_Reader_Or_In_English)
{
    Open_The_Guide();
    ASSERT_EQ(m_opened.m_urls.size(), 1);
    QFile page(m_opened.m_urls.constFirst().toLocalFile());
    ASSERT_TRUE(page.open(QIODevice::ReadOnly)) << qPrintable(page.fileName());
    EXPECT_THAT(page.readAll().toStdString(), HasSubstr(GetParam().title));
    EXPECT_TRUE(QFile::exists(QFileInfo(page).path() + "/pictures/main-window.png"));
}

INSTANTIATE_TEST_SUITE_P(A_Reader, Guide,
                         testing::Values(Language_And_Title{"en", "Sending messages with Corvane"},
                                         Language_And_Title{"de", "Nachrichten senden mit Corvane"},
                                         Language_And_Title{"fr", "Sending messages with Corvane"}),
                         [](const auto& reader) { return std::string("Of_") + reader.param.language; });

TEST_F(Reader_Of_The_Guide, Is_Told_Where_It_Is_When_Nothing_Opens_It)
{
    m_opened.Has_No_Program();
    user.Will_Press("OK");
    Open_The_Guide();
    ASSERT_EQ(user.Was_Shown().size(), 1);
    EXPECT_THAT(user.Was_Shown().constFirst().toStdString(),
                StartsWith("\nNo program was found that shows the guide. It is in /"));
}

TEST_F(Reader_Of_The_Guide, Is_Offered_None_Where_There_Is_None)
{
    Help_Wnd help(m_delegate.get(), {});
    help.show();
    EXPECT_FALSE(In<QWidget>(help, "Open_Guide").isVisible());
    EXPECT_TRUE(In<QWidget>(help, "Why_No_Phone").isVisible());
}

} // namespace
