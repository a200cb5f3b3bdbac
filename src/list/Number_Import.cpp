#include "list/Number_Import.h"

#include "list/Number_File.h"
#include "list/Number_Judge.h"
#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/Waiting.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace {

constexpr std::size_t Lines_In_Batch = 64; // enough for their look-ups to overlap, and few enough to stay in the cache
constexpr qsizetype Longest_Logged = 1000; // of a line, in characters
constexpr double Seconds_Between_Reports = 0.02;

} // namespace

Number_Import::Number_Import(Target target) : m_target(std::move(target)) {}

void Number_Import::Load_NUM_Thread(Order order)
{
    const auto break_off = [this](const std::exception& failure) {
        Show_NSLog_Message(QStringLiteral("The import ended early: ") + QString::fromLocal8Bit(failure.what()));
        Run_On_Interface_Thread(m_target.break_off);
    };
    try {
        Start_Worker("import", [this, order = std::move(order), break_off]() mutable {
            try {
                Load_Num_Func(order);
            } catch (const std::exception& failure) {
                break_off(failure);
            }
        });
    } catch (const std::exception& failure) {
        break_off(failure);
    }
}

void Number_Import::Load_Num_Func(Order& order) const
{
    auto bytes = Bytes_Of_Number_File(order.path);
    if (!bytes) {
        Run_On_Interface_Thread(m_target.leave_unread);
        return;
    }
    try {
        const QString text = Text_Of_Number_File(order.path, std::exchange(*bytes, {})); // the bytes are released here
        Take_In_Lines(order, text);
    } catch (...) {
        Hand_Over(order.recipients);
        throw;
    }
    Hand_Over(order.recipients);
    Run_On_Interface_Thread(m_target.finish);
}

void Number_Import::Take_In_Lines(Order& order, const QString& text) const
{
    std::vector<Packed_Number> numbers;
    double last_report = Now_Seconds();
    for (qsizetype begin = 0; begin <= text.size() && !Program_Is_Exiting();) {
        const qsizetype line_end = text.indexOf(u'\n', begin);
        const qsizetype end = line_end < 0 ? text.size() : line_end;
        const QStringView line = QStringView(text).mid(begin, end - begin);
        Show_NSLog_Message(line.left(Longest_Logged));
        numbers.push_back(Number_In_Line(line));
        order.recipients.Numbers().Fetch(numbers.back());
        order.exclusions.Fetch(numbers.back());
        begin = end + 1;
        if (numbers.size() < Lines_In_Batch && begin <= text.size())
            continue;
        Take_In(order, numbers);
        numbers.clear();
        if (Now_Seconds() - last_report < Seconds_Between_Reports && begin <= text.size())
            continue;
        const int percent = static_cast<int>(end * 100 / std::max<qsizetype>(1, text.size()));
        Run_On_Interface_Thread([&] { m_target.show_progress(order.recipients.Count(), percent); });
        last_report = Now_Seconds();
    }
}

void Number_Import::Take_In(Order& order, const std::vector<Packed_Number>& numbers) const
{
    const Number_Terms terms{order.skip_duplicates ? &order.recipients.Numbers() : nullptr,
                             order.heed_exclusions ? &order.exclusions : nullptr};
    for (const Packed_Number& number : numbers) {
        if (number.Is_Empty() || Judge_Valid_Number(number, terms) != Number_Verdict::Accepted)
            continue;
        order.recipients.Append(number, order.message);
        if (order.recipients.Count() == First_Shown) {
            Recipient_List first = order.recipients;
            Hand_Over(first);
        }
    }
}

void Number_Import::Hand_Over(Recipient_List& recipients) const
{
    Run_On_Interface_Thread([&] { m_target.take_over(recipients); });
}
