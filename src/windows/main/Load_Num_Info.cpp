#include "windows/main/Load_Num_Info.h"

#include "ui_Load_Num_Info.h"

Load_Num_Info::Load_Num_Info(QWidget* parent) : Form_Dialog(parent, Letters{.columns = 60})
{
    connect(m_ui->YESPressed, &QPushButton::clicked, this, &Load_Num_Info::YESPressed);
    connect(m_ui->NOPressed, &QPushButton::clicked, this, &Load_Num_Info::NOPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Load_Num_Info::CancelPressed);
}

Load_Num_Info::~Load_Num_Info() = default;
