#include <QCoreApplication>
#include <gmock/gmock.h>

// Tests start the program as a child, which needs an application object.
int main(int argument_count, char** arguments)
{
    testing::InitGoogleMock(&argument_count, arguments);
    QCoreApplication application(argument_count, arguments);
    return RUN_ALL_TESTS();
}
