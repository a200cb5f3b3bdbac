#include "toolkit/PleaseWait_Modeless.h"

#include "toolkit/Window_Look.h"
#include "ui_PleaseWait_Modeless.h"

PleaseWait_Modeless::PleaseWait_Modeless(QWidget* parent)
    : Modal_Sheet(parent), m_ui(std::make_unique<Ui::PleaseWait_Modeless>())
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this);
}

PleaseWait_Modeless::~PleaseWait_Modeless() = default;

void PleaseWait_Modeless::Show_Progress(int percent)
{
    m_ui->activity->setRange(0, percent < 0 ? 0 : 100);
    m_ui->activity->setValue(percent);
}
