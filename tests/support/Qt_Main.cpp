#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "support/User.h"
#include "toolkit/Guarded_Application.h"

#include <QTemporaryDir>
#include <cstdio>
#include <gmock/gmock.h>

namespace {

// What a desktop's settings would make of fonts and sizes is left outside.
void See_The_Tests_Own_Fonts_And_Screens()
{
    for (const char* setting : {"QT_FONT_DPI", "QT_QPA_PLATFORMTHEME", "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS",
                                "QT_STYLE_OVERRIDE", "QT_USE_PHYSICAL_DPI"})
        qunsetenv(setting);
    qputenv("FONTCONFIG_FILE", CORVANE_TEST_FONTS);
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() || platform == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" CORVANE_TEST_SCREENS);
}

// The machine's language would choose countries and Qt's own texts.
void Read_English()
{
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
}

// Nor do tests ring a bell there: those that need a bus have one of their own.
void Hear_Of_No_Bus()
{
    for (const char* bus : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
        qputenv(bus, "none:");
}

} // namespace

// The start of every test program with windows: an application on the offscreen platform, a data folder of its own that
// is gone afterwards, and no worker left behind.
int main(int argument_count, char** arguments)
{
    testing::InitGoogleMock(&argument_count, arguments);
    See_The_Tests_Own_Fonts_And_Screens();
    Read_English();
    Hear_Of_No_Bus();
    const QTemporaryDir data_home;
    if (!data_home.isValid()) {
        fprintf(stderr, "No temporary folder: %s\n", qPrintable(data_home.errorString()));
        return 1;
    }
    qputenv("XDG_DATA_HOME", data_home.path().toUtf8());

    Guarded_Application application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    Fail_On_Boxes_Without_A_User();
    const int result = RUN_ALL_TESTS();
    Begin_Program_Exit();
    Finish_Workers();
    return result;
}
