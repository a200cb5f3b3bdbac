#include "device/Device_Log.h"

#include "platform/Log_Line.h"

#include <QFile>
#include <system_error>

QString Error_And_Number(int error)
{
    return QString::fromStdString(std::generic_category().message(error)) + QLatin1Char('(') + QString::number(error) +
           QLatin1Char(')');
}

void Log_Failed_Step(const QString& text, const QByteArray& path, int error)
{
    Log_Failed_Step(text + QLatin1Char(' ') + QFile::decodeName(path), error);
}

void Log_Failed_Step(const QString& text, int error)
{
    Show_NSLog_Message(text + QLatin1String(" - ") + Error_And_Number(error) + QLatin1String(".\n"));
}

void Log_Number(const QString& text, long number)
{
    Show_NSLog_Message(text + QLatin1Char(' ') + QString::number(number) + QLatin1Char('\n'));
}
