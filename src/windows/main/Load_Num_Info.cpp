#include "windows/main/Load_Num_Info.h"

#include "toolkit/Window_Look.h"
#include "ui_Load_Num_Info.h"

Load_Num_Info::Load_Num_Info(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::Load_Num_Info>())
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this, Letters{.columns = 60});
    connect(m_ui->YESPressed, &QPushButton::clicked, this, &Load_Num_Info::YESPressed);
    connect(m_ui->NOPressed, &QPushButton::clicked, this, &Load_Num_Info::NOPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Load_Num_Info::CancelPressed);
}

Load_Num_Info::~Load_Num_Info() = default;

void Load_Num_Info::YESPressed()
{
    done(Remove_Numbers);
}

void Load_Num_Info::NOPressed()
{
    done(Keep_Numbers);
}

void Load_Num_Info::CancelPressed()
{
    done(Import_Nothing);
}

void Load_Num_Info::reject()
{
    CancelPressed();
}
