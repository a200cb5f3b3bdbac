#include "windows/stores/Open_Export_Log.h"

#include "toolkit/Dialog_Over.h"
#include "ui_Open_Export_Log.h"
#include "windows/stores/Store_Globals.h"

#include <QDesktopServices>
#include <QUrl>

Open_Export_Log::Open_Export_Log(QWidget* parent) : Form_Dialog(parent)
{
    m_ui->_notice->hide();
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Open_Export_Log::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Open_Export_Log::CancelPressed);
}

Open_Export_Log::~Open_Export_Log() = default;

int Open_Export_Log::Open_Dialog(QWidget* over)
{
    m_ui->OKPressed->setFocus();
    return Run_Dialog_Over(*this, over);
}

void Open_Export_Log::OKPressed()
{
    if (m_ui->Open_File_Chk->isChecked() && !QDesktopServices::openUrl(QUrl::fromLocalFile(Export_File_Path)))
        Tell_It_Stays_Closed();
    else
        End(1);
}

// Nothing else would explain why no file opens. The next OK closes the dialog, unless the box is ticked again.
void Open_Export_Log::Tell_It_Stays_Closed()
{
    m_ui->Open_File_Chk->setChecked(false);
    m_ui->_notice->show();
    m_ui->OKPressed->setFocus();
}

void Open_Export_Log::CancelPressed()
{
    End(0);
}

void Open_Export_Log::End(int code)
{
    m_ui->Open_File_Chk->setChecked(true);
    m_ui->_notice->hide();
    done(code);
}
