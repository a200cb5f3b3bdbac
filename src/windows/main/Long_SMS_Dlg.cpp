#include "windows/main/Long_SMS_Dlg.h"

#include "engine/Composer_Rules.h"
#include "platform/Waiting.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Input_Hold.h"
#include "ui_Long_SMS_Dlg.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <cmath>
#include <functional>

namespace {

constexpr double Seconds_Before_Dialog = 1;
constexpr double Seconds_Between_Keys = 0.25; // of a user in the middle of typing
constexpr double First_Moment_Seconds = 0.8;  // long enough to look up from the keys

// A key in transit while the desktop moves the keyboard from one window to the other is lost. So if the user is typing,
// the notice appears right after a key, when the next one is furthest away.
void Wait_For_The_Next_Key(const Input_Hold& hold, const std::function<bool()>& is_left)
{
    const double last = hold.Last_Typed();
    if (last > 0 && Now_Seconds() - last < Paced(Seconds_Between_Keys))
        Wait_Seconds_Serving_Input(Seconds_Between_Keys, [&] { return is_left() || hold.Last_Typed() > last; });
}

// Returns whether the window is still there.
bool Wait_While_Text_Is_Typed(QWidget& over)
{
    const Input_Hold hold(&over, Typing::Served);
    const bool was_visible = over.isVisible();
    const auto is_left = [&] { return over.isVisible() != was_visible; };
    Wait_Seconds_Serving_Input(Seconds_Before_Dialog, is_left);
    Wait_For_The_Next_Key(hold, is_left);
    return !is_left();
}

} // namespace

Long_SMS_Dlg::Long_SMS_Dlg(QWidget* parent) : Form_Dialog(parent, Letters{.columns = 68})
{
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Long_SMS_Dlg::OKPressed);
    m_first_moment.setSingleShot(true);
    connect(&m_first_moment, &QTimer::timeout, this, &Long_SMS_Dlg::End_First_Moment);
}

Long_SMS_Dlg::~Long_SMS_Dlg() = default;

void Long_SMS_Dlg::Open_Dialog(QWidget* over, bool unicode)
{
    if (m_is_open)
        return;
    const QScopedValueRollback is_open(m_is_open, true);
    if (!Wait_While_Text_Is_Typed(*over) || Program_Is_Exiting())
        return;
    Put_Over(*this, over);
    m_ui->_Unicode_SMS_Chk->setChecked(unicode);
    m_ui->_Msg_Val->setText(Composer_Rules::Long_SMS_Text(unicode));
    Begin_First_Moment(*over);
    exec();
    End_First_Moment();
}

// The dialog itself then has the keyboard, and passes on what is typed, including from input methods.
void Long_SMS_Dlg::Begin_First_Moment(const QWidget& over)
{
    m_field = Takes_Text(over.focusWidget()) ? over.focusWidget() : nullptr;
    m_ui->OKPressed->setAutoDefault(false);
    m_ui->OKPressed->setDefault(false);
    setAttribute(Qt::WA_InputMethodEnabled, !m_field.isNull());
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
    m_first_moment.start(static_cast<int>(std::ceil(Paced(First_Moment_Seconds) * 1000)));
}

void Long_SMS_Dlg::End_First_Moment()
{
    m_first_moment.stop();
    m_field = nullptr;
    setAttribute(Qt::WA_InputMethodEnabled, false);
    m_ui->OKPressed->setAutoDefault(true);
    m_ui->OKPressed->setDefault(true);
    m_ui->OKPressed->setFocus();
    setFocusPolicy(Qt::NoFocus);
}

void Long_SMS_Dlg::Hand_On_To_Field(QEvent& event)
{
    m_first_moment.start();
    if (m_field)
        QCoreApplication::sendEvent(m_field, &event);
    event.accept();
}

void Long_SMS_Dlg::keyPressEvent(QKeyEvent* event)
{
    const bool is_typed = m_first_moment.isActive() && event->key() != Qt::Key_Escape;
    if (!is_typed)
        QDialog::keyPressEvent(event);
    else if (event->key() != Qt::Key_Tab && event->key() != Qt::Key_Backtab)
        Hand_On_To_Field(*event);
}

void Long_SMS_Dlg::inputMethodEvent(QInputMethodEvent* event)
{
    if (m_first_moment.isActive())
        Hand_On_To_Field(*event);
}

QVariant Long_SMS_Dlg::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return m_field ? m_field->inputMethodQuery(query) : QDialog::inputMethodQuery(query);
}

bool Long_SMS_Dlg::focusNextPrevChild(bool next)
{
    return !m_first_moment.isActive() && QDialog::focusNextPrevChild(next);
}

// Nothing can be typed into it before it has the keyboard: its first moment begins there.
bool Long_SMS_Dlg::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_first_moment.isActive())
        m_first_moment.start();
    return QDialog::event(event);
}
