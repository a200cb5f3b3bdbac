#pragma once

#include "engine/Job_Receipt.h"
#include "records/Export_Writer.h"
#include "records/Job_Trouble.h"
#include "toolkit/Window_Work.h"
#include "windows/jobs/Receipt_Rows.h"

#include <QDialog>
#include <functional>
#include <memory>

class Column_Widths;
class Kept_Receipts;
class PleaseWait_Modeless;

namespace Ui {
class Receipt_Wnd;
}

// The window of receipts: what became of each message of a job, with sums on top, and its exports. Made by whoever
// shows it; interface thread, with workers of its own that its end waits for.
class Receipt_Wnd : public QDialog
{
    Q_OBJECT

public:
    explicit Receipt_Wnd(QWidget* parent = nullptr);
    ~Receipt_Wnd() override;

    /// Shows the window with this receipt, and returns. Called again with a later record of the same job, it keeps what
    /// is selected and filtered.
    void Show_Record(const Job_Record& record);

    /// A later record of a job: what is shown of that job follows it, quietly.
    void Take_Later(const Job_Record& record);

    /// Shows the window with a choice of the jobs whose journals are in a folder, the newest first unless another one
    /// is named, and returns. It follows the chosen journal while reports come.
    void Show_Kept(const QString& folder, const QString& chosen_path = {});

    void reject() override; ///< Escape and the close button, but not while a file is being written

private:
    using Made_Receipt = std::shared_ptr<const Job_Receipt>;
    using Make_Export = Export_Content (*)(Made_Receipt receipt);
    struct Reading
    {
        Made_Receipt receipt;
        Job_Trouble trouble = Job_Trouble::None;
    };

    void Set_Up_Table();
    void Set_Up_Exports();
    void Bring_Up();
    void Read_Record(const Job_Record& record);
    void Read(std::function<Reading()> read);
    void Read_Journal(const QString& path);
    void Load_Kept(const QString& chosen_path);
    void Remove(const QString& path);

    void Take(const Reading& reading);
    void Show_Empty(const QString& notice);
    void Let_Use(bool is_there);
    void Show_Filter();
    void Show_Rows();
    Receipt_Kind Chosen_Kind() const;
    void Say(const QString& notice);
    void Export_As(const QString& extension, Make_Export make, const QString& remark);

    const std::unique_ptr<Ui::Receipt_Wnd> m_ui;
    Kept_Receipts* m_kept;
    QString m_folder;
    Made_Receipt m_receipt;
    Receipt_Rows m_rows;
    Column_Widths* m_widths = nullptr; // the table's own
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    int m_turn = 0;      // what an earlier reading brings is too late
    int m_list_turn = 0; // and so is an earlier list of jobs
    Window_Work m_work;
};
