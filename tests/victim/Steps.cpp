#include "victim/Steps.h"

#include "app/Program.h"
#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Single_Start.h"
#include "records/Data_Paths.h"
#include "support/Serve_Until.h"
#include "victim/Person.h"
#include "victim/Spoilt_Disk.h"
#include "windows/main/CorvaneAppDelegate.h"

#include <QApplication>
#include <QCheckBox>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace {

// One life of the program, from its start to its end.
class Life
{
public:
    Life(const Order& order, Last_Words& last_words) : m_order(order), m_last_words(last_words)
    {
        m_person.In_Window(QStringLiteral("Send_Msg_Info"),
                           [](QWidget& dialog) { Person::Click_In(dialog, "ContinuePressed"); });
        m_person.In_Window(QStringLiteral("Load_Num_Info"),
                           [](QWidget& dialog) { Person::Click_In(dialog, "YESPressed"); });
        m_person.In_Window(QStringLiteral("Open_Export_Log"),
                           [](QWidget& dialog) { Person::Click_In(dialog, "CancelPressed"); });
        m_person.In_Window(QStringLiteral("Export_Option"), [this](QWidget& dialog) {
            if (m_is_html)
                Person::Click_In(dialog, "Export_In_Html_RD");
            Person::Click_In(dialog, "OKPressed");
        });
    }

    void Live()
    {
        Single_Start single_start(QFileInfo(Default_Resource_Path()).path());
        Note(single_start.Begin(0.5) == Single_Start::Outcome::First ? "outcome first" : "outcome other");
        Program program(With_The_Phone(), &single_start);
        m_program = &program;
        if (!program.Start()) {
            Mark("start");
            return;
        }
        Note("started");
        const Spoilt_Disk disk(m_order.disk, Path_Of_Data());
        QTimer::singleShot(0, qApp, [this] {
            Mark("start");
            Do_The_Steps();
            Serve_Until_Quiet();
            m_program->Leave();
        });
        program.Run();
    }

private:
    void Note(const QByteArray& line) { m_last_words.journal.Add(line.toStdString() + '\n'); }

    /// Tells what was shown since the last step, and what the data files hold now.
    void Mark(const QByteArray& step)
    {
        Note("boxes " + step + ' ' + m_person.Boxes_Since().join(u'|').toUtf8().toBase64());
        QDirIterator files(Resource_Path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly))
                Note("file " + step + ' ' + QFileInfo(file).fileName().toUtf8().toBase64() + ' ' +
                     file.readAll().toBase64());
        }
    }

    Command_Line With_The_Phone() const
    {
        Command_Line command_line;
        if (m_order.steps == QStringLiteral("wizard"))
            command_line.device_paths = {m_order.phone};
        return command_line;
    }
    QString Path_Of_Data() const { return m_order.world + QStringLiteral("/data"); }

    static void Serve_Until_Quiet()
    {
        Serve_Until([] { return Workers_Running() == 0; }, 50);
    }

    CorvaneAppDelegate& Main_Window_Shown() { return m_program->Delegate(); }
    void Click(const char* button) { Person::Click_In(Main_Window_Shown(), button); }
    QString In_World(const char* name) const { return m_order.world + u'/' + QLatin1String(name); }

    /// Opens a window with a list by the main window's button, does the steps and closes it.
    void Visit(const char* button, const char* window, const char* close, const std::function<void(QWidget&)>& steps)
    {
        m_person.In_Window(QLatin1String(window), [close, steps](QWidget& opened) {
            Serve_Until_Quiet();
            steps(opened);
            if (opened.isVisible())
                Person::Click_In(opened, close);
        });
        Click(button);
    }
    void Visit_Sent_Items(const std::function<void(QWidget&)>& steps)
    {
        Visit("Sent_Item_Btn", "Sent_Items", "Cancel_Btn", steps);
    }
    void Visit_Templates(const std::function<void(QWidget&)>& steps)
    {
        Visit("View_Templates_Btn", "Templates", "Cancel_Btn", steps);
    }
    void Visit_Exclusion_Lists(const std::function<void(QWidget&)>& steps)
    {
        Visit("View_ExclusionWizrd_Btn", "Exclusion_Wizard", "m_cancel_btn", steps);
    }

    static void Select(QWidget& window, const char* table, int first, int last)
    {
        auto* rows = window.findChild<QTableView*>(QLatin1String(table));
        rows->clearSelection();
        rows->selectionModel()->select(QItemSelection(rows->model()->index(first, 0), rows->model()->index(last, 0)),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    void Do_The_Steps()
    {
        const std::map<QString, void (Life::*)()> all = {
            {QStringLiteral("job"), &Life::Send},
            {QStringLiteral("sent_items"), &Life::Edit_Sent_Items},
            {QStringLiteral("import"), &Life::Import},
            {QStringLiteral("templates"), &Life::Edit_Templates},
            {QStringLiteral("export"), &Life::Export},
            {QStringLiteral("exclusion"), &Life::Edit_Exclusion_Lists},
            {QStringLiteral("start"), &Life::Only_Start},
            {QStringLiteral("look"), &Life::Look},
            {QStringLiteral("wizard"), &Life::Find_The_Phone},
        };
        (this->*all.at(m_order.steps))();
    }

    void Only_Start() {}

    // What the windows of the stores show.
    void Look()
    {
        Visit_Sent_Items([this](QWidget& window) { Note_Rows("sent", window, "idSendList"); });
        Visit_Templates([this](QWidget& window) { Note_Rows("template", window, "idTemplateList"); });
        Visit_Exclusion_Lists([this](QWidget& window) {
            Note_Rows("list", window, "m_exclusion_list");
            Note_Rows("applied", window, "m_applied_axclusion_list");
        });
        Mark("look");
    }

    void Note_Rows(const QByteArray& what, QWidget& window, const char* table)
    {
        const auto* rows = window.findChild<QTableView*>(QLatin1String(table))->model();
        for (int row = 0; row < rows->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < rows->columnCount(); ++column)
                cells.append(rows->index(row, column).data().toString());
            Note(what + ' ' + cells.join(u'\t').toUtf8().toBase64());
        }
    }

    void Send()
    {
        sel_port_bsd_str = m_order.phone;
        sel_port_name_str = m_order.phone;
        for (int item = m_order.first; item < m_order.first + m_order.items; ++item) {
            const QString text = QStringLiteral("message %1 ").arg(item) + QString(item % 4 == 3 ? 150 : 20, u'x');
            Main_Window_Shown().Set_Composer_Text(text);
            Main_Window_Shown().findChild<QLineEdit*>(QStringLiteral("_numberEdit"))->setText(QString::number(item));
            Click("Add_Number");
        }
        for (const char* box : {"_Save_Sent_Item_Chk", "_Save_Templates_Chk"})
            Main_Window_Shown().findChild<QCheckBox*>(QLatin1String(box))->setChecked(true);
        Mark("list");
        Click("_sent_btn");
        Serve_Until([] { return sms_thread_var == 0; }, 50);
        Serve_Until_Quiet();
        Mark("job");
    }

    void Find_The_Phone()
    {
        m_person.In_Window(QStringLiteral("Connection_Info"),
                           [](QWidget& window) { Person::Click_In(window, "Continue_Btn"); });
        m_person.In_Window(QStringLiteral("Phone_List_Wnd"), [this](QWidget& window) {
            Serve_Until_Quiet();
            auto* table = window.findChild<QTableView*>(QStringLiteral("idPortList"));
            const auto* rows = table->model();
            const auto found = rows->match(rows->index(0, 1), Qt::DisplayRole, m_order.phone, 1, Qt::MatchExactly);
            if (!found.isEmpty())
                QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(found.front()).center());
            Serve_Until_Quiet();
            Person::Click_In(window, "_Select_Btn");
            if (window.isVisible())
                Person::Click_In(window, "_Cancel_Btn");
        });
        Click("Search_All_Modem");
        Note(sel_port_bsd_str == m_order.phone ? "selected" : "not selected");
        Mark("wizard");
    }

    void Edit_Sent_Items()
    {
        Visit_Sent_Items([](QWidget& window) {
            Select(window, "idSendList", 1, 3);
            Person::Click_In(window, "Clear_Sel_Btn");
        });
        Mark("clear some");
        Visit_Sent_Items([](QWidget& window) { Person::Click_In(window, "Clear_All_Btn"); });
        Mark("clear all");
    }

    void Edit_Templates()
    {
        m_person.In_Window(QStringLiteral("UpdateTemp"), [](QWidget& dialog) {
            dialog.findChild<QPlainTextEdit*>(QStringLiteral("m_templ_msg_str"))->insertPlainText(u"entered"_qs);
            Person::Click_In(dialog, "OKPressed");
        });
        Visit_Templates([](QWidget& window) {
            Person::Click_In(window, "AddNew_Btn");
            Select(window, "idTemplateList", 1, 3);
            Person::Click_In(window, "Clear_Sel_Btn");
        });
        Mark("edit");
        Visit_Templates([](QWidget& window) { Person::Click_In(window, "Clear_All_Btn"); });
        Mark("clear all");
    }

    void Import()
    {
        m_person.Will_Pick(In_World("numbers.txt"));
        Click("Load_Number");
        Serve_Until_Quiet();
        Note("imported " + QByteArray::number(Main_Window_Shown().Recipients().Count()));
        Mark("import");
    }

    void Export_From(QWidget& window, const char* file, bool is_html)
    {
        m_is_html = is_html;
        m_person.Will_Pick(In_World(file));
        Person::Click_In(window, "Export_Btn");
        Mark(file);
    }

    void Export()
    {
        for (const char* number : {"111", "222"}) {
            Main_Window_Shown().findChild<QLineEdit*>(QStringLiteral("_numberEdit"))->setText(QLatin1String(number));
            Click("Add_Number");
        }
        Export_From(Main_Window_Shown(), "contacts.txt", false);
        Visit_Sent_Items([this](QWidget& window) {
            Export_From(window, "sent.txt", false);
            Export_From(window, "sent.html", true);
        });
        Visit_Templates([this](QWidget& window) {
            Export_From(window, "templates.txt", false);
            Export_From(window, "templates.html", true);
        });
        Mark("close");
    }

    // A new list, applied, edited, and deleted again.
    void Edit_Exclusion_Lists()
    {
        Visit_Exclusion_Lists([this](QWidget& wizard) {
            const auto type = [&](const char* field, const QString& text) {
                wizard.findChild<QLineEdit*>(QLatin1String(field))->setText(text);
            };
            Person::Click_In(wizard, "m_addnew_btn");
            type("m_ex_list_name_edit", QStringLiteral("Fresh"));
            Person::Click_In(wizard, "m_next_btn");
            type("m_loadfile_edit", In_World("numbers.txt"));
            Person::Click_In(wizard, "m_load_btn");
            Serve_Until_Quiet();
            Person::Click_In(wizard, "m_finish_btn");
            Mark("create");
            Select(wizard, "m_exclusion_list", 1, 1);
            Person::Click_In(wizard, "m_addlist_btn");
            Person::Click_In(wizard, "m_saveapplied_btn");
            Mark("apply");
            Select(wizard, "m_exclusion_list", 0, 0);
            Person::Click_In(wizard, "m_update_btn");
            Serve_Until_Quiet();
            if (wizard.findChild<QLineEdit*>(QStringLiteral("m_loadnum_edit"))->isVisible()) {
                type("m_loadnum_edit", QStringLiteral("999"));
                Person::Click_In(wizard, "m_add_num_btn");
                Person::Click_In(wizard, "m_finish_btn");
            }
            Mark("edit");
            Select(wizard, "m_exclusion_list", 1, 1);
            Person::Click_In(wizard, "m_delete_btn");
            Mark("delete");
        });
    }

    const Order& m_order;
    Last_Words& m_last_words;
    Person m_person;
    Program* m_program = nullptr;
    bool m_is_html = false;
};

} // namespace

void Live(const Order& order, Last_Words& last_words)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(order.world + QStringLiteral("/data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(order.world + QStringLiteral("/home")));
    qputenv("HOME", QFile::encodeName(order.world + QStringLiteral("/home")));
    Set_Pace(order.pace);
    Prepare_Disk(order.disk, order.world + QStringLiteral("/data"));
    Begin_Doom(order.doom, QFile::encodeName(order.world).toStdString(), QFile::encodeName(order.phone).toStdString(),
               last_words);
    Life(order, last_words).Live();
    End_Doom();
}
