#include "fuzz/Fuzz_Input.h"
#include "platform/Log_Line.h"
#include "platform/System_Log.h"

// Stands in for the program's log: what would be logged is brought into its printable form, checked and dropped.
void Show_NSLog_Message(QStringView text)
{
    for (const char byte : Printable_Log_Line(text))
        MUST(static_cast<unsigned char>(byte) >= 0x20 && byte != 0x7F);
}
