#include "windows/main/Help_Wnd.h"

#include "ui_Help_Wnd.h"

Help_Wnd::Help_Wnd(QWidget* parent) : Form_Dialog(parent, Letters{.columns = 100, .lines = 42})
{
    m_ui->help_text->document()->setDocumentMargin(14);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->Why_No_Phone, &QPushButton::clicked, this, &Help_Wnd::Doctor_Wanted);
}

Help_Wnd::~Help_Wnd() = default;
