#include "gui/Open_Program.h"
#include "records/Data_Paths.h"
#include "records/Program_Settings.h"
#include "support/Files.h"
#include "toolkit/Look.h"

#include <QMenu>

namespace {

class Appearance : public Open_Program
{
protected:
    ~Appearance() override
    {
        QFile::remove(Settings_Path);
        Choose_Look(Look::Light);
    }

    QAction& Choice(const char* name) { return *In<QMenu>(*m_delegate, "Appearance_Menu").findChild<QAction*>(name); }

    QColor Ground() const { return m_delegate->grab().toImage().pixelColor(2, 2); }

    void Start_Again()
    {
        m_delegate.reset();
        Apply_Application_Look(*qApp);
        m_delegate = std::make_unique<CorvaneAppDelegate>();
        ASSERT_TRUE(m_delegate->awakeFromNib());
        m_delegate->applicationDidFinishLaunching();
    }
};

} // namespace

TEST_F(Appearance, Is_Light_At_First_And_Nothing_Is_Written)
{
    EXPECT_TRUE(Choice("Appearance_Light").isChecked());
    EXPECT_EQ(Look_Now(), Look::Light);
    EXPECT_EQ(Ground(), QColor(241, 244, 250));
    EXPECT_FALSE(QFile::exists(Settings_Path));
}

TEST_F(Appearance, Is_Taken_On_At_Once_And_Again_At_The_Next_Start)
{
    for (const auto& [name, look] :
         {std::pair("Appearance_Dark", Look::Dark), std::pair("Appearance_HighContrast", Look::High_Contrast)}) {
        Choice(name).trigger();
        EXPECT_EQ(Look_Now(), look);
        EXPECT_EQ(Ground(), Tokens_Of(look).ground);
        Start_Again();
        EXPECT_TRUE(Choice(name).isChecked());
        EXPECT_EQ(Look_Now(), look);
        EXPECT_EQ(Ground(), Tokens_Of(look).ground);
    }
    Choice("Appearance_Light").trigger();
    EXPECT_EQ(Look_Now(), Look::Light);
    EXPECT_FALSE(QFile::exists(Settings_Path)) << "as it was at first";
}

TEST_F(Appearance, Is_Light_When_The_File_Names_None_That_There_Is)
{
    Write_Bytes(Settings_Path, "[Windows]\nAppearance=Purple\n");
    Start_Again();
    EXPECT_TRUE(Choice("Appearance_Light").isChecked());
    EXPECT_EQ(Look_Now(), Look::Light);
}

TEST_F(Appearance, As_The_Desktop_Follows_It)
{
    Choice("Appearance_Dark").trigger();
    Choice("Appearance_Desktop").trigger();
    const Look desktop = Look_Of_The_Desktop();
    EXPECT_EQ(Look_Now(), desktop);
    Choose_Look(Look::High_Contrast);
    QEvent changed(QEvent::ThemeChange);
    QApplication::sendEvent(m_delegate.get(), &changed);
    EXPECT_EQ(Look_Now(), desktop);
    Start_Again();
    EXPECT_TRUE(Choice("Appearance_Desktop").isChecked());
}
