#include "windows/main/Composer.h"

#include "engine/Composer_Rules.h"
#include "engine/Job_State.h"
#include "toolkit/Plain_Text_Edit.h"
#include "windows/main/Long_SMS_Dlg.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextCursor>

Composer::Composer(QPlainTextEdit* message_edit, QLabel* character_count, QCheckBox* unicode_check, QObject* parent)
    : QObject(parent), _messageEdit(message_edit), _Msg_char_count(character_count), _Unicode_SMS_Chk(unicode_check)
{
}

QString Composer::Text() const
{
    return Exact_Text(*_messageEdit);
}

int Composer::Length() const
{
    return Text_Length(*_messageEdit);
}

bool Composer::Is_Unicode() const
{
    return _Unicode_SMS_Chk->checkState() == Qt::Checked;
}

void Composer::Set_Text(const QString& text)
{
    const QScopedValueRollback is_changing(m_is_changing_text, true);
    _messageEdit->setPlainText(Composer_Rules::Cut_To_Limit(text));
}

int Composer::Selection_Length() const
{
    const QTextCursor cursor = _messageEdit->textCursor();
    return cursor.selectionEnd() - cursor.selectionStart();
}

void Composer::Use_Text(const QString& text)
{
    {
        const QScopedValueRollback is_changing(m_is_changing_text, true);
        _messageEdit->insertPlainText(text);
        Cut_To_Limit();
    }
    Refresh_Counter(true);
}

void Composer::Clear()
{
    Set_Text(QString());
    _Msg_char_count->setText(Composer_Rules::Characters_Text(0));
}

void Composer::textDidChange()
{
    if (m_is_changing_text)
        return;
    Cut_To_Limit();
    Refresh_Counter(true);
}

void Composer::Refresh_Counter(bool open_dlg)
{
    const QString counter_until_now = _Msg_char_count->text();
    const int length = Length();
    _Msg_char_count->setText(Composer_Rules::Characters_Text(length));
    const QString counter = Long_SMS_Calculation(length, counter_until_now, open_dlg);
    // The text may have been replaced while the dialog was open: the present one is counted.
    if (Length() == length)
        _Msg_char_count->setText(counter);
    else
        _Msg_char_count->setText(Long_SMS_Calculation(Length(), counter, false));
}

QString Composer::Long_SMS_Calculation(int length, const QString& msg_char_value, bool open_dlg)
{
    const bool may_open = open_dlg && !m_is_showing_dialog;
    const auto counter = Composer_Rules::Long_SMS_Calculation(length, msg_char_value, Is_Unicode(), may_open);
    if (counter.open_dialog_first) {
        const QScopedValueRollback is_showing(m_is_showing_dialog, true);
        // A dialog that edits messages asks, too: the notice belongs over whatever window the user is working in.
        QWidget* on_top = QApplication::activeModalWidget();
        Long_SMS_Dlg::defaultInstance()->Open_Dialog(on_top ? on_top : _messageEdit->window(), Is_Unicode());
    }
    return counter.text;
}

void Composer::Cut_To_Limit()
{
    if (Length() <= Composer_Rules::Most_Characters)
        return;
    const QScopedValueRollback is_changing(m_is_changing_text, true);
    Cut_Text(*_messageEdit, Composer_Rules::Most_Characters);
    Message_IS = Text();
}
