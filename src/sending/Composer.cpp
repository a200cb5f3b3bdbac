#include "sending/Composer.h"

#include "app/shared/Globals.h"
#include "sending/Composer_Rules.h"
#include "sending/Long_SMS_Dlg.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>

Composer::Composer(QPlainTextEdit* message_edit, QLabel* character_count, QCheckBox* unicode_check, QObject* parent)
    : QObject(parent), _messageEdit(message_edit), _Msg_char_count(character_count), _Unicode_SMS_Chk(unicode_check)
{
}

QString Composer::Text() const
{
    // Not toPlainText, which would turn no-break spaces into blanks.
    QString text = _messageEdit->document()->toRawText();
    text.replace(QChar(QChar::ParagraphSeparator), QChar(u'\n'));
    text.replace(QChar(QChar::LineSeparator), QChar(u'\n'));
    return text;
}

int Composer::Length() const
{
    return _messageEdit->document()->characterCount() - 1; // the document counts the end of its last paragraph, too
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

void Composer::Unicode_Chk()
{
    Refresh_Counter(true);
}

void Composer::Refresh_Counter(bool open_dlg)
{
    const QString counter_until_now = _Msg_char_count->text();
    const int length = Length();
    _Msg_char_count->setText(Composer_Rules::Characters_Text(length));
    const QString counter = Long_SMS_Calculation(length, counter_until_now, open_dlg);
    // While the dialog was up, the text may have been set anew: what is counted is what stands there now.
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
        Long_SMS_Dlg::defaultInstance()->Open_Dialog(_messageEdit->window(), Is_Unicode());
    }
    return counter.text;
}

void Composer::Cut_To_Limit()
{
    if (Length() <= Composer_Rules::Most_Characters)
        return;
    const QScopedValueRollback is_changing(m_is_changing_text, true);
    // The cut belongs to the change that made it necessary: undoing that one brings back what stood there before.
    QTextCursor beyond(_messageEdit->document());
    beyond.joinPreviousEditBlock();
    beyond.setPosition(Composer_Rules::Most_Characters);
    beyond.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    beyond.removeSelectedText();
    beyond.endEditBlock();
    Message_IS = Text();
}
