#pragma once

#include "records/Job_Shelf.h"
#include "windows/main/Outcomes_Test.h"

#include <QDir>

// The open main window that confirms each message, and what its jobs leave in their folder.
class Confirmed_Sending_Test : public Outcomes_Test
{
protected:
    Confirmed_Sending_Test() { Tick("_Confirm_Chk"); }
    ~Confirmed_Sending_Test() override
    {
        QDir(Jobs_Folder_Path).removeRecursively();
        QFile::remove(Jobs_Folder_Path);
    }

    static QStringList Files_Of_Jobs() { return QDir(Jobs_Folder_Path).entryList(QDir::Files | QDir::Hidden); }

    /// Notes what the progress window shows in place of the number, whenever something is written to the phone, and
    /// calls this with it, on the interface thread.
    void Watch_The_Sheet(std::function<void(const QString&)> look = {})
    {
        Before_The_Next_Answer([this, look = std::move(look)] {
            Run_On_Interface_Thread([&] {
                const QString text = On_The_Sheet("_current_send_label") + ' ' + On_The_Sheet("_current_send_msg");
                if (m_on_the_sheet.isEmpty() || m_on_the_sheet.last() != text)
                    m_on_the_sheet.append(text);
                if (look)
                    look(text);
            });
        });
    }
    static QString On_The_Sheet(const char* label)
    {
        return Send_Modeless::defaultInstance()->findChild<QLabel*>(QLatin1String(label))->text();
    }

    void Message_Manners(const std::vector<Message_Manner>& manners)
    {
        Have([&](Phone_Moods& moods) { moods.m_message_manners = manners; });
    }

    /// Texts that the handset shows, in order.
    QStringList Received() const
    {
        QStringList texts;
        for (const Handset_Message& message : m_phone.Inbox())
            texts.append(QString::fromStdString(message.m_number + ": " + message.m_text));
        return texts;
    }

    QStringList m_on_the_sheet;
};
