#include "windows/stores/Export_Option.h"

#include "records/Export_Format.h"
#include "toolkit/Dialog_Over.h"
#include "ui_Export_Option.h"
#include "windows/stores/Store_Globals.h"

#include <QSignalBlocker>

Export_Option::Export_Option(QWidget* parent) : Form_Dialog(parent)
{
    // Not clicked: the arrow keys move the choice without a click.
    connect(m_ui->Export_In_Text_RD, &QRadioButton::toggled, this, [this](bool is_on) {
        if (is_on)
            Export_In_Text_RD();
    });
    connect(m_ui->Export_In_Html_RD, &QRadioButton::toggled, this, [this](bool is_on) {
        if (is_on)
            Export_In_Html_RD();
    });
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Export_Option::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Export_Option::CancelPressed);
}

Export_Option::~Export_Option() = default;

int Export_Option::Open_Dialog(QWidget* over)
{
    m_ui->Export_In_Text_RD->setFocus();
    return Run_Dialog_Over(*this, over);
}

void Export_Option::Export_In_Text_RD()
{
    SENT_EXPORT_MODE = Export_Format::Text_Mode;
    Show_Choice(false);
}

void Export_Option::Export_In_Html_RD()
{
    SENT_EXPORT_MODE = Export_Format::Html_Mode;
    Show_Choice(true);
}

void Export_Option::OKPressed()
{
    Show_Choice(false);
    done(1);
}

void Export_Option::CancelPressed()
{
    Export_In_Text_RD();
    done(0);
}

void Export_Option::Show_Choice(bool is_html)
{
    const QSignalBlocker text_muted(m_ui->Export_In_Text_RD);
    const QSignalBlocker html_muted(m_ui->Export_In_Html_RD);
    (is_html ? m_ui->Export_In_Html_RD : m_ui->Export_In_Text_RD)->setChecked(true);
}
