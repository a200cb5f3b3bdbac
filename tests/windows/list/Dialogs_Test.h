#pragma once

#include "engine/Job_State.h"
#include "platform/Pace.h"
#include "records/Data_Paths.h"
#include "support/In_Windows.h"
#include "support/Window_For_Tests.h"
#include "toolkit/Plain_Text_Edit.h"
#include "toolkit/Shared_Instance.h"
#include "windows/list/List_Dialogs.h"

inline const QString List_Empty = "\nPhone numbers-Messages list is empty.";
inline const QString None_Selected =
    "\nPlease select at least one record from the phone numbers-messages list to continue.";
inline const QString Enter_Message = "\nPlease enter some text message.";

// Keeps what a dialog's counter showed while its message was counted, and how often the composer was written to.
class Watched_Window : public Window_For_Tests
{
public:
    QString Long_SMS_Calculation(int length, const QString& counter_before, bool open_dialog) override
    {
        if (const auto* dialog = QApplication::activeModalWidget())
            m_counters_meanwhile.append(dialog->findChild<QLabel*>("m_st_msg_cnt")->text());
        return Window_For_Tests::Long_SMS_Calculation(length, counter_before, open_dialog);
    }
    void Set_Composer_Text(const QString& text) override
    {
        ++m_composer_writes;
        Window_For_Tests::Set_Composer_Text(text);
    }

    QStringList m_counters_meanwhile;
    int m_composer_writes = 0;
};

// A main window with a list of recipients, and the person who works with one of the dialogs over it.
class Dialogs_Test : public testing::Test
{
protected:
    Dialogs_Test(const char* name, std::function<void()> open) : m_name(name), m_open(std::move(open))
    {
        Set_Data_Paths(m_folder.path());
        Set_Pace(1000);
        Message_IS.clear();
    }
    ~Dialogs_Test() override
    {
        Finish_Workers();
        End_Shared_Instances();
        Forget_Program_Exit();
        Message_IS.clear();
        Set_Pace(1);
    }

    void Add(const QString& number, const QString& message = QString())
    {
        m_window.m_recipients.Append(number, message);
    }
    void Put_Many(int many, const QString& message = QString())
    {
        m_window.m_recipients.Clear();
        for (int row = 0; row < many; ++row)
            Add(QString::number(10'000'000'000 + row), message);
    }
    /// Every recipient as "number: message".
    QStringList List() const
    {
        QStringList recipients;
        for (int row = 0; row < m_window.m_recipients.Count(); ++row) {
            const Recipient& recipient = m_window.m_recipients.At(row);
            recipients.append(recipient.Number + QStringLiteral(": ") + recipient.Message);
        }
        return recipients;
    }

    /// Opens the dialog, does the steps once it is shown and all that it loads is in, and looks whether it was left as
    /// it is for its next opening. Returns what it ended with.
    int Run(const std::function<void()>& steps)
    {
        m_dialog.clear();
        m_user.When_Opens(m_name, [&](QWidget& dialog) {
            m_dialog = qobject_cast<QDialog*>(&dialog);
            Finish_Workers();
            steps();
        });
        m_open();
        if (!m_dialog) {
            ADD_FAILURE() << m_name << " did not open";
            return -1000;
        }
        Expect_Fresh();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        return m_dialog->result();
    }

    /// A control of the dialog that was opened last.
    template <typename Control>
    Control& In(const char* name) const
    {
        return ::In<Control>(*m_dialog, name);
    }
    QString Message() const { return Exact_Text(In<QPlainTextEdit>("m_msg_str")); }
    QString Counter() const { return In<QLabel>("m_st_msg_cnt").text(); }
    QString Focused() const { return m_dialog->focusWidget() ? m_dialog->focusWidget()->objectName() : QString(); }
    QStringList Radios_On() const
    {
        QStringList on;
        const auto radios = m_dialog->findChildren<QRadioButton*>();
        for (const auto* radio : radios) {
            if (radio->isChecked())
                on.append(radio->objectName());
        }
        return on;
    }
    void Click(const char* button) const { QTest::mouseClick(&In<QAbstractButton>(button), Qt::LeftButton); }
    /// A radio button reacts where its caption is.
    void Pick(const char* radio) const
    {
        auto& button = In<QRadioButton>(radio);
        QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button.height() / 2));
        EXPECT_EQ(Radios_On(), QStringList{radio});
    }
    void Type_Number(const QString& number) const
    {
        In<QLineEdit>("m_num_str").clear();
        QTest::keyClicks(&In<QLineEdit>("m_num_str"), number);
    }
    void Type_Message(const QString& message) const
    {
        auto& field = In<QPlainTextEdit>("m_msg_str");
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, message);
    }
    void Paste_Message(const QString& message) const
    {
        auto& field = In<QPlainTextEdit>("m_msg_str");
        field.selectAll();
        QGuiApplication::clipboard()->setText(message);
        QTest::keySequence(&field, QKeySequence::Paste);
    }

    QTemporaryDir m_folder;
    User m_user;
    Watched_Window m_window;
    QPointer<QDialog> m_dialog; // the one that was opened last

private:
    void Expect_Fresh() const
    {
        EXPECT_FALSE(m_dialog->isVisible());
        for (const auto* radio : m_dialog->findChildren<QRadioButton*>())
            EXPECT_EQ(radio->isChecked(), radio->objectName() == "_fill_msg_all") << radio->objectName().toStdString();
        for (const auto* line : m_dialog->findChildren<QLineEdit*>())
            EXPECT_EQ(line->text(), "") << line->objectName().toStdString();
        for (const auto* message : m_dialog->findChildren<QPlainTextEdit*>())
            EXPECT_EQ(message->toPlainText(), "");
        for (const auto* counter : m_dialog->findChildren<QLabel*>("m_st_msg_cnt"))
            EXPECT_EQ(counter->text(), "0 Characters");
    }

    const char* m_name;
    std::function<void()> m_open;
};
