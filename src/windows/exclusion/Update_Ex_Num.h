#pragma once

#include <QDialog>
#include <memory>

class Edited_Numbers;

namespace Ui {
class Update_Ex_Num;
}

// The dialog in which one number of an exclusion list is edited. Owned by the exclusion wizard, whose numbers it
// changes; interface thread. Ends with 1 when OK was good, with 0 when it was cancelled.
class Update_Ex_Num : public QDialog
{
    Q_OBJECT

public:
    Update_Ex_Num(Edited_Numbers& numbers, QWidget* parent);
    ~Update_Ex_Num() override;

    /// Shows the number at a row of the numbers and runs until the dialog is closed. Returns how it ended.
    int Edit(const QString& number, int row);

    void OKPressed();
    void CancelPressed();
    void controlTextDidChange();

    void reject() override; ///< Escape and the close button: as Cancel

private:
    void Clear_Fields();

    const std::unique_ptr<Ui::Update_Ex_Num> m_ui;
    Edited_Numbers& m_numbers;
};
