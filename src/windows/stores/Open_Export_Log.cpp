#include "windows/stores/Open_Export_Log.h"

#include "toolkit/Dialog_Over.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"
#include "ui_Open_Export_Log.h"
#include "windows/stores/Store_Globals.h"

#include <QDesktopServices>
#include <QUrl>

Open_Export_Log::Open_Export_Log(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::Open_Export_Log>())
{
    m_ui->setupUi(this);
    m_ui->_notice->hide();
    Apply_Window_Look(*this);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Open_Export_Log::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Open_Export_Log::CancelPressed);
}

Open_Export_Log::~Open_Export_Log() = default;

Open_Export_Log* Open_Export_Log::defaultInstance()
{
    return Shared_Instance<Open_Export_Log>::Get();
}

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

void Open_Export_Log::reject()
{
    CancelPressed();
}

void Open_Export_Log::End(int code)
{
    m_ui->Open_File_Chk->setChecked(true);
    m_ui->_notice->hide();
    done(code);
}
