#include "windows/main/Undo_Strip.h"

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Status_Label.h"

#include <QAction>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTableView>
#include <utility>

namespace {

constexpr double Offered_Seconds = 30;

} // namespace

Undo_Strip::Undo_Strip(QWidget* parent)
    : Quiet_Strip("Undo_Strip", parent), m_words(new Status_Label),
      m_button(Made_Button("Undo_Btn", tr("Undo"), tr("Brings back what was removed (Ctrl+Z)"))),
      m_keys(new QAction(tr("&Undo the removal"), this))
{
    setAccessibleName(tr("What was just removed"));
    m_words->setObjectName(QStringLiteral("_Undo_Words"));
    m_words->setTextFormat(Qt::PlainText);
    m_button->setFlat(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(14, 4, 4, 4);
    row->setSpacing(4);
    row->addWidget(m_words, 1);
    row->addWidget(m_button, 0, Qt::AlignVCenter);
    m_keys->setObjectName(QStringLiteral("Undo_Removal"));
    m_keys->setShortcuts(QKeySequence::Undo);
    m_keys->setAutoRepeat(false);
    m_keys->setEnabled(false);
    m_rest.setSingleShot(true);
    connect(&m_rest, &QTimer::timeout, this, &Undo_Strip::Forget);
    connect(m_button, &QPushButton::clicked, this, &Undo_Strip::Undo_Btn);
    connect(m_keys, &QAction::triggered, this, &Undo_Strip::Undo_Btn);
    hide();
}

void Undo_Strip::Serve(QTableView& table)
{
    // In the table's menu only while there is something to undo.
    connect(m_keys, &QAction::enabledChanged, &table, [&table, keys = m_keys](bool is_offered) {
        if (is_offered)
            table.addAction(keys);
        else
            table.removeAction(keys);
    });
    window()->addAction(m_keys);
    QWidget::setTabOrder(&table, m_button);
}

void Undo_Strip::Offer(const QString& words, std::function<void()> undo)
{
    Forget();
    m_undo = std::move(undo);
    m_keys->setEnabled(true);
    show();
    m_words->Say(words);
    m_rest.start(static_cast<int>(Paced(Offered_Seconds) * 1000));
}

std::function<void()> Undo_Strip::Taken_Offer()
{
    m_rest.stop();
    hide();
    m_keys->setEnabled(false);
    return std::exchange(m_undo, nullptr);
}

// Releasing a million recipients takes time.
void Undo_Strip::Forget()
{
    if (Has_Offer())
        Start_Worker("let go", [held = Taken_Offer()]() mutable { held = nullptr; });
}

void Undo_Strip::Undo_Btn()
{
    if (Has_Offer())
        Taken_Offer()();
}

void Undo_Strip::setVisible(bool visible)
{
    QWidget::setVisible(visible && Has_Offer());
}
