#pragma once

#include "toolkit/Window_Work.h"
#include "windows/contacts/Contact_Reading.h"

#include <QDialog>
#include <memory>

class Job_Plan;
class Main_Window;
class Plan_Pace;
class Plan_Page;
class Recipient_List;
class PleaseWait_Modeless;
class Table_Page;
struct Plan_Terms;
struct Plan_View;

namespace Ui {
class Contacts_Wnd;
}

// A sheet over the main window: on its first page contacts as they were read, on its second what would be sent to each
// of them, and from there they join the list. The second page alone shows the list that there is. One for the program's
// life, so that the country stays chosen; interface thread, with workers of its own that its end waits for.
class Contacts_Wnd : public QDialog
{
    Q_OBJECT

public:
    /// The main window outlives it, and so does what the device has needed so far, where that is known.
    explicit Contacts_Wnd(Main_Window& window, const Plan_Pace* pace = nullptr);
    ~Contacts_Wnd() override;

    /// Shows the sheet with contacts that are read now, and returns.
    void Import(const Contact_Source& source);
    /// Shows what would be sent to the list as it is, or what would not, and returns.
    void Check_List(bool left_out_alone = false);
    /// Shows the rows of the last import that did not join the list, and returns.
    void Show_Not_Used();

    void reject() override; ///< Escape and the close button, but not while rows join the list

public Q_SLOTS:
    void Other_File_Btn();
    void Back_Btn();
    void Continue_Btn();
    void Add_To_List();

Q_SIGNALS:
    void Added(int rows, int not_used);

private:
    void Read(const Table_Choices& choices, bool is_new);
    void Put_Right(const std::vector<int>& rows);
    void Show_Page(QWidget& page);
    void Show_Buttons();
    Plan_Terms Terms() const;
    void Plan_Table();
    void Plan_Saved_List();

    Main_Window& m_window;
    const std::unique_ptr<Ui::Contacts_Wnd> m_ui;
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    Window_Work m_work;
    Table_Page* m_table_page;
    Plan_Page* m_plan_page;
    Contact_Source m_source;
    QString m_message;                       // that the rows of the plan get
    std::shared_ptr<Recipient_List> m_saved; // with messages of their own; null for contacts
    bool m_is_import = false;                // rather than a look at the list
    bool m_is_added = false;                 // and its rows are in the list
    std::shared_ptr<const Plan_View> m_last_added;
    int m_turn = 0; // what an earlier reading brings is too late
};
