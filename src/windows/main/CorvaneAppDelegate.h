#pragma once

#include "device/MFCSMS.h"
#include "engine/Outcome_Codes.h"
#include "toolkit/Main_Window.h"

#include <QMainWindow>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class Appearance_Menu;
class Awaited_Reports;
class Column_Widths;
class Composer;
class Confirm_Boxes;
class Contact_Desk;
class Job_Follow_Up;
class List_Arrivals;
class Number_Import;
struct Number_Terms;
class PleaseWait_Modeless;
class QTableView;
class Recipient_Rows;
class Row_Finder;
class Row_Table_Model;
class Send_Modeless;
class Send_Promise;
class Send_Runner;
class Window_Work;

namespace Ui {
class CorvaneAppDelegate;
}

// The main window's controller: it owns the recipient list, the exclusion set and the modem session, and carries every
// operation of the main window by its own name, each passing on to the class that does the work. One instance, owned by
// the program's start; everything here belongs to the interface thread.
class CorvaneAppDelegate : public QMainWindow, public Main_Window
{
    Q_OBJECT

public:
    CorvaneAppDelegate();
    ~CorvaneAppDelegate() override;

    /// The one instance; null before it is made and after it is gone.
    static CorvaneAppDelegate* defaultInstance();

    // Start and end
    /// Builds the start state. Returns false, after telling the user, when the resource folder is not available.
    bool awakeFromNib();
    void applicationDidFinishLaunching();
    void windowWillClose() { Exit_App(); }
    void Exit_App();
    void Check_Path_And_Create_Files();

    // The recipient list and the number rules
    void Create_Num_Msg_List(const QString& number, const QString& message_val);
    /// Answers yes for an INVALID number; see Number_Rules.
    bool Check_Ph_Number(const QString& number, bool test_flag) const override;
    /// The normalised number, or an empty text if it may not be inserted.
    QString Num_Able_To_insert(const QString& number) const;
    bool Check_Duplicate_Number(const QString& number) const override;
    bool Check_Exclusion_Number(const QString& number) const override;
    void Fill_Exclusion_Num_List() override;
    void Take_Exclusions(const Exclusion_Files::Applied_Numbers& applied) override;
    Number_List Read_Applied_Exclusions() override;
    void Create_Exclusion_List(const QString& number);
    void Update_List_Count();
    void OnGetSelected();

    // Import
    /// Starts the import of a file. The main window takes no input until it has ended.
    void Load_NUM_Thread(const QString& path);

    // The stores
    /// Whether the template file holds a template with exactly this text.
    bool Check_Duplicate_Template(const QString& text) const;

    bool Blank_Msg_Chk() const override;
    int numberOfRowsInTableView(const QTableView* table) const;
    /// The value of a row for a column's identifier; an empty text for a row outside the list.
    QString tableView(const QTableView* table, const QString& objectValueForTableColumn, int row) const;

    // The composer
    QString Long_SMS_Calculation(int length, const QString& msg_char_value, bool open_dlg) override;
    int Composer_Length() const override;
    int Composer_Selection_Length() const override;
    void Use_In_Composer(const QString& text) override;
    void Set_Composer_Text(const QString& text) override;

    // The device and its ticker
    void Search_All_Modem();
    void Show_Create_Modeless();
    void Hide_Destroy_Modeless();

    // Main_Window
    QWidget* Window() override { return this; }
    void Focus(Field field) override;
    const Recipient_List& Recipients() const override { return nsListDataObject; }
    const Number_List& Exclusions() const override { return nsExclusionListDataObject; }
    void Replace_Recipients(Recipient_List recipients) override;
    void Replace_Recipient(int row, const QString& number, const QString& message) override;
    void Redisplay_Recipients() override;
    std::vector<int> Selected_Recipient_Rows() const override;
    Send_Choices Read_Send_Choices() const override;
    QString Previous_Composer_Message() const override { return prev_composer_msg; }
    void Set_Previous_Composer_Message(const QString& message) override { prev_composer_msg = message; }
    void Hold_Input() override;
    void Release_Input() override;
    void Begin_Outcomes() override;
    void Take_Outcomes(int first_row, const QByteArray& marks, const Outcome_Codes& codes) override;
    void End_Outcomes() override;
    void Confirmed_Job_Ended(const Confirmed_End& end) override;

    MFCSMS& Session() { return *mfc_sms_obj; }

public Q_SLOTS:
    void Add_Number();
    void Clear_Sel_Btn();
    void Clear_All_Btn();
    /// Selects the recipients whose message was certainly not taken, and no others.
    void Select_Not_Taken();
    /// Removes all others.
    void Keep_Not_Taken();
    /// After a job whose kind of message the network refused: chooses the normal one, and selects those not taken.
    void Choose_Plain_Kind();
    void Show_Receipt();
    void View_Receipts_Btn();
    void Reset_Btn();
    void doubleClickInTable();
    void Load_Number();
    void Import_Contacts();
    void Check_List();
    /// Adds the numbers in the clipboard's lines, with the composer's text as their message.
    void Paste_Numbers();
    /// A file was dropped on the recipient list.
    void Dropped_File(const QString& path);
    void Export_Btn();
    void Fill_Msg_Btn();
    void Update_Sel_Msgs_Btn();
    void Exclusion_Chk();
    void controlTextDidChange();
    void textDidChange();
    void Unicode_Chk();
    void Send_SMS_Btn();
    void No_Device_Ticker_Click();
    void Delayed_Delivery_Chk();
    void Sent_Item_Btn();
    void View_Templates_Btn();
    void View_ExclusionWizrd_Btn();
    void Help_Btn();
    void Exit_Btn() { Exit_App(); }

Q_SIGNALS:
    /// The user wants to leave, and has confirmed it.
    void Exit_Wanted();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Connect_Controls();
    void Show_What_Handsets_Show();
    void Make_Promise();
    void Make_Menu();
    void Make_Finder();
    void List_Will_Change();
    void Give_Tables_Their_Models();
    bool Is_Device_Taken() const;
    void Show_Device_In_Ticker();
    void Remember_Composer_Text();
    Number_Terms Terms_For_New_Numbers() const;
    Recipient_List Exchange_List(Recipient_List list = {});
    void Recipient_Changed(int row);
    void Remove_Recipients(const std::function<void(Recipient_List&)>& remove);
    Recipient_List Remove_All_Recipients();
    void Offer_Undo(Recipient_List former, const QString& words, std::function<void()> more);
    void Offer_Undo(Recipient_List former);
    void Bring_Back(Recipient_List former);
    std::function<void()> Way_Back_Of_The_Fields();
    std::optional<Row_Outcome> Outcome_Of(int row) const;
    void Forget_Outcomes_Of_Job();
    void Look_For_Not_Taken();
    void Show_Outcomes();
    void Show_Outcome_Column(bool shown);
    bool Offer_Plain_Kind(const Device_Cause& cause);
    void Show_Exclusion_Trouble(const QString& text);
    void Show_List_Count(int count);
    bool May_Import_File();
    void Start_Import(const QString& path, const std::optional<QString>& pasted);
    void Show_Import_Progress(int count, int percent);
    void Take_Over_Imported(Recipient_List& recipients);
    void Leave_Import_Unread();
    void Finish_Import();
    void End_Import();

    void Make_Contact_Desk();

    std::unique_ptr<Ui::CorvaneAppDelegate> m_ui;
    std::unique_ptr<MFCSMS> mfc_sms_obj;
    Recipient_List nsListDataObject;
    Number_List nsExclusionListDataObject;
    QString prev_composer_msg;
    int prev_list_item = 0;             // recipients before the import
    bool m_is_pasting = false;          // rather than importing a file
    Outcome_Codes m_outcome_codes;      // what the marks of the recipients mean
    bool m_takes_outcomes = false;      // a job runs, and the list is still the one that it took
    bool m_is_alphabet_refused = false; // rather than that a message shows at once
    bool m_has_not_taken = false;       // whether there is a recipient with marks whose message was not taken
    Recipient_Rows* m_recipient_rows = nullptr;
    Column_Widths* m_recipient_widths = nullptr; // the table's own
    Row_Table_Model* m_exclusion_rows = nullptr;
    std::unique_ptr<Row_Finder> m_finder;
    std::unique_ptr<Composer> m_composer;
    std::unique_ptr<Confirm_Boxes> m_confirm_boxes;
    std::unique_ptr<Appearance_Menu> m_appearance;
    std::unique_ptr<Awaited_Reports> m_awaited_reports;
    std::unique_ptr<Send_Runner> m_send_runner;
    std::unique_ptr<Job_Follow_Up> m_follow_up;
    std::unique_ptr<Number_Import> m_import;
    std::unique_ptr<Contact_Desk> m_contacts;
    std::unique_ptr<List_Arrivals> m_arrivals;
    PleaseWait_Modeless* m_please_wait = nullptr;
    std::unique_ptr<Window_Work> m_work;
    std::unique_ptr<Send_Promise> m_promise; // none before the start state is built
};
