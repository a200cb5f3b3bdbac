#pragma once

#include "doctor/Connection_Advice.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace Ui {
class Connection_Info;
}

// The screen before the connection wizard: how a phone is switched to modem mode, and what stands in the way on this
// computer, if anything does. The shared instance belongs to Shared_Instance and ends with End_Shared_Instances, before
// the application object. Interface thread.
class Connection_Info : public QDialog
{
    Q_OBJECT

public:
    using Fact_Finder = std::function<Connection_Facts()>;

    explicit Connection_Info(QWidget* parent = nullptr);
    Connection_Info(QWidget* parent, Fact_Finder find_facts);
    ~Connection_Info() override;

    static Connection_Info* defaultInstance();

    /// Finds out what applies now, shows it and runs modally. The only end is 1.
    int exec() override;

    /// Shows these in place of the pieces shown before.
    void Show_Advice(const QList<Advice>& advice);

    void Continue_Btn();

    /// Escape and the close button: the same end.
    void reject() override;

private:
    QWidget* Made_Advice_Row(const Advice& advice);

    const std::unique_ptr<Ui::Connection_Info> m_ui;
    const Fact_Finder m_find_facts;
};
