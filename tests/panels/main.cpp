#include "panels/Panels.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "support/Private_Bus.h"
#include "support/User.h"

#include <QApplication>
#include <cstdio>
#include <gmock/gmock.h>

// Windows on a desktop whose theme brings file panels of its own: those of the portal, on a bus that nobody else is on.
int main(int argument_count, char** arguments)
{
    testing::InitGoogleMock(&argument_count, arguments);
    if (GTEST_FLAG_GET(list_tests)) // which needs no desktop
        return RUN_ALL_TESTS();
    const Private_Bus bus;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_PLATFORMTHEME", "xdgdesktopportal");
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.Address().toUtf8());
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    const Panels panels(bus.Address());
    QApplication application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    Fail_On_Boxes_Without_A_User();
    if (!Panels::Are_Known()) {
        fprintf(stderr,
                "The theme of the desktop's portal was not loaded: is qt6-xdgdesktopportal-platformtheme there?\n");
        return 1;
    }
    const int result = RUN_ALL_TESTS();
    Begin_Program_Exit();
    Finish_Workers();
    return result;
}
