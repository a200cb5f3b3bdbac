#pragma once

#include "records/Export_Writer.h"
#include "texts/Fixed_Text.h"
#include "toolkit/Window_Work.h"

#include <QDialog>
#include <functional>
#include <memory>
#include <vector>

class Empty_List_Hint;
class PleaseWait_Modeless;
class QLabel;
class QPlainTextEdit;
class QTableView;
class Row_Table_Model;

// What the windows of the two stores have in common: a list that a worker loads from its file when the window opens,
// that is changed in memory only, exported, and written back when the window closes. A window of the interface thread;
// whatever takes time runs on a worker, with the please-wait sheet over the window.
class List_Window : public QDialog
{
    Q_OBJECT

public:
    ~List_Window() override;

    void Load_Thread(); ///< a worker's entry point: loads the list and lets the window take input
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

    void reject() override; ///< Escape and the close button: as Cancel_Btn, once the whole list is loaded

protected:
    static constexpr unsigned No_Index = 0x7fffffff;
    static constexpr int Early_Reload_Count = 10; ///< at this count the label reloads the table, once

    // The window's texts.
    struct Words
    {
        Fixed_Text empty_at_clear_selected;
        Fixed_Text empty_at_clear_all;
        Fixed_Text empty_at_export;
        Fixed_Text none_selected;
    };

    List_Window(QWidget* parent, const Words& words);

    /// Gives the view that shows a row in full the look of the window's background.
    static void Set_Up_Detail(QPlainTextEdit& detail);
    /// Called by the window once its controls exist.
    void Set_Up_List(QTableView& table, std::unique_ptr<Row_Table_Model> rows, QLabel& count);
    /// What the table says once the list is loaded and as long as it has no rows; for the window to give words to.
    Empty_List_Hint& Hint() const { return *m_hint; }

    /// Starts the load, waits 1.0 second and runs the window modally over the main window. Returns the code it ended
    /// with; none of its workers is running then.
    int Open_Window();
    /// A window calls this on its way out, before destroying anything of its own.
    void Await_Load();

    QTableView& Table() const { return *m_table; }
    Row_Table_Model& Rows() const { return *m_rows; }
    const Words& Said() const { return m_words; }

    /// Shows how many rows the list has. At exactly ten it also reloads the table.
    void Update_Count();
    /// Clears the list and what is shown of it, as before a load.
    void Begin_Anew();

    /// Shows the text and puts the focus back on the table.
    void Tell(const QString& text);
    /// The row of the list that the first selected row of the table shows, or -1.
    int First_Selected_Row() const;

    /// Does blocking work on a worker, under the please-wait sheet. An exception from the work is logged and goes no
    /// further.
    void Work_Under_Sheet(const std::function<void()>& work);
    /// Writes the list back, but not if it was never completely loaded.
    void Write_List();

    // What each window does with a list of its own.
    virtual int Count() const = 0;
    virtual void LoadItems() = 0; ///< on a worker
    /// Removes rows, in ascending order, from the list, but need not remove them from the table. Leaves the list
    /// unchanged when it throws.
    virtual void Remove_Rows(const std::vector<int>& rows) = 0;
    virtual void Remove_All_Rows() = 0;
    virtual void List_Became_Empty() {}
    virtual std::function<bool()> Rewriting() = 0; ///< for a worker: writes the list back; returns whether that worked
    virtual void List_Will_Load() {}
    virtual void List_Was_Loaded() {} ///< the whole list is loaded, but not yet in the table
    virtual void List_Was_Written(bool /*is_written*/) {}
    virtual void Clear_File() = 0; ///< on a worker
    virtual void Forget_File() = 0;
    virtual Export_Content Content_To_Export(int mode) const = 0;

    unsigned Prev_Index = No_Index; ///< the row last shown in full since the load

private:
    void Begin_Load();
    void End_Load();
    void Write_Export_To(const QString& path);

    const Words m_words;
    QTableView* m_table = nullptr;
    QLabel* m_count = nullptr;
    Empty_List_Hint* m_hint = nullptr;
    std::unique_ptr<Row_Table_Model> m_rows;
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    Window_Work m_work; // the load; the window takes no input until it has ended
    bool m_is_open = false;
    bool m_is_loading = false;
    bool m_is_whole = false; // whether the whole list is loaded
    bool m_is_left = false;  // closed during the load, which closes the window afterwards
    bool m_is_closing = false;
};
