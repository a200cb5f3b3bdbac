#pragma once

#include "doctor/Connection_Advice.h"
#include "toolkit/Form_Dialog.h"

#include <functional>

namespace Ui {
class Connection_Info;
}

// The screen before the connection wizard: how to switch a phone to modem mode, and what obstacles there are on this
// computer, if any. The shared instance belongs to Shared_Instance and ends with End_Shared_Instances, before the
// application object. Interface thread.
class Connection_Info : public Form_Dialog<Connection_Info, Ui::Connection_Info>
{
    Q_OBJECT

public:
    using Fact_Finder = std::function<Connection_Facts()>;

    explicit Connection_Info(QWidget* parent = nullptr);
    Connection_Info(QWidget* parent, Fact_Finder find_facts);
    ~Connection_Info() override;

    /// Finds out what applies now, shows it and runs modally. Always ends with 1.
    int exec() override;

    /// Shows these pieces instead of those shown before.
    void Show_Advice(const QList<Advice>& advice);

    void Continue_Btn();

    /// Escape and the close button: as Continue.
    void reject() override { Continue_Btn(); }

private:
    QWidget* Made_Advice_Row(const Advice& advice);

    const Fact_Finder m_find_facts;
};
