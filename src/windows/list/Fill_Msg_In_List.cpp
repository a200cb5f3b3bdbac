#include "windows/list/Fill_Msg_In_List.h"

#include "engine/Job_State.h"
#include "platform/Interface_Thread.h"
#include "texts/Texts.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "ui_Fill_Msg_In_List.h"
#include "windows/list/Handset_Bubble.h"
#include "windows/list/List_Change.h"

using Fill_Rules::Choice;

namespace {

bool Has_Blank_Message(const Main_Window& window)
{
    bool has_blank = false;
    Run_On_Worker([&, recipients = window.Recipients()] { has_blank = Fill_Rules::Has_Blank_Message(recipients); });
    return has_blank;
}

} // namespace

Fill_Msg_In_List::Fill_Msg_In_List(QWidget* parent) : Working_Dialog(parent, Letters{.columns = 60})
{
    setTabOrder(m_ui->_fill_msg_blank, m_ui->_Bubble->findChild<QWidget*>(QStringLiteral("_Shown_Text")));
    connect(m_ui->_fill_msg_all, &QRadioButton::clicked, this, &Fill_Msg_In_List::Fill_To_ALL_Pressed);
    connect(m_ui->_fill_msg_selected, &QRadioButton::clicked, this, &Fill_Msg_In_List::Fill_To_Selected_Pressed);
    connect(m_ui->_fill_msg_blank, &QRadioButton::clicked, this, &Fill_Msg_In_List::Fill_To_Blank_Pressed);
    for (auto* choice : {m_ui->_fill_msg_all, m_ui->_fill_msg_selected, m_ui->_fill_msg_blank})
        connect(choice, &QRadioButton::clicked, this, &Fill_Msg_In_List::Show_Message_Of_First);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Fill_Msg_In_List::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Fill_Msg_In_List::CancelPressed);
}

Fill_Msg_In_List::~Fill_Msg_In_List() = default;

int Fill_Msg_In_List::Open_Dialog(Main_Window& window)
{
    m_window = &window;
    Fill_To_ALL_Pressed();
    Show_Message_Of_First();
    m_ui->_fill_msg_all->setFocus();
    return Run_Dialog_Over(*this, window.Window());
}

// The radio buttons exclude each other: switching one on switches the others off.

void Fill_Msg_In_List::Fill_To_ALL_Pressed()
{
    m_ui->_fill_msg_all->setChecked(true);
}

void Fill_Msg_In_List::Fill_To_Selected_Pressed()
{
    m_ui->_fill_msg_selected->setChecked(true);
}

void Fill_Msg_In_List::Fill_To_Blank_Pressed()
{
    m_ui->_fill_msg_blank->setChecked(true);
}

// As the first of those gets it that would be filled; where nobody would be, as the first of the list.
void Fill_Msg_In_List::Show_Message_Of_First()
{
    const auto selected = m_window->Selected_Recipient_Rows();
    const Recipient_List& recipients = m_window->Recipients();
    int row = 0;
    if (Choice() == Choice::Selected && !selected.empty())
        row = selected.front();
    while (Choice() == Choice::Blank && row < recipients.Count() && !recipients.Message_At(row).isEmpty())
        ++row;
    m_ui->_Bubble->Show_Message(Message_IS, Handset_Bubble::Terms_For(*m_window, row < recipients.Count() ? row : 0));
}

void Fill_Msg_In_List::OKPressed()
{
    const Fill_Rules::Choice choice = Choice();
    if (!Is_Meant(choice))
        return;
    auto sheet = m_work.Sheet();
    const QString message = Message_IS;
    const auto selected_rows = choice == Choice::Selected ? m_window->Selected_Recipient_Rows() : std::vector<int>();
    Change_Recipients(*m_window, [&](Recipient_List& recipients) {
        recipients.Set_Messages(Fill_Rules::Rows_To_Fill(recipients, choice, selected_rows), message);
    });
    sheet.reset();
    End_With(1);
}

Fill_Rules::Choice Fill_Msg_In_List::Choice() const
{
    if (m_ui->_fill_msg_selected->isChecked())
        return Choice::Selected;
    return m_ui->_fill_msg_blank->isChecked() ? Choice::Blank : Choice::All;
}

// Tells the user if there is nothing to fill, and asks otherwise.
bool Fill_Msg_In_List::Is_Meant(Fill_Rules::Choice choice) const
{
    switch (choice) {
    case Choice::Selected:
        if (m_window->Selected_Recipient_Rows().empty()) {
            Show_MessageBox(Texts::Main::None_Selected);
            return false;
        }
        return Show_YES_NO_MessageBox(Texts::Fill::Selected);
    case Choice::Blank:
        if (!Has_Blank_Message(*m_window)) {
            Show_MessageBox(Texts::Fill::None_Blank);
            return false;
        }
        return Show_YES_NO_MessageBox(Texts::Fill::Blank);
    case Choice::All:
        break;
    }
    return Show_YES_NO_MessageBox(Texts::Fill::All);
}

void Fill_Msg_In_List::End_With(int code)
{
    Fill_To_ALL_Pressed();
    m_ui->_Bubble->Show_Message({}, {});
    done(code);
}
