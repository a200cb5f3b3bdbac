#include "platform/Log_Line.h"

#include "platform/System_Log.h"

void Show_NSLog_Message(QStringView text)
{
    Write_System_Log(text);
}
