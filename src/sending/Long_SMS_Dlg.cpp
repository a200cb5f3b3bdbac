#include "sending/Long_SMS_Dlg.h"

#include "app/shared/Shared_Instance.h"
#include "app/shared/Window_Look.h"
#include "platform/Waiting.h"
#include "sending/Composer_Rules.h"
#include "ui_Long_SMS_Dlg.h"

#include <QScopedValueRollback>

namespace {
constexpr double Seconds_Before_Dialog = 1;
}

Long_SMS_Dlg::Long_SMS_Dlg(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::Long_SMS_Dlg>())
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Long_SMS_Dlg::OKPressed);
}

Long_SMS_Dlg::~Long_SMS_Dlg() = default;

Long_SMS_Dlg* Long_SMS_Dlg::defaultInstance()
{
    return Shared_Instance<Long_SMS_Dlg>::Get();
}

void Long_SMS_Dlg::Open_Dialog(QWidget* over, bool unicode)
{
    if (m_is_open)
        return;
    const QScopedValueRollback is_open(m_is_open, true);
    if (parentWidget() != over)
        setParent(over, windowFlags());
    m_ui->_Unicode_SMS_Chk->setChecked(unicode);
    m_ui->_Msg_Val->setText(Composer_Rules::Long_SMS_Text(unicode));
    adjustSize();
    Wait_Seconds(Seconds_Before_Dialog);
    if (!Program_Is_Exiting())
        exec();
}

void Long_SMS_Dlg::OKPressed()
{
    done(1);
}

void Long_SMS_Dlg::reject()
{
    OKPressed();
}
