#pragma once

#include "toolkit/Form_Dialog.h"

namespace Ui {
class Load_Num_Info;
}

// Asks, before an import, whether to remove the numbers already in the list first. Runs modally over the main window,
// which makes one per import; interface thread.
class Load_Num_Info : public Form_Dialog<Load_Num_Info, Ui::Load_Num_Info>
{
    Q_OBJECT

public:
    enum Answer ///< the dialog's result
    {
        Keep_Numbers = 0,
        Remove_Numbers = 1,
        Import_Nothing = 2
    };

    explicit Load_Num_Info(QWidget* parent);
    ~Load_Num_Info() override;

    void YESPressed() { done(Remove_Numbers); }
    void NOPressed() { done(Keep_Numbers); }
    void CancelPressed() { done(Import_Nothing); }

private:
};
