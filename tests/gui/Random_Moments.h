#pragma once

#include "gui/Leaving_Program.h"
#include "records/Data_Paths.h"
#include "records/Job_Paths.h"
#include "records/Job_Reader.h"
#include "records/Job_Shelf.h"

#include <random>
#include <set>

// A person without patience: presses whatever can be pressed, at random moments, while messages are sent, numbers are
// imported and devices are looked for, and leaves in the middle of it. One seed, one such visit. However it went, the
// program ends within a second, nothing of it is left, and the records tell what the phone has.
class Random_Moments : public Leaving_Program, public testing::WithParamInterface<unsigned>
{
protected:
    Random_Moments()
    {
        Set_Pace(std::array{25, 100, 400}[m_random() % 3]);
        QFile::remove(QFile::decodeName(Sent_Item_Path.toLocal8Bit()));
        QByteArray numbers;
        for (int line = 0; line < 20'000; ++line)
            numbers += QByteArray::number(1'000'000 + line) + "\r\n";
        Write_Bytes(m_folder.filePath("numbers.txt"), numbers);
        m_impatience.setSingleShot(true);
        QObject::connect(&m_impatience, &QTimer::timeout, [this] {
            m_impatience.start(static_cast<int>(m_random() % 25));
            Press_Something();
        });
    }
    ~Random_Moments() override { m_program.reset(); }

#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
    static constexpr double Longest_Way_Out = 5; // the same, several times slower
#else
    static constexpr double Longest_Way_Out = 1;
#endif

    void Press_Something()
    {
        m_last_pressed = Now_Seconds();
        QWidget* window = QApplication::activeModalWidget();
        if (!window)
            window = &m_program->Delegate();
        if (auto* panel = qobject_cast<QFileDialog*>(window)) {
            Answer_Panel(*panel);
        } else if (!window->isVisible() || !window->windowHandle() ||
                   (window->objectName() == "Send_Modeless" && m_random() % 20 != 0)) {
            return; // a job is given some time
        } else if (window != &m_program->Delegate() && m_random() % 10 == 0) {
            m_pressed.append(window->objectName() + ":Escape");
            QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
        } else if (m_random() % 40 == 0) {
            m_pressed.append(window->objectName() + ":close");
            window->close();
        } else if (auto* devices = window->findChild<QTableView*>("idPortList");
                   devices && devices->isVisible() && devices->model()->rowCount() > 0 && m_random() % 3 == 0) {
            m_pressed.append("device");
            devices->selectRow(static_cast<int>(m_random()) & 1 ? devices->model()->rowCount() - 1 : 0);
        } else {
            Press_A_Button(*window);
        }
    }

    void Answer_Panel(QFileDialog& panel)
    {
        if (panel.acceptMode() == QFileDialog::AcceptSave || m_random() % 2 == 0) {
            m_pressed.append("panel:no");
            panel.reject();
            return;
        }
        m_pressed.append("panel:yes");
        panel.selectFile(m_folder.filePath("numbers.txt"));
        QMetaObject::invokeMethod(&panel, "accept");
    }

    void Press_A_Button(QWidget& window)
    {
        // Records are to be kept, to stay where they are, and to be about this phone.
        static const std::set<QString> left_alone{"_Save_Sent_Item_Chk", "Reset_Btn", "Sent_Item_Btn",
                                                  "Try_Virtual_Phone"};
        QList<QAbstractButton*> buttons;
        for (auto* button : window.findChildren<QAbstractButton*>()) {
            const bool can_be_pressed = button->isVisible() && button->isEnabled() && button->window() == &window;
            if (can_be_pressed && !left_alone.contains(button->objectName()))
                buttons.append(button);
        }
        if (buttons.isEmpty())
            return;
        auto* button = buttons.at(static_cast<int>(m_random() % static_cast<unsigned>(buttons.size())));
        // Now and then on what it is all about.
        if (&window == &m_program->Delegate() && m_random() % 2 == 0)
            button = &The<QPushButton>(
                std::array{"_sent_btn", "_sent_btn", "Search_All_Modem", "Load_Number"}[m_random() % 4]);
        m_pressed.append(window.objectName() + u':' + button->objectName() + u'/' + button->text());
        Click_At(*button, QPoint(std::min(12, button->width() / 2), button->height() / 2));
    }

    // A message that was confirmed and whose answer nobody waited for to the end has a line in its job's journal
    // instead.
    void Expect_A_Record_Of_Each_Message() const
    {
        RecordProperty("messages", static_cast<int>(m_phone.Inbox().size()));
        std::vector<std::string> sent;
        for (const auto& message : m_phone.Inbox())
            sent.push_back(message.m_number);
        std::vector<std::string> recorded;
        for (const QByteArray& line : Bytes_Of(Sent_Item_Path).split('\n')) {
            if (line.startsWith('\a'))
                recorded.push_back(line.mid(1, line.indexOf('\v') - 1).toStdString());
        }
        std::vector<std::string> doubtful = Doubtful_Numbers();
        for (std::size_t i = 0; i < sent.size();) {
            const auto place = std::find(doubtful.begin(), doubtful.end(), sent[i]);
            const bool is_recorded = i < recorded.size() && recorded[i] == sent[i];
            if (is_recorded || place == doubtful.end()) {
                ++i;
                continue;
            }
            doubtful.erase(place);
            sent.erase(sent.begin() + static_cast<std::ptrdiff_t>(i));
        }
        EXPECT_EQ(recorded, sent) << "after " << m_pressed.join(u' ').toStdString();
    }

    static std::vector<std::string> Doubtful_Numbers()
    {
        std::vector<std::string> numbers;
        for (const Unfinished_Job& job : Unfinished_Jobs(Jobs_Folder_Path)) {
            const Job_Reading reading = Read_Job(Job_Journal_Path(Jobs_Folder_Path, job.id));
            for (int row = 1; reading.record && row <= reading.record->Row_Count(); ++row) {
                if (May_Have_Been_Sent(reading.record->State_Of(row).state))
                    numbers.push_back(reading.record->Row(row)->number.toStdString());
            }
        }
        return numbers;
    }

    std::mt19937 m_random{GetParam()};
    Virtual_Phone m_phone;
    QTemporaryDir m_folder;
    QTimer m_impatience;
    QStringList m_pressed;
    double m_last_pressed = 0;
};

TEST_P(Random_Moments, End_In_An_Orderly_Way)
{
    Command_Line command_line;
    command_line.device_paths = {QString::fromStdString(m_phone.Path())};
    Start(command_line);
    user.Will_Leave_The_Others_Open();
    sel_port_bsd_str = QString::fromStdString(m_phone.Path());
    The<QCheckBox>("_Save_Sent_Item_Chk").setChecked(true);
    The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
    for (int item = 0; item < 30; ++item)
        m_program->Delegate().Create_Num_Msg_List(QString::number(1000 + item), "Hello");
    m_impatience.start(0);
    QTimer patience_ends;
    patience_ends.setSingleShot(true);
    QObject::connect(&patience_ends, &QTimer::timeout, [this] {
        m_impatience.stop();
        m_last_pressed = Now_Seconds();
        m_program->Leave();
    });
    patience_ends.start(static_cast<int>(200 + m_random() % 1500));
    EXPECT_EQ(m_program->Run(), 0);
    patience_ends.stop(); // who has closed the main window has left already
    m_impatience.stop();
    m_program.reset();
    EXPECT_LT(Now_Seconds() - m_last_pressed, Longest_Way_Out) << "after " << m_pressed.join(u' ').toStdString();
    Expect_Nothing_Left();
    EXPECT_EQ(Descriptors_On(m_phone.Path()), 0);
    Expect_A_Record_Of_Each_Message();
}
