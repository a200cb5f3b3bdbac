#pragma once

#include "engine/Send_Order.h"
#include "plan/Hand_Over.h"
#include "records/Program_Settings.h"

#include <QDialog>
#include <atomic>
#include <functional>
#include <memory>

namespace Ui {
class Hand_Over_Wnd;
}

// What to do with a list that is too long for one phone: plain words about other ways, and the hand-over of the
// messages as they are planned to another program or a provider. Blocks no other window. Made by whoever shows it, with
// a worker that its end waits for; interface thread.
class Hand_Over_Wnd : public QDialog
{
    Q_OBJECT

public:
    /// The plan that would be sent now.
    struct Plan
    {
        Send_Order order;
        Plan_Manner manner;
    };
    /// What became of it.
    struct Handed_Over
    {
        int messages = 0;
        int left_out = 0;
        bool is_stopped = false;
        Hand_Over_Trouble trouble;
    };

    /// Asked when the messages are handed over. The settings remember that the notice is not wanted.
    Hand_Over_Wnd(std::function<Plan()> plan, Program_Settings settings, QWidget* parent = nullptr);
    ~Hand_Over_Wnd() override;

    /// Shows the window, or brings it to the front.
    void Bring_Up();

    /// Asks for a folder and writes the messages there, or stops that while it is going on.
    void Hand_Over_Btn();
    void Do_Not_Tell_Chk();

    /// The notice's name in the settings.
    static constexpr char Notice[] = "MuchForOnePhone";

Q_SIGNALS:
    /// The notice is wanted or not wanted any more.
    void Notice_Chosen(bool is_wanted);

private:
    struct Work;

    void Write_To(const QString& folder);
    void Show_Notice_Choice();
    static QString End_In_Words(const Handed_Over& done, const QString& folder);
    void Take_End(const QString& words);

    std::unique_ptr<Ui::Hand_Over_Wnd> m_ui;
    std::function<Plan()> m_plan;
    Program_Settings m_settings;
    QString m_caption;            // of the button while nothing is being written
    std::shared_ptr<Work> m_work; // that is going on
};
