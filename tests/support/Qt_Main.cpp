#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "support/User.h"

#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <gmock/gmock.h>

// The start of every test program with windows: an application on the offscreen platform, a data folder of its own that
// is gone afterwards, and no worker left behind.
int main(int argument_count, char** arguments)
{
    testing::InitGoogleMock(&argument_count, arguments);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir data_home;
    if (!data_home.isValid()) {
        fprintf(stderr, "No temporary folder: %s\n", qPrintable(data_home.errorString()));
        return 1;
    }
    qputenv("XDG_DATA_HOME", data_home.path().toUtf8());

    QApplication application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    Fail_On_Boxes_Without_A_User();
    const int result = RUN_ALL_TESTS();
    Begin_Program_Exit();
    Finish_Workers();
    return result;
}
