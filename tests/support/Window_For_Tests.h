#pragma once

#include "app/shared/Globals.h"
#include "app/shared/Main_Window.h"
#include "platform/Input_Hold.h"

#include <QWidget>
#include <memory>
#include <vector>

// A main window without controls: what they would say are values that a test sets.
class Window_For_Tests : public QWidget, public Main_Window
{
public:
    Window_For_Tests()
    {
        setObjectName(QStringLiteral("Window_For_Tests"));
        resize(1024, 700);
        show();
        Main_App_wnd = this;
    }
    ~Window_For_Tests() override { Main_App_wnd = nullptr; }

    QWidget* Window() override { return this; }
    void Focus(Field field) override { m_focused.push_back(field); }
    const Recipient_List& Recipients() const override { return m_recipients; }
    const Exclusion_Set& Exclusions() const override { return m_exclusions; }
    void Redisplay_Recipients() override {}
    bool Check_Ph_Number(const QString&, bool) const override { return false; }
    bool Blank_Msg_Chk() const override
    {
        for (int index = 0; index < m_recipients.Count(); ++index) {
            if (!m_recipients.At(index).Message.isEmpty())
                return false;
        }
        return m_choices.composer_text.isEmpty();
    }
    Send_Choices Read_Send_Choices() const override { return m_choices; }
    QString Previous_Composer_Message() const override { return m_previous_message; }
    void Set_Previous_Composer_Message(const QString& message) override { m_previous_message = message; }
    void Hold_Input() override { m_input_hold = std::make_unique<Input_Hold>(this); }
    void Release_Input() override { m_input_hold.reset(); }

    bool Is_Held() const { return m_input_hold != nullptr; }

    Recipient_List m_recipients;
    Exclusion_Set m_exclusions;
    Send_Choices m_choices;
    QString m_previous_message;
    std::vector<Field> m_focused;

private:
    std::unique_ptr<Input_Hold> m_input_hold;
};
