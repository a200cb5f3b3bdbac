#pragma once

#include "toolkit/Form_Dialog.h"

namespace Ui {
class Help_Wnd;
}

// The help window: how to get from a list of numbers to sent messages, in a few sentences, and the way to the guide,
// which says more. Made on request and run modally over the main window; interface thread.
class Help_Wnd : public Form_Dialog<Help_Wnd, Ui::Help_Wnd>
{
    Q_OBJECT

public:
    /// guide is the path of the page to offer; none is offered where it is empty.
    Help_Wnd(QWidget* parent, const QString& guide);
    ~Help_Wnd() override;

Q_SIGNALS:
    void Doctor_Wanted(); ///< why does my phone not show?
};
