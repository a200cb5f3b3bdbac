#include "tour/Story.h"
#include "tour/Visitor.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

// The sending itself: the question before it, the progress window in each of its states, the result.

using namespace Windows;

namespace {
const QString Current_Message = QStringLiteral("_curr_msg_cnt");
const QString Pause = QStringLiteral("_pause_timer");
} // namespace

void Walk::Send_The_List()
{
    Start_Sending();
    m_visitor.Take_Picture(Progress, QStringLiteral("preparing"));
    m_visitor.Await_Text(Progress, Current_Message, QStringLiteral("3 / 6"));
    m_visitor.Take_Picture(Progress, QStringLiteral("progress"));
    m_visitor.Await_Text(Progress, Pause, QStringLiteral("Pausing the process for "));
    m_visitor.Take_Picture(Progress, QStringLiteral("pausing"));
    m_visitor.Await_Text(Progress, Current_Message, QStringLiteral("4 / 6"));
    m_visitor.Take_Picture_With_What_Is_Over(Main, QStringLiteral("sending"));
    const QString result = m_visitor.Text_Of_Box();
    m_visitor.Take_Picture(Message_Box, QStringLiteral("completed"));
    printf("box      %s\n", qPrintable(result.trimmed()));
    m_visitor.Press_In_Box(QStringLiteral("OK"), QStringLiteral("Message Sending Process Completed."));
}

// What the composer holds is not in the list, so the program asks first; the list is to be sent as it stands.
void Walk::Start_Sending()
{
    m_visitor.Retype(Main, QStringLiteral("_messageEdit"), Story::Not_To_Be_Sent);
    m_visitor.Await_Text(Main, QStringLiteral("_messageEdit"), Story::Not_To_Be_Sent);
    m_day_before_sending = QDate::currentDate();
    m_visitor.Click(Main, QStringLiteral("_sent_btn"));
    m_visitor.Take_Picture(Before_Sending, QStringLiteral("before-sending"));
    m_visitor.Click(Before_Sending, QStringLiteral("ContinuePressed"));
}
