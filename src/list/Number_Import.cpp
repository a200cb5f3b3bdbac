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
    Import_Report report;
    std::optional<QByteArray> bytes = order.text ? QByteArray() : Bytes_Of_Number_File(order.path);
    if (!bytes) {
        Tell(report, Import_Report::End::Unread);
        Run_On_Interface_Thread(m_target.leave_unread);
        return;
    }
    try {
        const QString text = order.text
                                 ? std::exchange(*order.text, {})
                                 : Text_Of_Number_File(order.path, std::exchange(*bytes, {})); // and lets go of them
        Take_In_Lines(order, text, report);
    } catch (...) {
        Hand_Over(order.recipients);
        Tell(report, Import_Report::End::Early);
        throw;
    }
    Hand_Over(order.recipients);
    Tell(report, Import_Report::End::Complete);
    Run_On_Interface_Thread(m_target.finish);
}

void Number_Import::Take_In_Lines(Order& order, const QString& text, Import_Report& report) const
{
    std::vector<Line> lines;
    double last_report = Now_Seconds();
    for (qsizetype begin = 0; begin <= text.size() && !Program_Is_Exiting();) {
        const qsizetype line_end = text.indexOf(u'\n', begin);
        const qsizetype end = line_end < 0 ? text.size() : line_end;
        const QStringView line = QStringView(text).mid(begin, end - begin);
        Show_NSLog_Message(line.left(Longest_Logged));
        lines.push_back({line, Number_In_Line(line)});
        order.recipients.Numbers().Fetch(lines.back().number);
        order.exclusions.Fetch(lines.back().number);
        begin = end + 1;
        if (lines.size() < Lines_In_Batch && begin <= text.size())
            continue;
        Take_In(order, lines, report);
        lines.clear();
        if (Now_Seconds() - last_report < Seconds_Between_Reports && begin <= text.size())
            continue;
        const int percent = static_cast<int>(end * 100 / std::max<qsizetype>(1, text.size()));
        Run_On_Interface_Thread([&] { m_target.show_progress(order.recipients.Count(), percent); });
        last_report = Now_Seconds();
    }
}

void Number_Import::Take_In(Order& order, const std::vector<Line>& lines, Import_Report& report) const
{
    const Number_Terms terms{order.skip_duplicates ? &order.recipients.Numbers() : nullptr,
                             order.heed_exclusions ? &order.exclusions : nullptr};
    for (const Line& line : lines) {
        if (!report.Accepts(line.text, line.number, terms))
            continue;
        order.recipients.Append(line.number, order.message);
        report.Count_Added();
        if (order.recipients.Count() == First_Shown) {
            Recipient_List first = order.recipients;
            Hand_Over(first);
        }
    }
}

void Number_Import::Tell(Import_Report& report, Import_Report::End end) const
{
    report.Set_End(end);
    if (m_target.report)
        Run_On_Interface_Thread([&] { m_target.report(report); });
}

void Number_Import::Hand_Over(Recipient_List& recipients) const
{
    Run_On_Interface_Thread([&] { m_target.take_over(recipients); });
}
