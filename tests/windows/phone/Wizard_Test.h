#pragma once

#include "device/Chosen_Device.h"
#include "device/Device_Paths.h"
#include "device/Port_Finder.h"
#include "doctor/Phone_Search.h"
#include "phone/Named_Moods.h"
#include "phone/Virtual_Phone.h"
#include "platform/Pace.h"
#include "support/Heartbeat.h"
#include "support/In_Windows.h"
#include "support/Patient_Calls.h"
#include "toolkit/Window_Look.h"
#include "windows/phone/Phone_List_Wnd.h"

#include <atomic>

// Read-only but for the last.
inline const char* const Wizard_Fields[] = {"_comport_edit",  "_port_det_edit", "_manfacturer_edit", "_model_edit",
                                            "_imei_edit",     "_imsi_edit",     "_battery_edit",     "_signal_edit",
                                            "_operator_edit", "_revision_edit", "_def_smsc_edit",    "_cus_smsc_edit"};

// A gate that a worker waits at until the test opens it.
class Gate
{
public:
    void Open()
    {
        m_is_open = true;
        m_is_open.notify_all();
    }
    void Shut() { m_is_open = false; }
    void Wait_Here()
    {
        ++m_waiting;
        m_is_open.wait(false);
        --m_waiting;
    }
    bool Is_Somebody_Waiting() const { return m_waiting > 0; }

private:
    std::atomic<bool> m_is_open = false;
    std::atomic<int> m_waiting = 0;
};

// Finds the given paths and nothing that happens to be plugged into the computer that runs the tests.
class Given_Paths : public Port_Finder
{
public:
    bool Can_Ask() const override { return true; }
    int Find_Ports(Modem_Iterator& iterator) const override
    {
        ++m_searches;
        QList<Modem_Entry> entries;
        const auto paths = Extra_Device_Paths();
        for (const auto& path : paths)
            entries.append({QFile::encodeName(path)});
        iterator = Modem_Iterator(entries);
        return 0;
    }

    mutable std::atomic<int> m_searches{0};
};

// The system's calls, but a chosen path is opened only once the gate is open.
class Gated_Calls : public Patient_Calls
{
public:
    int Open(const char* path, int flags) override
    {
        if (path == m_gated_path)
            m_gate.Wait_Here();
        return Patient_Calls::Open(path, flags);
    }

    std::string m_gated_path;
    Gate m_gate;
};

// A wizard on the offscreen screen, a person who clicks in it, and the phones that a test plugs in: one, unless it says
// otherwise. The waits of the line run at pace 20: each read lasts 50 ms.
class Wizard_Test : public testing::Test, public QObject
{
protected:
    Wizard_Test()
    {
        Apply_Application_Look(*qApp);
        Set_Pace(20);
        Forget_Program_Exit();
        Plug_In(m_phone);
        sel_port_name_str.clear();
        sel_port_bsd_str.clear();
        Cus_SMS_Num_STR.clear();
        m_window = std::make_unique<Phone_List_Wnd>(nullptr, m_finder, m_calls);
        qApp->installEventFilter(this);
    }
    ~Wizard_Test() override
    {
        m_calls.m_gate.Open();
        m_window.reset();
        Forget_Program_Exit();
        Finish_Workers();
        Set_Pace(1);
    }

    /// Offers the phones in the wizard, in this order.
    template <typename... Phones>
    void Plug_In(const Phones&... phones)
    {
        Set_Extra_Device_Paths({QString::fromStdString(phones.Path())...});
    }

    /// Opens the wizard, does the steps, and leaves it without a device when it is still open then. No worker is left.
    int Run(const std::function<void()>& steps)
    {
        m_user.When_Opens("Phone_List_Wnd", [this, steps](QWidget&) {
            steps();
            if (m_window->isVisible())
                m_window->ContinueOfflinePressed();
        });
        const int result = m_window->Open_Ph_List_Wnd();
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        return result;
    }

    template <typename Type = QWidget>
    Type& Control(const char* name) const
    {
        return In<Type>(*m_window, name);
    }
    QString Text(const char* name) const { return Control<QLineEdit>(name).text(); }
    QTableView& Table() const { return Control<QTableView>("idPortList"); }
    int Rows() const { return Table().model()->rowCount(); }
    /// -1 when none is.
    int Selected_Row() const
    {
        const auto rows = Table().selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }
    static bool Sheet_Is_Shown() { return Is_Shown("PleaseWait_Modeless"); }
    int Sheets_So_Far() const { return m_sheets; }
    /// How many of this process stand for the phone.
    int Phones_Descriptors() const
    {
        const QString path = QString::fromStdString(m_phone.Path());
        const QDir descriptors("/proc/self/fd");
        const auto entries = descriptors.entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
        return static_cast<int>(std::count_if(entries.begin(), entries.end(), [&](const QString& entry) {
            return QFile::symLinkTarget(descriptors.filePath(entry)) == path;
        }));
    }

    /// The boxes so far said exactly this.
    void Expect_Told(QStringList texts) const
    {
        EXPECT_EQ(m_user.Was_Shown(), texts.replaceInStrings(QRegularExpression("^"), "\n"));
    }

    // What the person does, as events of the window system, which modal windows hold back.
    void Click(const char* name) const { Click_At(Control(name), QPoint(12, Control(name).height() / 2)); }
    void Click_Row(int row, Qt::KeyboardModifiers keys = {}) const
    {
        Click_At(*Table().viewport(), Middle_Of(Table(), row), keys);
    }
    void Click_Empty_Space() const
    {
        const QPoint corner = Table().viewport()->rect().bottomRight() - QPoint(5, 5);
        ASSERT_FALSE(Table().indexAt(corner).isValid());
        Click_At(*Table().viewport(), corner);
    }
    void Press(Qt::Key key) { QTest::keyClick(m_window->windowHandle(), key); }
    void Type_Custom_Smsc(const QString& number) const
    {
        if (!Control<QCheckBox>("_cus_smsc_chk").isChecked())
            Click("_cus_smsc_chk");
        auto& field = Control<QLineEdit>("_cus_smsc_edit");
        field.clear();
        QTest::keyClicks(&field, number);
    }

    /// Clicks a row and waits until its probe has come to its end.
    void Probe_Row(int row) const
    {
        const int before = Sheets_So_Far();
        Click_Row(row);
        ASSERT_TRUE(Wait_For_Sheets_End(before));
    }
    bool Wait_For_Sheets_End(int sheets_before) const
    {
        return Serve_Until([&] { return Sheets_So_Far() > sheets_before && !Sheet_Is_Shown(); });
    }
    void Search() const
    {
        Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
    }
    /// Begins a search that waits for a device to open until End_Search lets it.
    void Begin_Search(const Virtual_Phone& device, int presses = 1)
    {
        m_calls.m_gated_path = device.Path();
        for (; presses > 0; --presses)
            Click("_Search_Btn");
        ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
    }
    void End_Search()
    {
        m_calls.m_gate.Open();
        ASSERT_TRUE(Serve_Until([] { return ph_find_thread == 0; }));
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_sheets += event->type() == QEvent::Show && watched->objectName() == "PleaseWait_Modeless" ? 1 : 0;
        return false;
    }

    Virtual_Phone m_phone;
    Given_Paths m_finder;
    Gated_Calls m_calls;
    User m_user;
    std::unique_ptr<Phone_List_Wnd> m_window;

private:
    int m_sheets = 0;
};
