#include "windows/main/Help_Wnd.h"

#include "toolkit/Window_Look.h"
#include "ui_Help_Wnd.h"

Help_Wnd::Help_Wnd(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::Help_Wnd>())
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this, Letters{.columns = 100, .lines = 42});
    m_ui->help_text->document()->setDocumentMargin(14);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &QDialog::accept);
}

Help_Wnd::~Help_Wnd() = default;
