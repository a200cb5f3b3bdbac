#include "engine/Composer_Rules.h"

#include <QCoreApplication>

// A program of the core alone, with everything in it linked.
int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    return Composer_Rules::SMS_Count(161, false) == 2 ? 0 : 1;
}
