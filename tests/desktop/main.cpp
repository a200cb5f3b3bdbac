#include "desktop/Desktop.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "support/User.h"
#include "toolkit/Asked_For_Focus.h"

#include <QApplication>
#include <cstdio>
#include <gmock/gmock.h>

// What LeakSanitizer, where the program is built with it, passes over: what a library of the desktop keeps until the
// process ends.
extern "C" const char* __lsan_default_suppressions() // NOLINT: the sanitizer's name
{
    return "leak:libdbus-1.so\n";
}

int main(int argument_count, char** arguments)
{
    testing::InitGoogleMock(&argument_count, arguments);
    if (GTEST_FLAG_GET(list_tests)) // which needs no desktop
        return RUN_ALL_TESTS();
    Desktop desktop;
    const QString failure = desktop.Start();
    if (!failure.isEmpty()) {
        fprintf(stderr, "%s\n", qPrintable(failure));
        return 1;
    }
    QApplication application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    Pass_Over_Asked_For_Focus(); // as the program does at its start
    Fail_On_Boxes_Without_A_User();
    const int result = RUN_ALL_TESTS();
    Begin_Program_Exit();
    Finish_Workers();
    return result;
}
