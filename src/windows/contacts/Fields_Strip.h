#pragma once

#include "toolkit/Quiet_Strip.h"

#include <QStringList>

// A quiet strip under a list that names the fields of its recipients, and offers to save the list with them. Hidden,
// whoever shows what it lies in, while there are none; part of its window; interface thread.
class Fields_Strip : public Quiet_Strip
{
    Q_OBJECT

public:
    explicit Fields_Strip(QWidget* parent = nullptr);

    void Show_Fields(const QStringList& names);

    void setVisible(bool visible) override;

Q_SIGNALS:
    void Save_Wanted();

private:
    QLabel* m_fields;
    QPushButton* m_save;
};
