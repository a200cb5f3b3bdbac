#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class Help_Wnd;
}

// The help window: how to get from a list of numbers to sent messages, in a few sentences. Made on request and run
// modally over the main window; interface thread.
class Help_Wnd : public QDialog
{
    Q_OBJECT

public:
    explicit Help_Wnd(QWidget* parent);
    ~Help_Wnd() override;

private:
    std::unique_ptr<Ui::Help_Wnd> m_ui;
};
