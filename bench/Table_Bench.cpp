#include "list/Number_Import.h"
#include "list/Table_File.h"
#include "plan/Job_Plan.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <unistd.h>
#include <vector>

// What tables and plans cost:
//   bench-table list <table>: from the file to a list with fields, and the text of each of its recipients
//   bench-table plan <table> <excluded numbers>: verdicts, parts and sums of its rows
//   bench-table import <numbers> <excluded numbers>: the import of a plain list
// In tables the numbers stand in the first column.

namespace {

const QString Message = QStringLiteral("Dear {{Name}}, your appointment in {{City}} is on Monday at 10:15.");

double Resident_Bytes()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').at(1).toDouble() * static_cast<double>(getpagesize());
}

// What all processors have worked for this program.
double Processor_Seconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

std::shared_ptr<const Contact_Table> Table_In(const char* path)
{
    Table_In_A_File file = Read_Table(QString::fromLocal8Bit(path), {});
    if (!file.trouble.isEmpty())
        qFatal("%s: %s", path, qPrintable(file.trouble));
    return std::make_shared<const Contact_Table>(std::move(file.table));
}

Packed_Number Number_In(const Contact_Table& table, int row)
{
    if (const auto plain = Plain_Number_In(table.Bytes_At(row, 0)))
        return *plain;
    const QString number = Number_Of_Input(table.Field(row, 0), Plan_Numbers::In_A_Table, nullptr).number;
    return Packed_Number::Of(number).value_or(Packed_Number());
}

Number_List Numbers_In(const char* path)
{
    Number_List numbers;
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", path);
    while (!file.atEnd())
        numbers.Append(QString::fromLatin1(file.readLine().trimmed()));
    return numbers;
}

int Measure_List(char** arguments)
{
    const double before = Resident_Bytes();
    const double begin = Now_Seconds();
    const double processor_begin = Processor_Seconds();
    const auto table = Table_In(arguments[0]);
    const double is_read = Now_Seconds();
    const double processor_read = Processor_Seconds();
    Recipient_List list;
    list.Expect(table->Row_Count());
    std::vector<Packed_Number> numbers;
    std::vector<int> rows;
    for (int row = 0; row < table->Row_Count(); ++row) {
        numbers.push_back(Number_In(*table, row));
        rows.push_back(row);
        if (rows.size() < 1024 && row + 1 < table->Row_Count())
            continue;
        list.Append_From_Table(numbers, Message, table, rows);
        numbers.clear();
        rows.clear();
    }
    const double is_added = Now_Seconds();
    const double processor_added = Processor_Seconds();
    qint64 characters = 0;
    const Message_Filling filling(Message, *table);
    Filled_Message filled;
    for (int index = 0; index < list.Count(); ++index) {
        filling.Fill(filled, *table, list.Table_Row_At(index));
        characters += filled.text.size();
    }
    const double end = Now_Seconds();
    const double processor = Processor_Seconds();
    const double bytes_each = (Resident_Bytes() - before) / list.Count();
    std::printf("{\"seconds\": %.6f, \"read seconds\": %.6f, \"list seconds\": %.6f, \"text seconds\": %.6f, "
                "\"processor seconds\": %.6f, \"processor read\": %.6f, \"processor list\": %.6f, "
                "\"processor text\": %.6f, \"count\": %d, \"characters\": %lld, \"bytes each\": %.1f}\n",
                end - begin, is_read - begin, is_added - is_read, end - is_added, processor - processor_begin,
                processor_read - processor_begin, processor_added - processor_read, processor - processor_added,
                list.Count(), static_cast<long long>(characters), bytes_each);
    return 0;
}

int Measure_Plan(char** arguments)
{
    const auto table = Table_In(arguments[0]);
    Plan_Terms terms;
    terms.skip_duplicates = true;
    terms.excluded = Numbers_In(arguments[1]);
    const double begin = Now_Seconds();
    const double processor_begin = Processor_Seconds();
    const Job_Plan plan = Job_Plan::Of_Table(table, 0, Message, terms);
    const Plan_Sums sums = plan.Sums();
    const double seconds = Now_Seconds() - begin;
    std::printf("{\"seconds\": %.6f, \"processor seconds\": %.6f, \"count\": %d, \"parts\": %lld, \"unicode\": %d}\n",
                seconds, Processor_Seconds() - processor_begin, sums.send, static_cast<long long>(sums.parts),
                sums.unicode);
    return 0;
}

int Measure_Import(char** arguments)
{
    Number_Import::Order order;
    order.path = QString::fromLocal8Bit(arguments[0]);
    order.exclusions = Numbers_In(arguments[1]);
    order.message = Message;
    order.skip_duplicates = true;
    order.heed_exclusions = true;
    Recipient_List list;
    QEventLoop loop;
    Number_Import import({[](int, int) {}, [&](Recipient_List& recipients) { std::swap(list, recipients); },
                          [] { qFatal("the numbers cannot be read"); }, [&] { loop.quit(); },
                          [] { qFatal("the import broke off"); }});
    const double begin = Now_Seconds();
    const double processor_begin = Processor_Seconds();
    import.Load_NUM_Thread(std::move(order));
    loop.exec();
    std::printf("{\"seconds\": %.6f, \"processor seconds\": %.6f, \"count\": %d}\n", Now_Seconds() - begin,
                Processor_Seconds() - processor_begin, list.Count());
    Finish_Workers();
    return 0;
}

} // namespace

int main(int argument_count, char** arguments)
{
    const QCoreApplication application(argument_count, arguments);
    const QByteArrayView what(argument_count > 1 ? arguments[1] : "");
    if (argument_count == 3 && what == "list")
        return Measure_List(arguments + 2);
    if (argument_count == 4 && what == "plan")
        return Measure_Plan(arguments + 2);
    if (argument_count == 4 && what == "import")
        return Measure_Import(arguments + 2);
    std::fprintf(stderr, "bench-table list <table> | plan|import <file> <excluded numbers>\n");
    return 2;
}
