#pragma once

#include "toolkit/Form_Dialog.h"

class Edited_Numbers;

namespace Ui {
class Update_Ex_Num;
}

// The dialog in which one number of an exclusion list is edited. Owned by the exclusion wizard, whose numbers it
// changes; interface thread. Ends with 1 when OK was good, with 0 when it was cancelled.
class Update_Ex_Num : public Form_Dialog<Update_Ex_Num, Ui::Update_Ex_Num>
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

private:
    void Clear_Fields();

    Edited_Numbers& m_numbers;
};
