#include "app/Number_Import.h"

#include "app/basics/Log_Line.h"
#include "app/basics/String_Helpers.h"
#include "app/shared/Number_Rules.h"
#include "exclusion/Number_File.h"
#include "platform/Interface_Thread.h"
#include "platform/Text_Files.h"
#include "platform/Waiting.h"

#include <QFileInfo>
#include <exception>
#include <utility>

namespace {

constexpr int Lines_In_Batch = 1000;       // a batch is taken in within a few milliseconds
constexpr qsizetype Longest_Logged = 1000; // of a line, in characters
constexpr double Seconds_Between_Breaths = 0.02;
constexpr double Breath_Seconds = 0.001;

bool Is_Passed_Over(QChar character)
{
    return character == u'\\' || character == u'{' || character == u'}' || character == u'-';
}

// A pipe or a device never ends; it is there, but there is nothing in it to import.
bool Is_No_Regular_File(const QString& path)
{
    const QFileInfo file(path);
    return file.exists() && !file.isFile();
}

} // namespace

Number_Import::Number_Import(Target target) : m_target(std::move(target)) {}

void Number_Import::Load_NUM_Thread(const QString& path)
{
    const auto break_off = [this](const std::exception& failure) {
        Show_NSLog_Message(QStringLiteral("The import ended early: ") + QString::fromLocal8Bit(failure.what()));
        Run_On_Interface_Thread(m_target.break_off);
    };
    try {
        Start_Worker("import", [this, path, break_off] {
            try {
                Load_Num_Func(path);
            } catch (const std::exception& failure) {
                break_off(failure);
            }
        });
    } catch (const std::exception& failure) {
        break_off(failure);
    }
}

void Number_Import::Load_Num_Func(const QString& path) const
{
    QByteArray bytes;
    if (!Is_No_Regular_File(path)) {
        auto content = Read_File(path);
        if (!content) {
            Run_On_Interface_Thread(m_target.leave_unread);
            return;
        }
        bytes = std::move(*content);
    }
    Hand_Over_Lines(Text_Of_Number_File(path, std::exchange(bytes, {})));
    Run_On_Interface_Thread(m_target.finish);
}

QString Number_Import::Cleaned_Line(QStringView line)
{
    QString cleaned;
    cleaned.reserve(line.size());
    for (const QChar character : line) {
        if (!Is_Passed_Over(character))
            cleaned.append(character);
    }
    cleaned = Trim_Str(cleaned);
    return cleaned.size() <= Number_Rules::Longest_Number ? cleaned : QString(); // no rule lets a longer one in
}

void Number_Import::Hand_Over_Lines(const QString& text) const
{
    QStringList batch;
    double last_breath = Now_Seconds();
    for (qsizetype begin = 0; begin <= text.size() && !Program_Is_Exiting();) {
        const qsizetype line_end = text.indexOf(u'\n', begin);
        const qsizetype end = line_end < 0 ? text.size() : line_end;
        const QStringView line = QStringView(text).mid(begin, end - begin);
        Show_NSLog_Message(line.left(Longest_Logged).toString());
        batch.append(Cleaned_Line(line));
        begin = end + 1;
        if (batch.size() < Lines_In_Batch && begin <= text.size())
            continue;
        const int percent = static_cast<int>(end * 100 / std::max<qsizetype>(1, text.size()));
        Run_On_Interface_Thread([&] { m_target.take_lines(batch, percent); });
        batch.clear();
        // Steps that come one right after the other keep the interface thread from its timers and from painting.
        if (Now_Seconds() - last_breath > Seconds_Between_Breaths) {
            Wait_Seconds(Breath_Seconds);
            last_breath = Now_Seconds();
        }
    }
}
