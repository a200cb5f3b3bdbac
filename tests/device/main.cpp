#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

// Background reads are delivered on the thread of the application object, so the tests need one.
int main(int argument_count, char** arguments)
{
    testing::InitGoogleMock(&argument_count, arguments);
    QCoreApplication application(argument_count, arguments);
    const int result = RUN_ALL_TESTS();
    Begin_Program_Exit();
    Finish_Workers();
    return result;
}
