#pragma once

#include "toolkit/Form_Dialog.h"

namespace Ui {
class Help_Wnd;
}

// The help window: how to get from a list of numbers to sent messages, in a few sentences. Made on request and run
// modally over the main window; interface thread.
class Help_Wnd : public Form_Dialog<Help_Wnd, Ui::Help_Wnd>
{
    Q_OBJECT

public:
    explicit Help_Wnd(QWidget* parent);
    ~Help_Wnd() override;

Q_SIGNALS:
    void Doctor_Wanted(); ///< why does my phone not show?
};
