#include "windows/main/Help_Wnd.h"

#include "toolkit/Message_Boxes.h"
#include "ui_Help_Wnd.h"

#include <QDesktopServices>
#include <QUrl>

Help_Wnd::Help_Wnd(QWidget* parent, const QString& guide) : Form_Dialog(parent, Letters{.columns = 100, .lines = 42})
{
    m_ui->Open_Guide->setVisible(!guide.isEmpty());
    connect(m_ui->Open_Guide, &QPushButton::clicked, this, [guide] {
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(guide)))
            Show_MessageBox(tr("No program was found that shows the guide. It is in %1.").arg(guide));
    });
    m_ui->help_text->document()->setDocumentMargin(14);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->Why_No_Phone, &QPushButton::clicked, this, &Help_Wnd::Doctor_Wanted);
}

Help_Wnd::~Help_Wnd() = default;
