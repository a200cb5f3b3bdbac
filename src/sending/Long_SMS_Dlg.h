#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class Long_SMS_Dlg;
}

// Tells that a message has grown past one SMS and will go out in parts. A notice: whichever way it is closed, it ends
// with 1. One shared instance, put over the window that asks; interface thread.
class Long_SMS_Dlg : public QDialog
{
    Q_OBJECT

public:
    explicit Long_SMS_Dlg(QWidget* parent = nullptr);
    ~Long_SMS_Dlg() override;

    static Long_SMS_Dlg* defaultInstance();

    /// Waits a second, during which input is held back, and runs the dialog over a window until it is closed. Asked for
    /// again meanwhile, or while the program exits, it does nothing.
    void Open_Dialog(QWidget* over, bool unicode);
    void OKPressed();

    void reject() override; ///< Escape and the close button: as OK

private:
    std::unique_ptr<Ui::Long_SMS_Dlg> m_ui;
    bool m_is_open = false;
};
