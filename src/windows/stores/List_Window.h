#pragma once

#include "records/Export_Writer.h"
#include "texts/Fixed_Text.h"
#include "toolkit/Window_Work.h"

#include <QDialog>
#include <functional>
#include <memory>
#include <vector>

class PleaseWait_Modeless;
class QLabel;
class QPlainTextEdit;
class QTableView;
class Row_Table_Model;

// What the windows of the two stores have in common: a list that a worker loads from its file when the window opens,
// that is changed in memory only, exported, and written back when the window closes. A window of the interface thread;
// whatever takes time is done on a worker, with the please-wait sheet over the window.
class List_Window : public QDialog
{
    Q_OBJECT

public:
    ~List_Window() override;

    void Load_Thread(); ///< a worker's entry: loads the list and lets the window take input
    bool Is_Loading() const { return m_is_loading; }
    void ListreloadData();

    void Clear_Sel_Btn();
    void Clear_All_Btn();
    void Export_Btn();
    void Cancel_Btn(); ///< writes the list back and closes the window

    void Show_Create_Modeless();
    void Hide_Destroy_Modeless();

    /// 0 for any other table.
    int numberOfRowsInTableView(const QTableView* table) const;

    void reject() override; ///< Escape and the close button: as Cancel_Btn, once the whole list is in

protected:
    static constexpr unsigned No_Index = 0x7fffffff;
    static constexpr int Early_Reload_Count = 10; ///< at which the count label reloads the table, once

    /// What the window says.
    struct Words
    {
        Fixed_Text empty_at_clear_selected;
        Fixed_Text empty_at_clear_all;
        Fixed_Text empty_at_export;
        Fixed_Text none_selected;
    };

    List_Window(QWidget* parent, const Words& words);

    /// Gives a view that shows a row in full the look that the window's background has.
    static void Set_Up_Detail(QPlainTextEdit& detail);
    /// Called by the window once its controls are made.
    void Set_Up_List(QTableView& table, std::unique_ptr<Row_Table_Model> rows, QLabel& count);

    /// Starts the load, waits 1.0 second and runs the window modally over the main window. Returns the code that it
    /// ended with; no worker of it runs then.
    int Open_Window();
    /// A window calls this when it goes, before anything of its own does.
    void Await_Load();

    QTableView& Table() const { return *m_table; }
    Row_Table_Model& Rows() const { return *m_rows; }
    const Words& Said() const { return m_words; }

    /// Shows how many rows the list has. At exactly ten it reloads the table as well.
    void Update_Count();
    /// Empties the list and what is shown of it, as before a load.
    void Begin_Anew();

    /// Tells the text and puts the focus back on the table.
    void Tell(const QString& text);
    /// The first selected row, or -1.
    int First_Selected_Row() const;

    /// Does blocking work on a worker, under the please-wait sheet. What the work throws is logged and goes no further.
    void Work_Under_Sheet(const std::function<void()>& work);
    /// Writes the list back; not when it was never loaded whole.
    void Write_List();

    // What each window does with a list of its own.
    virtual int Count() const = 0;
    virtual void LoadItems() = 0; ///< on a worker
    /// Takes rows, in ascending order, out of the list; it need not take them out of the table. Leaves the list as it
    /// is when it throws.
    virtual void Remove_Rows(const std::vector<int>& rows) = 0;
    virtual void Remove_All_Rows() = 0;
    virtual void List_Became_Empty() {}
    virtual std::function<bool()> Rewriting() = 0; ///< what a worker does to write the list back; whether that worked
    virtual void List_Will_Load() {}
    virtual void List_Was_Loaded() {} ///< the whole list is in, and not yet in the table
    virtual void List_Was_Written(bool /*is_written*/) {}
    virtual void Clear_File() = 0; ///< on a worker
    virtual void Forget_File() = 0;
    virtual Export_Content Content_To_Export(int mode) const = 0;

    unsigned Prev_Index = No_Index; ///< the row last shown in full, since the load

private:
    void Begin_Load();
    void End_Load();
    void Write_Export_To(const QString& path);

    const Words m_words;
    QTableView* m_table = nullptr;
    QLabel* m_count = nullptr;
    std::unique_ptr<Row_Table_Model> m_rows;
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    Window_Work m_work; // the load, until whose end the window takes no input
    bool m_is_open = false;
    bool m_is_loading = false;
    bool m_is_whole = false; // whether the whole list is in
    bool m_is_left = false;  // closed during the load, which closes the window after it
    bool m_is_closing = false;
};
