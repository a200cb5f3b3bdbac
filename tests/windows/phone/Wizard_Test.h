#pragma once

#include "device/Device_Paths.h"
#include "device/Port_Finder.h"
#include "phone/Named_Moods.h"
#include "phone/Virtual_Phone.h"
#include "support/Heartbeat.h"
#include "support/Patient_Calls.h"
#include "support/Serve_Until.h"
#include "support/User.h"
#include "windows/phone/Phone_List_Wnd.h"

#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QWindow>
#include <atomic>
#include <gtest/gtest.h>

// A gate that a worker waits at until the test opens it.
class Gate
{
public:
    void Open()
    {
        m_is_open = true;
        m_is_open.notify_all();
    }
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
    int Find_Ports(Modem_Iterator& iterator) const override;

    mutable std::atomic<int> m_searches{0};
};

// The system's calls, but a chosen path is opened only once the gate is open.
class Gated_Calls : public Patient_Calls
{
public:
    int Open(const char* path, int flags) override;

    std::string m_gated_path;
    Gate m_gate;
};

// A wizard on the offscreen screen, a person who clicks in it, and the phones that a test plugs in: one, unless it says
// otherwise. The waits of the line run at pace 20: each read lasts 50 ms.
class Wizard_Test : public testing::Test, public QObject
{
protected:
    Wizard_Test();
    ~Wizard_Test() override;

    /// Offers the phones in the wizard, in this order.
    template <typename... Phones>
    void Plug_In(const Phones&... phones)
    {
        Set_Extra_Device_Paths({QString::fromStdString(phones.Path())...});
    }

    /// Opens the wizard, does the steps once it is shown, and leaves it without a device when it is still open then.
    /// No worker of it is left afterwards.
    int Run(const std::function<void()>& steps);

    template <typename Type = QWidget>
    Type& Control(const char* name) const
    {
        auto* control = m_window->findChild<Type*>(name);
        if (!control)
            throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }
    QString Text(const char* name) const { return Control<QLineEdit>(name).text(); }
    QTableView& Table() const { return Control<QTableView>("idPortList"); }
    int Rows() const { return Table().model()->rowCount(); }
    int Selected_Row() const; ///< -1 when none is
    bool Sheet_Is_Shown() const;
    int Sheets_So_Far() const { return m_sheets; }
    int Phones_Descriptors() const; ///< how many of this process stand for the phone

    /// The boxes so far said exactly this.
    void Expect_Told(const QStringList& texts) const;

    // What the person does, as events of the window system, which modal windows hold back.
    void Click(const char* name);
    void Click_Row(int row, Qt::KeyboardModifiers keys = {});
    void Click_Empty_Space(Qt::KeyboardModifiers keys = {});
    void Press(Qt::Key key) { QTest::keyClick(m_window->windowHandle(), key); }
    void Type_Custom_Smsc(const QString& number);

    /// Clicks a row and waits until its probe has come to its end.
    void Probe_Row(int row);
    bool Wait_For_Sheets_End(int sheets_before);
    void Search();
    /// Begins a search that waits for a device to open until End_Search lets it.
    void Begin_Search(const Virtual_Phone& device);
    void End_Search();

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

/// The interface thread was not away from its events for long.
void Expect_Lively(Heartbeat& heartbeat);
