#pragma once

#include "list/Number_Rules.h"
#include "records/Exclusion_Files.h"
#include "toolkit/Input_Hold.h"
#include "toolkit/Main_Window.h"

#include <QWidget>
#include <memory>
#include <utility>
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
    const Number_List& Exclusions() const override { return m_exclusions; }
    void Replace_Recipients(Recipient_List recipients) override
    {
        m_recipients = std::move(recipients);
        Redisplay_Recipients();
    }
    void Replace_Recipient(int row, const QString& number, const QString& message) override
    {
        m_recipients.Replace(row, number, message);
        Redisplay_Recipients();
    }
    void Redisplay_Recipients() override { ++m_redisplays; }
    std::vector<int> Selected_Recipient_Rows() const override { return m_selected_rows; }
    void Fill_Exclusion_Num_List() override { ++m_exclusion_fills; }
    void Take_Exclusions(const Exclusion_Files::Applied_Numbers& applied) override
    {
        ++m_exclusions_taken;
        m_exclusions = applied.numbers;
    }
    Number_List Read_Applied_Exclusions() override
    {
        ++m_exclusion_reads;
        return m_applied_exclusions;
    }
    bool Check_Ph_Number(const QString& number, bool test_flag) const override
    {
        return Number_Rules::Check_Ph_Number(number, test_flag);
    }
    bool Check_Duplicate_Number(const QString& number) const override
    {
        return m_recipients.Numbers().Count_Of(number) > 0;
    }
    bool Check_Exclusion_Number(const QString& number) const override { return m_exclusions.Count_Of(number) > 0; }
    bool Blank_Msg_Chk() const override
    {
        for (int index = 0; index < m_recipients.Count(); ++index) {
            if (!m_recipients.Message_At(index).isEmpty())
                return false;
        }
        return m_choices.composer_text.isEmpty();
    }
    Send_Choices Read_Send_Choices() const override { return m_choices; }
    QString Previous_Composer_Message() const override { return m_previous_message; }
    void Set_Previous_Composer_Message(const QString& message) override { m_previous_message = message; }
    QString Long_SMS_Calculation(int length, const QString& msg_char_value, bool open_dlg) override
    {
        m_counted.push_back({length, msg_char_value, open_dlg});
        return QStringLiteral("%1 counted").arg(length);
    }
    int Composer_Length() const override { return static_cast<int>(m_choices.composer_text.size()); }
    int Composer_Selection_Length() const override { return m_selection_length; }
    void Use_In_Composer(const QString& text) override
    {
        m_choices.composer_text.replace(m_selection_start, m_selection_length, text);
        m_choices.composer_text.truncate(1600);
    }
    void Set_Composer_Text(const QString& text) override { m_choices.composer_text = text.left(1600); }
    void Hold_Input() override { m_input_hold = std::make_unique<Input_Hold>(this); }
    void Release_Input() override { m_input_hold.reset(); }

    bool Is_Held() const { return m_input_hold != nullptr; }

    Recipient_List m_recipients;
    Number_List m_exclusions;
    Number_List m_applied_exclusions; ///< what the lists hold
    Send_Choices m_choices;
    QString m_previous_message;
    std::vector<Field> m_focused;
    std::vector<int> m_selected_rows;
    int m_redisplays = 0;
    int m_exclusion_fills = 0;
    int m_exclusion_reads = 0;
    int m_exclusions_taken = 0;
    int m_selection_start = 0; ///< of the composer's selection
    int m_selection_length = 0;

    struct Counted
    {
        int length;
        QString counter_before;
        bool open_dialog;
    };
    std::vector<Counted> m_counted; ///< what Long_SMS_Calculation was asked; it answers "<length> counted"

private:
    std::unique_ptr<Input_Hold> m_input_hold;
};
