#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class Load_Num_Info;
}

// Asks, before an import, whether to remove the numbers already in the list first. Runs modally over the main window,
// which makes one per import; interface thread.
class Load_Num_Info : public QDialog
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

    void YESPressed();
    void NOPressed();
    void CancelPressed();

    void reject() override; ///< Escape and the close button: as Cancel

private:
    std::unique_ptr<Ui::Load_Num_Info> m_ui;
};
