#pragma once

#include "engine/Job_Receipt.h"
#include "records/Job_Trouble.h"
#include "records/Job_Words.h"
#include "toolkit/Window_Work.h"

#include <QDialog>
#include <memory>
#include <optional>
#include <vector>

class PleaseWait_Modeless;
class Row_Table_Model;

namespace Ui {
class Unknown_Rows_Sheet;
}

// Lists the rows of a job that may have been sent, and asks what is to become of them: each is left alone unless the
// person says otherwise. OK brings the decisions into the job's journal, on a worker; it stays open, and says why, when
// that fails. Cancel writes nothing. Made for one question; interface thread.
class Unknown_Rows_Sheet : public QDialog
{
    Q_OBJECT

public:
    Unknown_Rows_Sheet(QString journal_path, std::shared_ptr<const Job_Receipt> receipt, QWidget* parent = nullptr);
    ~Unknown_Rows_Sheet() override;

    void OKPressed();
    void CancelPressed() { reject(); }

    void reject() override;

private:
    using Choice = std::optional<Job_Decision>; ///< none leaves the row as it is

    void Set_Up_Table();
    void Connect_Buttons();
    QString Cell(const QString& identifier, int index) const;
    void Choose(const std::vector<int>& indexes, Choice choice);
    void Choose_Selected(Choice choice);
    void Choose_For_All(Choice choice);
    void Say_Choices();
    Job_Trouble Write_Decisions() const;

    const QString m_journal_path;
    const std::shared_ptr<const Job_Receipt> m_receipt;
    const std::vector<int> m_rows; // of the receipt
    std::vector<Choice> m_choices; // one for each of these
    const std::unique_ptr<Ui::Unknown_Rows_Sheet> m_ui;
    std::unique_ptr<Row_Table_Model> m_table_model;
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    Window_Work m_work;
};
