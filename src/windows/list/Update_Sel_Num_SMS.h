#pragma once

#include "toolkit/Form_Dialog.h"
#include "windows/list/Counted_Message.h"

#include <deque>
#include <memory>
#include <vector>

class Main_Window;
class Row_Table_Model;

namespace Ui {
class Update_Sel_Num_SMS;
}

// Gives the recipients selected in the main table one new message, after showing their numbers. The shared instance
// belongs to Shared_Instance, or to the main window once it has been put over it. A window of the interface thread: a
// worker loads the numbers in batches, and Open_Dialog returns only after that load has ended.
class Update_Sel_Num_SMS : public Working_Dialog<Update_Sel_Num_SMS, Ui::Update_Sel_Num_SMS>
{
    Q_OBJECT

public:
    explicit Update_Sel_Num_SMS(QWidget* parent = nullptr);
    ~Update_Sel_Num_SMS() override;

    static Update_Sel_Num_SMS* defaultInstance();

    /// Starts loading the selected numbers, waits one second and runs the dialog over the main window until it ends.
    /// Takes no input until the whole list is loaded. Returns 1 if the message was copied, 0 if the dialog was
    /// cancelled.
    int Open_Dialog(Main_Window& window);

    void OKPressed();
    void CancelPressed() { End_With(0); }
    void textDidChange() { m_message->textDidChange(*m_window); }
    void Update_num_Count();

    int numberOfRowsInTableView() const { return static_cast<int>(List_data_Object.size()); }
    /// The value of a row for a column's identifier; an empty text if there is none.
    QString tableView(const QString& objectValueForTableColumn, int row) const;

    void reject() override; ///< Escape and the close button: as Cancel, once the whole list is loaded

private:
    // On the worker.
    void Load_Thread();
    void LoadItems();
    void Create_Number_List(const QString& number);
    void Publish_Loaded();

    void End_Load();
    void End_With(int code);

    std::unique_ptr<Counted_Message> m_message;
    std::deque<QString> List_data_Object; // the rows, each its value for "Number"
    std::unique_ptr<Row_Table_Model> m_rows;

    int m_first_row = 0; // of the selected ones
    bool m_is_loading = false;
    bool m_is_left = false;        // closed during the load, which ends the dialog afterwards
    std::vector<QString> m_loaded; // what the worker has found but not yet published
    std::size_t m_loaded_in_all = 0;
};

/// The shared instance; null while there is none.
extern Update_Sel_Num_SMS* Up_Sel_Num_SMS;
