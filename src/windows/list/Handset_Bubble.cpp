#include "windows/list/Handset_Bubble.h"

#include "list/Message_Filling.h"
#include "plan/Chosen_Manner.h"
#include "toolkit/Flow_Layout.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Plain_Text_Edit.h"
#include "ui_Handset_Bubble.h"
#include "windows/list/Bubble_Words.h"
#include "windows/list/Text_Marks.h"

#include <QResizeEvent>
#include <algorithm>

namespace {

const QString Usual_Number = QStringLiteral("00447700900100");

QString Without_Mnemonics(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

Filled_Message Filled(const QString& text, const Handset_Bubble::Terms& terms)
{
    if (!terms.has_fields)
        return {text};
    const Contact_Table no_values;
    const Contact_Table& table = terms.table ? *terms.table : no_values;
    return Message_Filling(text, table).For_Row(table, terms.table ? terms.table_row : -1);
}

bool Loses_Characters(const Plan_Manner& manner)
{
    return manner.fixed_waits && manner.alphabet != Job_Alphabet_Choice::Unicode;
}

void Say(QLabel& label, const QString& text)
{
    if (label.text() != text)
        label.setText(text);
    label.setVisible(!text.isEmpty());
}

} // namespace

Handset_Bubble::Terms Handset_Bubble::Terms_For(const Main_Window& window, int row)
{
    Terms terms;
    terms.manner = Manner_Of(window.Read_Send_Choices());
    const Recipient_List& recipients = window.Recipients();
    terms.has_fields = recipients.Has_Fields();
    if (row < 0 || row >= recipients.Count())
        return terms;
    terms.number = recipients.Numbers().At(row);
    terms.table = recipients.Table_At(row);
    terms.table_row = recipients.Table_Row_At(row);
    return terms;
}

Handset_Bubble::Handset_Bubble(QWidget* parent) : QFrame(parent), m_ui(std::make_unique<Ui::Handset_Bubble>())
{
    m_ui->setupUi(this);
    auto* buttons = new Flow_Layout(m_ui->bubble_help);
    for (auto* button : {m_ui->Send_As_Unicode, m_ui->Replace_One, m_ui->Replace_All, m_ui->Replace_Script})
        buttons->addWidget(button);
    connect(m_ui->Send_As_Unicode, &QPushButton::clicked, this, &Handset_Bubble::Unicode_Wanted);
    connect(m_ui->Replace_One, &QPushButton::clicked, this, [this] { Replace(Replaced::One); });
    connect(m_ui->Replace_All, &QPushButton::clicked, this, [this] { Replace(Replaced::Common); });
    connect(m_ui->Replace_Script, &QPushButton::clicked, this, [this] { Replace(Replaced::Script); });
    hide();
}

Handset_Bubble::~Handset_Bubble() = default;

void Handset_Bubble::Follow(Plain_Text_Edit& editor, QLabel& parts, std::function<Terms()> terms)
{
    m_editor = &editor;
    m_parts = &parts;
    m_terms = std::move(terms);
    m_parts->hide();
    QWidget* before = m_editor;
    for (QWidget* next : std::initializer_list<QWidget*>{m_ui->_Shown_Text, m_ui->Send_As_Unicode, m_ui->Replace_One,
                                                         m_ui->Replace_All, m_ui->Replace_Script})
        setTabOrder(std::exchange(before, next), next);
    connect(m_editor, &QPlainTextEdit::textChanged, this, &Handset_Bubble::Look_Again);
}

void Handset_Bubble::Show_Message(const QString& message, const Terms& terms)
{
    if (message.isEmpty())
        Show_Nothing();
    else
        Show_Preview(message, 0, terms);
}

void Handset_Bubble::Look_Again()
{
    if (!m_editor)
        return;
    if (Text_Length(*m_editor) == 0) { // at once: a window that closes leaves nothing behind
        Show_Nothing();
        return;
    }
    if (std::exchange(m_is_due, true))
        return;
    QMetaObject::invokeMethod(this, &Handset_Bubble::Look, Qt::QueuedConnection);
}

void Handset_Bubble::Look()
{
    m_is_due = false;
    ++m_looks;
    const QString text = Exact_Text(*m_editor).left(Longest_Message);
    if (text.isEmpty()) // and nobody may be left to ask for terms
        Show_Nothing();
    else
        Show_Preview(text, m_editor->textCursor().position(), m_terms());
    Mark_Places(*m_editor, m_preview.places);
}

void Handset_Bubble::Show_Nothing()
{
    m_preview = {};
    m_ui->_Shown_Text->Show_Text({}, 0);
    m_ui->_Bubble_Words->clear();
    hide();
    if (m_parts)
        Say(*m_parts, {});
}

void Handset_Bubble::Show_Preview(const QString& text, int place, const Terms& terms)
{
    const QString number = terms.number.isEmpty() ? Usual_Number : terms.number;
    const Filled_Message filled = Filled(text, terms);
    m_preview = Preview_Of_Message(text, number, terms.manner);
    const Message_Preview sent =
        filled.text == text ? m_preview : Preview_Of_Message(filled.text, number, terms.manner);
    const bool is_sent = filled.fault.isEmpty() && filled.text.size() <= Longest_Message;
    const QString handset = terms.table ? tr("On the handset of %1").arg(number) : tr("On the handset");
    m_ui->_Bubble_Caption->setText((terms.manner.is_flash ? tr("%1, at once and not kept:") : tr("%1:")).arg(handset));
    m_ui->_Shown_Text->Show_Text(is_sent ? sent.row.shown : QString(), place);
    if (!filled.fault.isEmpty())
        Say(*m_ui->_Bubble_Words, tr("%1 gets nothing: %2.").arg(number, Words_For_Fault(filled)));
    else if (!is_sent)
        Say(*m_ui->_Bubble_Words, tr("%1 gets nothing: the message is too long.").arg(number));
    else
        Say(*m_ui->_Bubble_Words, Losses_Of(sent, terms.manner));
    if (m_parts)
        Say(*m_parts, is_sent ? Bubble_Words::Parts(sent) : QString());
    Show_Help(text, terms.manner);
    Fit_Height();
    show();
}

// Dialogs have no box to tick, but the message goes as the main window's says.
QString Handset_Bubble::Losses_Of(const Message_Preview& sent, const Plan_Manner& manner) const
{
    const QString losses = Bubble_Words::Losses(sent);
    return losses.isEmpty() || m_offers_unicode || !Loses_Characters(manner)
               ? losses
               : tr("%1 \"Send as Unicode\" in the main window keeps them.").arg(losses);
}

// Layouts around it work out a height that depends on the width for widths that it does not get, and cut something.
void Handset_Bubble::Fit_Height()
{
    // Until it is shown it has a width that it will not keep, and for which it may be far too high.
    const int room = isVisible() ? width() : std::max(width(), layout()->totalSizeHint().width());
    setFixedHeight(layout()->totalHeightForWidth(room));
}

bool Handset_Bubble::event(QEvent* event)
{
    const bool is_taken = QFrame::event(event);
    if (event->type() == QEvent::LayoutRequest) // what is shown has found its height
        Fit_Height();
    return is_taken;
}

void Handset_Bubble::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    if (event->oldSize().width() != event->size().width()) // not within the event, which is another's layout at work
        QMetaObject::invokeMethod(this, &Handset_Bubble::Fit_Height, Qt::QueuedConnection);
}

int Handset_Bubble::First_Replaceable() const
{
    const auto first =
        std::find_if(m_preview.characters.begin(), m_preview.characters.end(), [](const Named_Character& named) {
            return named.replacement && !named.replacement->is_of_script;
        });
    return first == m_preview.characters.end() ? -1 : static_cast<int>(first - m_preview.characters.begin());
}

void Handset_Bubble::Show_Help(const QString& text, const Plan_Manner& manner)
{
    const int first = m_editor ? First_Replaceable() : -1;
    const auto offer = [&](QPushButton& button, bool is_offered, Replaced what) {
        button.setVisible(is_offered);
        if (is_offered)
            button.setEnabled(Length_With_Replacements(text, m_preview, what, first) <= Longest_Message);
    };
    const auto replaceable = [&](bool is_of_script) {
        return std::count_if(m_preview.characters.begin(), m_preview.characters.end(),
                             [&](const Named_Character& named) {
                                 return named.replacement && named.replacement->is_of_script == is_of_script;
                             });
    };
    if (first >= 0) {
        const Named_Character& named = m_preview.characters[static_cast<std::size_t>(first)];
        const QString name = Without_Mnemonics(Bubble_Words::Name_Of(named.character));
        const QString text_in_its_place = Without_Mnemonics(named.replacement->text);
        m_ui->Replace_One->setText(text_in_its_place.trimmed().isEmpty()
                                       ? (named.replacement->text.isEmpty() ? tr("Remove %1").arg(name)
                                                                            : tr("Replace %1 by a blank").arg(name))
                                       : tr("Replace %1 by %2").arg(name, text_in_its_place));
    }
    offer(*m_ui->Replace_One, first >= 0, Replaced::One);
    offer(*m_ui->Replace_All, first >= 0 && replaceable(false) > 1, Replaced::Common);
    offer(*m_ui->Replace_Script, m_editor && replaceable(true) > 0, Replaced::Script);
    m_ui->Send_As_Unicode->setVisible(m_offers_unicode && Loses_Characters(manner) && !m_preview.characters.empty());
    const auto buttons = m_ui->bubble_help->findChildren<QPushButton*>();
    m_ui->bubble_help->setVisible(
        std::any_of(buttons.begin(), buttons.end(), [](const QPushButton* button) { return !button->isHidden(); }));
}

// Of the text as it is by now.
void Handset_Bubble::Replace(Replaced what)
{
    if (!m_editor)
        return;
    Look();
    const QString text = Exact_Text(*m_editor);
    const auto changes = Replacements_In(text, m_preview, what, First_Replaceable());
    m_editor->setFocus();
    if (!changes.empty() && With_Changes(text, changes).size() <= Longest_Message)
        Change_Text(*m_editor, changes);
}
