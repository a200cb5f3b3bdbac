#include "Window_Bench.h"

#include "First_Paint.h"
#include "Measured_Program.h"
#include "app/Command_Line.h"
#include "app/Program.h"
#include "platform/Single_Start.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "windows/stores/Sent_Items.h"

#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <vector>

// One measurement of the real main window for each process: bench-window <measurement> <arguments>. The data folder is
// the one that XDG_DATA_HOME leads to. Prints one JSON object; seconds, and gaps in milliseconds.

namespace {

const QString Message = QStringLiteral("the same for all");

void Repaint(QTableView& table)
{
    table.viewport()->repaint();
    QCoreApplication::processEvents();
}

void Compose(Measured_Program& program, const QString& text)
{
    program.The<QPlainTextEdit>("_messageEdit").setPlainText(text);
}

// import <numbers> <excluded numbers>: from the file to the filled list, both options on; then the same file again,
// which is all duplicates; and all of them cleared.
int Measure_Import(Measured_Program& program, char** arguments)
{
    Compose(program, Message);
    program.Apply_Exclusions(QString::fromLocal8Bit(arguments[1]));
    program.Tick("_Skip_Duplicate_Chk");
    double seconds = 0;
    program.Measure("import whole", [&] { seconds = program.Import(QString::fromLocal8Bit(arguments[0])); });
    program.Put("import seconds", seconds);
    const auto& recipients = program.Window().Recipients();
    const int count = recipients.Count();
    program.Put("count", count);

    // The same file once more: each of its numbers is in the list but one, without which a box would tell of none.
    program.The<QTableView>("idTableView").selectRow(0);
    program.Click("Clear_Sel_Btn");
    program.Put("duplicates seconds", program.Import(QString::fromLocal8Bit(arguments[0])));
    program.Put("duplicates count", program.Window().Recipients().Count());

    program.Measure("clear", [&] { program.Click("Clear_All_Btn"); });
    return program.Window().Recipients().Count();
}

// memory <distinct numbers>: what a recipient takes, index included, all sharing one message.
int Measure_Memory(Measured_Program& program, char** arguments)
{
    Compose(program, Message);
    program.Tick("_Skip_Duplicate_Chk");
    const long before = Resident_Kilobytes();
    program.Import(QString::fromLocal8Bit(arguments[0]));
    const int count = program.Window().Recipients().Count();
    program.Put("count", count);
    program.Put("bytes each", static_cast<double>(Resident_Kilobytes() - before) * 1024 / count);
    program.Put("bytes each at most", static_cast<double>(Highest_Resident_Kilobytes() - before) * 1024 / count);
    return 0;
}

// load <records>: the window of sent items from the press to the filled table, and closed again, which writes them
// back.
int Measure_Load(Measured_Program& program, char** arguments)
{
    const int records = std::atoi(arguments[0]);
    auto& window = *Sent_Items::defaultInstance();
    auto* rows = Measured_Program::Part<QTableView>(window, "idSendList").model();
    const long before = Resident_Kilobytes();
    Heartbeat heartbeat;
    heartbeat.Begin();
    const double begin = Now_Seconds();
    double loaded = 0;
    double closed = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (rows->rowCount() != records || !Measured_Program::Part<QPushButton>(window, "Cancel_Btn").isVisible())
            return;
        look.stop();
        loaded = Now_Seconds();
        program.Put("load kilobytes", static_cast<double>(Resident_Kilobytes() - before));
        program.Put("load kilobytes at most", static_cast<double>(Highest_Resident_Kilobytes() - before));
        program.Put("load gap", heartbeat.End());
        heartbeat.Begin();
        closed = Now_Seconds();
        QMetaObject::invokeMethod(&window, "reject", Qt::QueuedConnection);
    });
    look.start(1);
    program.Click("Sent_Item_Btn");
    program.Put("load seconds", loaded - begin);
    program.Put("rewrite seconds", Now_Seconds() - closed);
    program.Put("rewrite gap", heartbeat.End());
    program.Put("rewrite kilobytes at most", static_cast<double>(Highest_Resident_Kilobytes() - before));
    return 0;
}

void Scroll_Through(QTableView& table)
{
    auto& bar = *table.verticalScrollBar();
    constexpr int stops = 20;
    for (int stop = 1; stop <= stops; ++stop) {
        bar.setValue(static_cast<int>(qint64{bar.maximum()} * stop / stops));
        Repaint(table);
    }
    bar.setValue(0);
    Repaint(table);
}

// The edit dialog as a person uses it: a double click, a changed message, OK.
void Edit_Row(Measured_Program& program, QTableView& table, int row, const QString& number)
{
    table.selectRow(row);
    program.When_Opens(QStringLiteral("Update_Num_SMS"), [&](QWidget& dialog) {
        Measured_Program::Part<QPlainTextEdit>(dialog, "m_msg_str").setPlainText(QStringLiteral("another message"));
        if (!number.isEmpty())
            Measured_Program::Part<QLineEdit>(dialog, "m_num_str").setText(number);
        Measured_Program::Part<QPushButton>(dialog, "OKPressed").click();
    });
    program.Window().doubleClickInTable();
    Repaint(table);
}

// table <distinct numbers>: the steps of the recipient table.
int Measure_Table(Measured_Program& program, char** arguments)
{
    Compose(program, Message);
    program.Import(QString::fromLocal8Bit(arguments[0]));
    auto& table = program.The<QTableView>("idTableView");
    const int count = program.Window().Recipients().Count();
    program.Put("count", count);
    Repaint(table);
    Edit_Row(program, table, 0, {}); // makes the dialog, once in a program's life
    program.When_Opens(QStringLiteral("Fill_Msg_In_List"),
                       [](QWidget& dialog) { Measured_Program::Part<QPushButton>(dialog, "CancelPressed").click(); });
    program.Click("Fill_Msg_Btn");

    program.Measure("scroll", [&] { Scroll_Through(table); });
    program.Measure("select all", [&] {
        table.selectAll();
        Repaint(table);
    });
    table.clearSelection();
    program.Measure("edit message", [&] { Edit_Row(program, table, count / 2, {}); });
    program.Measure("edit number", [&] { Edit_Row(program, table, count / 2, QStringLiteral("123456789")); });
    program.Measure("fill all", [&] {
        program.When_Opens(QStringLiteral("Fill_Msg_In_List"),
                           [](QWidget& dialog) { Measured_Program::Part<QPushButton>(dialog, "OKPressed").click(); });
        program.Click("Fill_Msg_Btn");
        Repaint(table);
    });
    const auto* rows = table.model();
    table.selectionModel()->select(QItemSelection(rows->index(0, 0), rows->index(count / 2 - 1, 1)),
                                   QItemSelectionModel::ClearAndSelect);
    program.Measure("clear half", [&] {
        program.Click("Clear_Sel_Btn");
        Repaint(table);
    });
    program.Put("count after half", program.Window().Recipients().Count());
    program.Measure("clear all", [&] {
        program.Click("Clear_All_Btn");
        Repaint(table);
    });
    return program.Window().Recipients().Count();
}

// How long a processor has worked for this thread, in seconds.
double Worked_Seconds()
{
    timespec worked = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &worked);
    return static_cast<double>(worked.tv_sec) + static_cast<double>(worked.tv_nsec) * 1e-9;
}

// The median of many keys at the end of the text, each until it and all that follows from it has been painted; of the
// processor, so that it says the same on a busy computer.
double Seconds_For_A_Key(QPlainTextEdit& edit)
{
    constexpr int keys = 201;
    edit.moveCursor(QTextCursor::End);
    std::vector<double> seconds;
    for (int key = 0; key < keys; ++key) {
        const double begin = Worked_Seconds();
        edit.insertPlainText(QStringLiteral("y"));
        QCoreApplication::processEvents();
        seconds.push_back(Worked_Seconds() - begin);
        edit.textCursor().deletePreviousChar();
        QCoreApplication::processEvents();
    }
    std::nth_element(seconds.begin(), seconds.begin() + keys / 2, seconds.end());
    return seconds[keys / 2];
}

// typing: a key in a message of nearly 1,600 characters, of which many are marked; in the described manner, in the
// confirmed one, and in a text area that nobody watches.
int Measure_Typing(Measured_Program& program, char** /*arguments*/)
{
    const QString text = QStringLiteral("“Grüße” – 10 € für ő, ą… ").repeated(64).left(1590);
    QPlainTextEdit alone;
    alone.resize(program.The<QPlainTextEdit>("_messageEdit").size());
    alone.show();
    alone.setPlainText(text);
    program.Put("key alone", Seconds_For_A_Key(alone));
    program.Window().Set_Composer_Text(text);
    QCoreApplication::processEvents();
    program.When_Opens(QStringLiteral("Long_SMS_Dlg"),
                       [](QWidget& notice) { Measured_Program::Part<QPushButton>(notice, "OKPressed").click(); });
    Seconds_For_A_Key(program.The<QPlainTextEdit>("_messageEdit")); // the first one opens the notice
    program.Put("key described", Seconds_For_A_Key(program.The<QPlainTextEdit>("_messageEdit")));
    program.Tick("_Confirm_Chk");
    QCoreApplication::processEvents();
    program.Put("key confirmed", Seconds_For_A_Key(program.The<QPlainTextEdit>("_messageEdit")));
    return 0;
}

// start: what main() does up to the first painted window. Ends there.
int Measure_Start(int argument_count, char** arguments)
{
    Single_Start single_start(QFileInfo(Default_Resource_Path()).path());
    if (single_start.Begin() != Single_Start::Outcome::First)
        return 1;
    QApplication application(argument_count, arguments);
    Program program(Command_Line{}, &single_start);
    if (!program.Start())
        return 1;
    End_At_First_Paint_Of(program.Delegate());
    return program.Run();
}

// idle <seconds>: the program with nothing to do, for real time.
int Measure_Idle(Measured_Program& program, char** arguments)
{
    Measure_Rest(program, std::atof(arguments[0]));
    return 0;
}

struct Measurement
{
    const char* name;
    int arguments;
    int (*measure)(Measured_Program&, char**);
};

constexpr Measurement Measurements[] = {{"import", 2, Measure_Import}, {"memory", 1, Measure_Memory},
                                        {"load", 1, Measure_Load},     {"table", 1, Measure_Table},
                                        {"idle", 1, Measure_Idle},     {"job", 4, Measure_Job},
                                        {"pause", 3, Measure_Pause},   {"typing", 0, Measure_Typing}};

} // namespace

int main(int argument_count, char** arguments)
{
    if (argument_count == 2 && std::strcmp(arguments[1], "start") == 0)
        return Measure_Start(argument_count, arguments);
    for (const auto& measurement : Measurements) {
        if (argument_count != measurement.arguments + 2 || std::strcmp(arguments[1], measurement.name) != 0)
            continue;
        int left = 0;
        Measured_Program program(argument_count, arguments);
        left = measurement.measure(program, arguments + 2);
        program.Print();
        return left;
    }
    std::fprintf(stderr, "bench-window start|import|memory|load|table|typing|idle|job|pause <arguments>\n");
    return 2;
}
