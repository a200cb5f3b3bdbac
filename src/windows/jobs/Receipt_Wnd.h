#pragma once

#include "records/Job_Record.h"

#include <QDialog>
#include <memory>

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

    /// Shows the window with a choice of the jobs whose journals are in a folder, the newest first, and returns. It
    /// follows the chosen journal while reports come.
    void Show_Kept(const QString& folder);

private:
    struct Private;
    const std::unique_ptr<Private> m_private;
};
