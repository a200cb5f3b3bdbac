#pragma once

#include "engine/Job_State.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "support/User.h"
#include "support/Window_For_Tests.h"
#include "toolkit/Plain_Text_Edit.h"
#include "toolkit/Shared_Instance.h"
#include "windows/list/List_Dialogs.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* stream)
{
    *stream << texts.join(QStringLiteral(" | ")).toStdString();
}

// A main window with a list of recipients, and the person who works with the dialogs over it.
class Dialogs_Test : public testing::Test
{
protected:
    Dialogs_Test()
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

    static QString Boxed(const QString& text) { return u'\n' + text; }

    template <typename Control>
    static Control& In(QWidget& dialog, const char* name)
    {
        auto* control = dialog.findChild<Control*>(QLatin1String(name));
        if (!control)
            qFatal("there is no %s in %s", name, qPrintable(dialog.objectName()));
        return *control;
    }

    static void Click(QWidget& dialog, const char* button)
    {
        QTest::mouseClick(&In<QAbstractButton>(dialog, button), Qt::LeftButton);
    }

    /// A radio button reacts where its caption is.
    static void Pick(QWidget& dialog, const char* radio)
    {
        auto& button = In<QRadioButton>(dialog, radio);
        QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button.height() / 2));
        EXPECT_TRUE(button.isChecked()) << radio;
    }

    static QStringList Radios_On(QWidget& dialog)
    {
        QStringList on;
        const auto radios = dialog.findChildren<QRadioButton*>();
        for (const auto* radio : radios) {
            if (radio->isChecked())
                on.append(radio->objectName());
        }
        return on;
    }

    static void Paste(QWidget& dialog, const char* field, const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(&In<QWidget>(dialog, field), QKeySequence::Paste);
    }

    static QString Focused(const QWidget& dialog)
    {
        return dialog.focusWidget() ? dialog.focusWidget()->objectName() : QString();
    }

    /// Counts how often the interface thread serves events while the please-wait sheet stands over a dialog.
    class Pulse
    {
    public:
        Pulse()
        {
            QObject::connect(&m_timer, &QTimer::timeout, [this] {
                const QWidget* on_top = QApplication::activeModalWidget();
                m_beats += on_top && on_top->objectName() == QStringLiteral("PleaseWait_Modeless") ? 1 : 0;
            });
            m_timer.start(0); // at every turn of the event loop
        }
        int Beats() const { return m_beats; }

    private:
        QTimer m_timer;
        int m_beats = 0;
    };

    /// Showing the sheet lets events be served once; more than that only while a worker does the work.
    static constexpr int Beats_Of_A_Worker = 10;

    QTemporaryDir m_folder;
    User m_user;
    Window_For_Tests m_window;
};

inline const QString List_Empty = QStringLiteral("Phone numbers-Messages list is empty.");
inline const QString None_Selected =
    QStringLiteral("Please select at least one record from the phone numbers-messages list to continue.");
inline const QString Enter_Message = QStringLiteral("Please enter some text message.");
