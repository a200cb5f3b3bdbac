#pragma once

#include "device/Found_Port_List.h"
#include "device/MFCSMS.h"
#include "doctor/Phone_List.h"
#include "doctor/Phone_Probe.h"
#include "doctor/Port_Notes.h"
#include "toolkit/Window_Work.h"
#include "windows/phone/Wizard_Port_Slot.h"

#include <QDialog>
#include <memory>
#include <mutex>

class Empty_List_Hint;
class PleaseWait_Modeless;
class Row_Table_Model;

namespace Ui {
class Phone_List_Wnd;
}

// The connection wizard: lists the devices found, shows the details of the one clicked, and takes one to send through
// into sel_port_name_str, sel_port_bsd_str and Cus_SMS_Num_STR. The shared instance belongs to Shared_Instance and ends
// with End_Shared_Instances, before the application object; it then waits for its own workers. A window of the
// interface thread: searches and probes run on workers and come back through the hops marked here.
class Phone_List_Wnd : public QDialog, public Found_Port_List, public Probe_Display
{
    Q_OBJECT

public:
    explicit Phone_List_Wnd(QWidget* parent = nullptr, Port_Finder& finder = System_Port_Finder(),
                            Serial_Calls& calls = Real_Serial_Calls());
    ~Phone_List_Wnd() override;

    static Phone_List_Wnd* defaultInstance();

    /// Searches, waits one second and runs the window modally. Returns 1 if a device was taken and 0 if the user went
    /// on without one; by then no worker of the wizard is running, and its port is closed.
    int Open_Ph_List_Wnd();

    void Search_dev_Pressed();
    void Why_No_Phone(); ///< looks why no phone shows, in a window over this one
    void Custom_SMSC_Pressed();
    void Sel_Device_Pressed();
    void ContinueOfflinePressed();
    void tableViewSelectionDidChange();
    void controlTextDidChange();

    // The wizard's own port slot, beside the session's port.
    void initPort(const QString& path) { port.initPort(path); }
    void setPort(const std::shared_ptr<KVSerialPort>& new_port) { port.setPort(new_port); }
    std::shared_ptr<KVSerialPort> Own_Port() const { return port.port(); }

    // From any thread; each returns when it is done.
    void Insert_port_in_List(const QString& path) override;
    void Set_Phone_Value(Phone_Value value, const QString& text) override;
    void Show_Create_Modeless() override;
    void Hide_Destroy_Modeless() override;
    void Tell_About_Device(const QString& text) override;

    /// Escape and the close button: on without a device.
    void reject() override;

private:
    class Search_Run;

    void Set_Up_Table();
    void Connect_Controls();

    void Find_Ph_Thread();
    void Find_Ph_List();
    void Create_Port_List(const QString& name, const QString& Port_Det, const QString& Port_stat,
                          const QString& Port_IMEI);
    void Empty_For_Search();
    void End_Search();
    QString Cell(const QString& identifier, int row) const;
    void Find_Notes();
    int Ask_Why_No_Phone();
    void Pick(const QString& path);
    void Show_Searching(bool is_searching);

    void Find_Ph_Value_Thread();
    QString OnGetSelected();
    void Show_Picked_Row();
    void Empty_Details();

    void Phone_Selected_Func();
    bool May_Be_Selected();
    bool Check_Picked_Device(const QString& path);

    std::unique_lock<std::mutex> Device_Turn();
    void End_Run();

    const std::unique_ptr<Ui::Phone_List_Wnd> m_ui;
    MFCSMS mfc_sms_obj;
    Phone_List nsPortListData;
    QString m_to_be_picked;            // the path that the search under way is for
    QHash<QString, Port_Note> m_notes; // by the paths of the ports
    std::unique_ptr<Row_Table_Model> m_table_model;
    Empty_List_Hint* m_hint = nullptr; // the table's own
    unsigned Prev_Index = Phone_List::No_Row;
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    Wizard_Port_Slot port;

    Window_Work m_work; // takes no input from a click on a row until the sheet covers the window
    bool m_is_selecting = false;
    bool m_is_asking_why = false;
    bool m_is_searching_shown = false;
    std::mutex m_device_turn; // the session serves one search, probe or check at a time
};
