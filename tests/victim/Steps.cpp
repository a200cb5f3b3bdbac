#include "victim/Steps.h"

#include "app/Program.h"
#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "platform/Pace.h"
#include "platform/Single_Start.h"
#include "records/Data_Paths.h"
#include "support/Files.h"
#include "support/In_Windows.h"
#include "victim/Person.h"
#include "victim/Spoilt_Disk.h"
#include "windows/main/CorvaneAppDelegate.h"

namespace {

struct Store
{
    const char* main_window_button;
    const char* window;
    const char* close_button = "Cancel_Btn";
};
constexpr Store Sent_Items_Window = {"Sent_Item_Btn", "Sent_Items"};
constexpr Store Templates_Window = {"View_Templates_Btn", "Templates"};
constexpr Store Exclusion_Window = {"View_ExclusionWizrd_Btn", "Exclusion_Wizard", "m_cancel_btn"};

// One life of the program, from its start to its end.
class Life
{
public:
    Life(const Order& order, Last_Words& last_words) : m_order(order), m_last_words(last_words)
    {
        m_person.Will_Click("Send_Msg_Info", "ContinuePressed");
        m_person.Will_Click("Load_Num_Info", "YESPressed");
        m_person.Will_Click("Open_Export_Log", "CancelPressed");
        m_person.Will_Click("Connection_Info", "Continue_Btn");
        m_person.In_Window("Export_Option", [this](QWidget& dialog) {
            if (m_is_html)
                Person::Click_In(dialog, "Export_In_Html_RD");
            Person::Click_In(dialog, "OKPressed");
        });
    }

    void Live()
    {
        Single_Start single_start(QFileInfo(Default_Resource_Path()).path());
        Note(single_start.Begin(0.5) == Single_Start::Outcome::First ? "outcome first" : "outcome other");
        Command_Line command_line;
        if (m_order.steps == "wizard")
            command_line.device_paths = {Phone()};
        Program program(command_line, &single_start);
        m_program = &program;
        if (!program.Start()) {
            Mark("start");
            return;
        }
        Note("started");
        const Spoilt_Disk disk(m_order.disk, In_World("data"));
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
        QByteArray boxes;
        for (const QString& box : m_person.Boxes_Since())
            boxes += ' ' + box.toUtf8().toBase64();
        Note("boxes " + step + boxes);
        QDirIterator files(Resource_Path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            Note("file " + step + ' ' + QFileInfo(path).fileName().toUtf8().toBase64() + ' ' +
                 Bytes_Of(path).toBase64());
        }
    }

    static void Serve_Until_Quiet()
    {
        Serve_Until([] { return Workers_Running() == 0; }, 50);
    }

    CorvaneAppDelegate& Main_Window_Shown() { return m_program->Delegate(); }
    void Click(const char* button) { Person::Click_In(Main_Window_Shown(), button); }
    QString In_World(const QString& name) const { return QString::fromStdString(m_order.world) + u'/' + name; }
    QString Phone() const { return QString::fromStdString(m_order.phone); }

    void Add_Number(const QString& number)
    {
        In<QLineEdit>(Main_Window_Shown(), "_numberEdit").setText(number);
        Click("Add_Number");
    }

    /// Opens a window with a list by the main window's button, does the steps and closes it.
    void Visit(const Store& store, const std::function<void(QWidget&)>& steps)
    {
        m_person.In_Window(store.window, [store, steps](QWidget& opened) {
            Serve_Until_Quiet();
            steps(opened);
            if (opened.isVisible())
                Person::Click_In(opened, store.close_button);
        });
        Click(store.main_window_button);
    }

    static void Select(QWidget& window, const char* table, int first, int last)
    {
        auto& rows = In<QTableView>(window, table);
        rows.selectionModel()->select(QItemSelection(rows.model()->index(first, 0), rows.model()->index(last, 0)),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    void Do_The_Steps()
    {
        const std::map<std::string, std::function<void()>> all = {
            {"job", [this] { Send(); }},
            {"sent_items", [this] { Edit_Sent_Items(); }},
            {"import", [this] { Import(); }},
            {"templates", [this] { Edit_Templates(); }},
            {"export", [this] { Export(); }},
            {"exclusion", [this] { Edit_Exclusion_Lists(); }},
            {"start", [] {}},
            {"look", [this] { Look(); }},
            {"wizard", [this] { Find_The_Phone(); }},
        };
        all.at(m_order.steps)();
    }

    // What the windows of the stores show.
    void Look()
    {
        Visit(Sent_Items_Window, [this](QWidget& window) { Note_Rows("sent", window, "idSendList"); });
        Visit(Templates_Window, [this](QWidget& window) { Note_Rows("template", window, "idTemplateList"); });
        Visit(Exclusion_Window, [this](QWidget& window) {
            Note_Rows("list", window, "m_exclusion_list");
            Note_Rows("applied", window, "m_applied_axclusion_list");
        });
        Mark("look");
    }

    void Note_Rows(const QByteArray& what, QWidget& window, const char* table)
    {
        const auto* rows = In<QTableView>(window, table).model();
        for (int row = 0; row < rows->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < rows->columnCount(); ++column)
                cells.append(rows->index(row, column).data().toString());
            Note(what + ' ' + cells.join(u'\t').toUtf8().toBase64());
        }
    }

    void Send()
    {
        sel_port_bsd_str = sel_port_name_str = Phone();
        for (int item = m_order.first; item < m_order.first + m_order.items; ++item) {
            const QString text = u"message %1 "_qs.arg(item) + QString(item % 4 == 3 ? 150 : 20, u'x');
            Main_Window_Shown().Set_Composer_Text(text);
            Add_Number(QString::number(item));
        }
        for (const char* box : {"_Save_Sent_Item_Chk", "_Save_Templates_Chk"})
            In<QCheckBox>(Main_Window_Shown(), box).setChecked(true);
        Mark("list");
        Click("_sent_btn");
        Serve_Until([] { return sms_thread_var == 0; }, 50);
        Serve_Until_Quiet();
        Mark("job");
    }

    void Find_The_Phone()
    {
        m_person.In_Window("Phone_List_Wnd", [this](QWidget& window) {
            Serve_Until_Quiet();
            auto& table = In<QTableView>(window, "idPortList");
            if (const auto row = Row_With(table, Phone(), 1); row.isValid())
                QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(row).center());
            Serve_Until_Quiet();
            Person::Click_In(window, "_Select_Btn");
            if (window.isVisible())
                Person::Click_In(window, "_Cancel_Btn");
        });
        Click("Search_All_Modem");
        Note(sel_port_bsd_str == Phone() ? "selected" : "not selected");
        Mark("wizard");
    }

    void Edit_Sent_Items()
    {
        Visit(Sent_Items_Window, [](QWidget& window) {
            Select(window, "idSendList", 1, 3);
            Person::Click_In(window, "Clear_Sel_Btn");
        });
        Mark("clear_some");
        Visit(Sent_Items_Window, [](QWidget& window) { Person::Click_In(window, "Clear_All_Btn"); });
        Mark("clear_all");
    }

    void Edit_Templates()
    {
        m_person.In_Window("UpdateTemp", [](QWidget& dialog) {
            In<QPlainTextEdit>(dialog, "m_templ_msg_str").insertPlainText(u"entered"_qs);
            Person::Click_In(dialog, "OKPressed");
        });
        Visit(Templates_Window, [](QWidget& window) {
            Person::Click_In(window, "AddNew_Btn");
            Select(window, "idTemplateList", 1, 3);
            Person::Click_In(window, "Clear_Sel_Btn");
        });
        Mark("edit");
        Visit(Templates_Window, [](QWidget& window) { Person::Click_In(window, "Clear_All_Btn"); });
        Mark("clear_all");
    }

    void Import()
    {
        m_person.Will_Pick(In_World("numbers.txt"));
        Click("Load_Number");
        Serve_Until_Quiet();
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
        for (const char* number : {"111", "222"})
            Add_Number(QLatin1String(number));
        Export_From(Main_Window_Shown(), "contacts.txt", false);
        Visit(Sent_Items_Window, [this](QWidget& window) {
            Export_From(window, "sent.txt", false);
            Export_From(window, "sent.html", true);
        });
        Visit(Templates_Window, [this](QWidget& window) {
            Export_From(window, "templates.txt", false);
            Export_From(window, "templates.html", true);
        });
        Mark("close");
    }

    // A new list, applied, edited, and deleted again.
    void Edit_Exclusion_Lists()
    {
        Visit(Exclusion_Window, [this](QWidget& wizard) {
            const auto click = [&](const char* button) { Person::Click_In(wizard, button); };
            click("m_addnew_btn");
            In<QLineEdit>(wizard, "m_ex_list_name_edit").setText(u"Fresh"_qs);
            click("m_next_btn");
            In<QLineEdit>(wizard, "m_loadfile_edit").setText(In_World("numbers.txt"));
            click("m_load_btn");
            Serve_Until_Quiet();
            click("m_finish_btn");
            Mark("create");
            Select(wizard, "m_exclusion_list", 1, 1);
            click("m_addlist_btn");
            click("m_saveapplied_btn");
            Mark("apply");
            Select(wizard, "m_exclusion_list", 0, 0);
            click("m_update_btn");
            Serve_Until_Quiet();
            if (auto& number = In<QLineEdit>(wizard, "m_loadnum_edit"); number.isVisible()) {
                number.setText(u"999"_qs);
                click("m_add_num_btn");
                click("m_finish_btn");
            }
            Mark("edit");
            Select(wizard, "m_exclusion_list", 1, 1);
            click("m_delete_btn");
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
    const QByteArray home = QByteArray::fromStdString(order.world) + "/home";
    const QByteArray data = QByteArray::fromStdString(order.world) + "/data";
    qputenv("XDG_DATA_HOME", data);
    qputenv("XDG_CONFIG_HOME", home);
    qputenv("HOME", home);
    Set_Pace(order.pace);
    Prepare_Disk(order.disk, QFile::decodeName(data));
    Begin_Doom(order.doom, order.world, order.phone, last_words);
    Life(order, last_words).Live();
    End_Doom();
}
