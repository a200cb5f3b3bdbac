// What the dialogs over the list have in common.
#include "support/Refused_Threads.h"
#include "windows/list/Dialogs_Test.h"
#include "windows/list/Fill_Msg_In_List.h"
#include "windows/list/Send_Msg_Info.h"
#include "windows/list/Update_Num_SMS.h"
#include "windows/list/Update_Sel_Num_SMS.h"

#include <QBasicTimer>
#include <numeric>
#include <optional>

namespace {

template <typename Dialog>
QDialog* Instance()
{
    return Dialog::defaultInstance();
}

struct Kind
{
    const char* name;
    void (*open)(Main_Window&);
    QDialog* (*instance)();
    QStringList tab_order; // from what is asked for to the buttons
    QStringList answers;   // to the boxes on its way to the list
    int cancelled = 0;     // what it ends with
};

void PrintTo(const Kind& kind, std::ostream* stream)
{
    *stream << kind.name;
}

const Kind Fill = {"Fill_Msg_In_List",
                   Open_Fill_Dialog,
                   Instance<Fill_Msg_In_List>,
                   {"_fill_msg_all", "_Shown_Text", "OKPressed", "CancelPressed"},
                   {"Yes"}};
const Kind Send = {"Send_Msg_Info",
                   [](Main_Window& window) { Ask_Send_Msg_Info(window); },
                   Instance<Send_Msg_Info>,
                   {"_fill_msg_all", "OKPressed", "ContinuePressed", "CancelPressed"},
                   {},
                   Send_Msg_Info::Cancelled};
const Kind Edit = {
    "Update_Num_SMS",
    [](Main_Window& window) { Open_Edit_Dialog(window, 0); },
    Instance<Update_Num_SMS>,
    {"m_num_str", "m_msg_str", "_Shown_Text", "_Skip_Duplicate_Chk", "_Exclusion_Chk", "OKPressed", "CancelPressed"},
    {}};
const Kind Update = {"Update_Sel_Num_SMS",
                     Open_Update_Selected,
                     Instance<Update_Sel_Num_SMS>,
                     {"m_msg_str", "List_View", "OKPressed", "CancelPressed"},
                     {"Yes"}};

class Every_Dialog : public Dialogs_Test, public testing::WithParamInterface<Kind>
{
protected:
    Every_Dialog() : Dialogs_Test(GetParam().name, [this] { GetParam().open(m_window); })
    {
        Add("1", "one");
        Add("2");
        m_window.m_choices.composer_text = "new";
        m_window.m_previous_message = "before";
        m_window.m_selected_rows = {0, 1};
        Message_IS = "new";
    }

    void Expect_Nothing_Changed() const
    {
        EXPECT_EQ(List(), (QStringList{"1: one", "2: "}));
        EXPECT_EQ(m_window.m_previous_message, "before");
        EXPECT_EQ(m_window.m_redisplays, 0);
    }

    /// What a person may do before OK: the blank messages are to be filled; the number and the message are new.
    void Make_A_Change() const
    {
        for (auto* blank : m_dialog->findChildren<QRadioButton*>("_fill_msg_blank"))
            blank->click();
        for (auto* number : m_dialog->findChildren<QLineEdit*>("m_num_str"))
            number->setText("777");
        for (auto* message : m_dialog->findChildren<QPlainTextEdit*>("m_msg_str")) {
            message->setFocus();
            message->setPlainText("new");
        }
    }

    void Answer_Its_Boxes()
    {
        for (const auto& answer : GetParam().answers)
            m_user.Will_Press(answer);
    }
};

TEST_P(Every_Dialog, It_Opens_Over_The_Main_Window_And_Tab_Goes_From_What_Is_Asked_To_The_Buttons)
{
    Run([&] {
        EXPECT_TRUE(m_dialog->isModal());
        EXPECT_EQ(m_dialog->parentWidget(), &m_window);
        EXPECT_TRUE(In<QPushButton>("OKPressed").isDefault());
        EXPECT_EQ(Tab_Order(*m_dialog), GetParam().tab_order);
        m_dialog->close();
    });
}

TEST_P(Every_Dialog, Cancel_Escape_And_The_Close_Button_Change_Nothing)
{
    const std::function<void()> ways[] = {
        [&] { Click("CancelPressed"); },
        [&] { QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Escape); },
        [&] { m_dialog->close(); },
    };
    for (const auto& way : ways) {
        const int result = Run([&] {
            Make_A_Change();
            way();
            EXPECT_FALSE(m_dialog->isVisible());
        });
        EXPECT_EQ(result, GetParam().cancelled);
        Expect_Nothing_Changed();
    }
}

TEST_P(Every_Dialog, It_Has_One_Shared_Instance_And_Does_Not_Open_At_The_Programs_Exit)
{
    Begin_Program_Exit();
    GetParam().open(m_window);
    Expect_Nothing_Changed();
    const auto* dialog = GetParam().instance();
    EXPECT_EQ(dialog, GetParam().instance());
    EXPECT_EQ(dialog->objectName(), GetParam().name);
}

const auto By_Name = [](const auto& kind) { return std::string(kind.param.name); };

INSTANTIATE_TEST_SUITE_P(List, Every_Dialog, testing::Values(Fill, Send, Edit, Update), By_Name);

// ------------------------------------------------------------------------------------------ those that fill the list

// Counts how often the interface thread serves events while the please-wait sheet stands over a dialog. The workers
// that are started then begin only when that was often enough.
class Pulse : public QObject
{
public:
    explicit Pulse(int enough) : m_enough(enough)
    {
        qApp->installEventFilter(this);
        m_timer.start(0, this); // at every turn of the event loop
    }
    int Beats() const { return m_beats; }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->objectName() == QStringLiteral("PleaseWait_Modeless"))
            m_threads.emplace();
        return false;
    }
    void timerEvent(QTimerEvent* /*event*/) override
    {
        const QWidget* on_top = QApplication::activeModalWidget();
        m_beats += on_top && on_top->objectName() == QStringLiteral("PleaseWait_Modeless") ? 1 : 0;
        if (m_beats == m_enough)
            m_threads.reset();
    }

    const int m_enough;
    QBasicTimer m_timer;
    std::optional<Late_Threads> m_threads;
    int m_beats = 0;
};

using Filling_Dialog = Every_Dialog;

TEST_P(Filling_Dialog, Two_Hundred_Thousand_Recipients_Are_Filled_While_The_Window_Serves_Events_Under_A_Sheet)
{
    constexpr int Many = 200'000;
    // Showing the sheet lets events be served once; more than that only while a worker does the work.
    constexpr int Beats_Of_A_Worker = 10;
    Put_Many(Many);
    m_window.m_selected_rows.resize(Many);
    std::iota(m_window.m_selected_rows.begin(), m_window.m_selected_rows.end(), 0);
    Answer_Its_Boxes();
    const Pulse pulse(Beats_Of_A_Worker);
    Run([&] {
        Make_A_Change();
        Click("OKPressed");
    });
    EXPECT_GE(pulse.Beats(), Beats_Of_A_Worker);
    int filled = 0;
    for (int row = 0; row < Many; ++row)
        filled += m_window.m_recipients.At(row).Message == QStringLiteral("new") ? 1 : 0;
    EXPECT_EQ(filled, Many);
    EXPECT_EQ(m_window.m_recipients.Numbers().First_Index_Of("10000199999"), Many - 1);
}

INSTANTIATE_TEST_SUITE_P(List, Filling_Dialog, testing::Values(Fill, Send, Update), By_Name);

// ------------------------------------------------------------- those that fill it with the composer's message

using Composer_Dialog = Every_Dialog;

TEST_P(Composer_Dialog, OK_Or_Enter_Fills_All_Recipients_And_Once_More_Leaves_The_List_As_It_Is)
{
    const std::function<void()> ways[] = {
        [&] { QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Return); },
        [&] { Click("OKPressed"); },
    };
    for (const auto& way : ways) {
        m_window.m_redisplays = 0;
        Answer_Its_Boxes();
        EXPECT_EQ(Run(way), 1);
        EXPECT_EQ(List(), (QStringList{"1: new", "2: new"}));
        EXPECT_GT(m_window.m_redisplays, 0);
    }
    EXPECT_EQ(Message_IS, "new");
    EXPECT_EQ(m_user.Was_Shown().size(), 2 * GetParam().answers.size());
}

INSTANTIATE_TEST_SUITE_P(List, Composer_Dialog, testing::Values(Fill, Send), By_Name);

// ------------------------------------------------------------------------------------ those that ask for the message

using Message_Dialog = Every_Dialog;

TEST_P(Message_Dialog, A_Pasted_Message_Is_Saved_Byte_For_Byte_And_Cut_To_1600_Characters_At_Once)
{
    const QString longest(1600, u'a');
    const QString exact = " two\u00A0words\n\n \U0001F600 ";
    for (const auto& [pasted, saved] : {std::pair(longest + "and more", longest), {exact, exact}, {" ", " "}}) {
        Answer_Its_Boxes();
        Run([&, saved = saved, pasted = pasted] {
            const auto counter_before = Counter();
            const auto counts_before = m_window.m_counted.size();
            Paste_Message(pasted);
            EXPECT_EQ(Message(), saved);
            EXPECT_EQ(Counter(), QString::number(saved.size()) + " counted");
            ASSERT_EQ(m_window.m_counted.size(), counts_before + 1);
            EXPECT_EQ(m_window.m_counted.back().counter_before, counter_before);
            EXPECT_EQ(m_window.m_counted.back().length, saved.size());
            EXPECT_TRUE(m_window.m_counted.back().open_dialog);
            Click("OKPressed");
        });
        EXPECT_EQ(m_window.m_recipients.At(0).Message, saved);
    }
}

INSTANTIATE_TEST_SUITE_P(List, Message_Dialog, testing::Values(Edit, Update), By_Name);

} // namespace
