#include "windows/main/Confirm_Boxes.h"

#include "platform/Log_Line.h"

#include <QCheckBox>
#include <QSignalBlocker>

Confirm_Boxes::Confirm_Boxes(const Boxes& boxes, const Program_Settings& settings)
    : m_boxes(boxes), m_settings(settings)
{
    for (QCheckBox* box : {boxes.confirm, boxes.reports, boxes.keep})
        connect(box, &QCheckBox::toggled, this, [this] { Choice_Changed(); });
    connect(boxes.remember, &QCheckBox::toggled, this, [this] { Remember_Changed(); });
    Put_Back();
}

Confirm_Choices Confirm_Boxes::Choices() const
{
    return {m_boxes.confirm->isChecked(), m_boxes.reports->isChecked(), m_boxes.keep->isChecked()};
}

void Confirm_Boxes::Put_Back()
{
    const auto remembered = m_settings.Remembered();
    Show(remembered.value_or(Confirm_Choices{}), remembered.has_value());
}

void Confirm_Boxes::Take_On(const Confirm_Choices& choices)
{
    if (!m_boxes.remember->isChecked())
        Show(choices, false);
}

void Confirm_Boxes::Show(const Confirm_Choices& choices, bool are_remembered)
{
    for (const auto& [box, is_on] :
         {std::pair(m_boxes.confirm, choices.confirms), std::pair(m_boxes.reports, choices.asks_for_reports),
          std::pair(m_boxes.keep, choices.keeps_receipt), std::pair(m_boxes.remember, are_remembered)}) {
        const QSignalBlocker nothing_is_chosen(box);
        box->setChecked(is_on);
    }
    Enable();
}

void Confirm_Boxes::Choice_Changed()
{
    Enable();
    if (m_boxes.remember->isChecked())
        Remember_Changed();
}

// A box says what is so: it goes back where that cannot be brought about.
void Confirm_Boxes::Remember_Changed()
{
    const bool is_wanted = m_boxes.remember->isChecked();
    if (is_wanted ? m_settings.Remember(Choices()) : m_settings.Forget())
        return;
    Show_NSLog_Message(QStringLiteral("What is to be remembered cannot be written."));
    const QSignalBlocker nothing_is_chosen(m_boxes.remember);
    m_boxes.remember->setChecked(!is_wanted);
}

void Confirm_Boxes::Enable()
{
    for (QCheckBox* box : {m_boxes.reports, m_boxes.keep, m_boxes.remember})
        box->setEnabled(m_boxes.confirm->isChecked());
    m_boxes.more->setVisible(m_boxes.confirm->isChecked());
}
