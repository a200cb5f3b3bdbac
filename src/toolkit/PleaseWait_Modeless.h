#pragma once

#include "toolkit/Modal_Sheet.h"

#include <memory>

namespace Ui {
class PleaseWait_Modeless;
}

// The please-wait sheet that covers a window during a long operation. Each window owns its own; interface thread.
class PleaseWait_Modeless : public Modal_Sheet
{
    Q_OBJECT

public:
    explicit PleaseWait_Modeless(QWidget* parent = nullptr);
    ~PleaseWait_Modeless() override;

    /// How much of the work is done, from 0 to 100; without a call, and below 0, the bar only shows that work is going
    /// on.
    void Show_Progress(int percent);

private:
    std::unique_ptr<Ui::PleaseWait_Modeless> m_ui;
};
