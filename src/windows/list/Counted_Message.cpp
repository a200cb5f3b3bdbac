#include "windows/list/Counted_Message.h"

#include "texts/Texts.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Plain_Text_Edit.h"

#include <QLabel>
#include <QScopedValueRollback>

namespace {

QString Characters_Text(int length)
{
    return QString(Texts::Long_Message::Characters).arg(length);
}

} // namespace

Counted_Message::Counted_Message(QPlainTextEdit& message, QLabel& counter) : m_message(message), m_counter(counter)
{
    Clear();
}

void Counted_Message::Show(const QString& message, Main_Window& window)
{
    Put_Text(message);
    m_counter.setText(window.Long_SMS_Calculation(static_cast<int>(message.size()), m_counter.text(), false));
}

void Counted_Message::Clear()
{
    Put_Text(QString());
    m_counter.setText(Characters_Text(0));
}

QString Counted_Message::Text() const
{
    return Exact_Text(m_message).left(Longest_Message);
}

void Counted_Message::textDidChange(Main_Window& window)
{
    if (m_is_changing_text)
        return;
    {
        const QScopedValueRollback is_changing(m_is_changing_text, true);
        Cut_Text(m_message, Longest_Message);
    }
    const QString counter_until_now = m_counter.text();
    const int length = Text_Length(m_message);
    m_counter.setText(Characters_Text(length));
    const QString counter = window.Long_SMS_Calculation(length, counter_until_now, true);
    // The field may have been cleared while the long-message dialog was open: then this count no longer applies.
    if (Text_Length(m_message) == length)
        m_counter.setText(counter);
}

void Counted_Message::Put_Text(const QString& text)
{
    const QScopedValueRollback is_changing(m_is_changing_text, true);
    m_message.setPlainText(text);
}
