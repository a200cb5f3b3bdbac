#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

// Background reads are delivered on the thread of the application object, so the tests need one.
int main(int argument_count, char** arguments)
{
    testing::InitGoogleMock(&argument_count, arguments);
    qputenv("LC_ALL", "C.UTF-8"); // the log tells what the system says, in the system's language
    qunsetenv("LANGUAGE");
    QCoreApplication application(argument_count, arguments);
    const int result = RUN_ALL_TESTS();
    Begin_Program_Exit();
    Finish_Workers();
    return result;
}
