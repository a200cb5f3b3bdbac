#pragma once

#include "gui/Open_Program.h"

// The main window, and files of numbers in a folder of the test's own.
class Importing_Program : public Open_Program
{
protected:
    QString File(const QString& name, const QByteArray& content)
    {
        Write_Bytes(m_folder.filePath(name), content);
        return m_folder.filePath(name);
    }

    void Will_Pick(const QString& path)
    {
        user.Will_Do([path](QDialog* panel) {
            Enter_Path(*panel, path);
            EXPECT_EQ(static_cast<QFileDialog*>(panel)->fileMode(), QFileDialog::ExistingFile);
        });
    }
    void Will_Answer(const char* button) { Will_Click_In(user, "Load_Num_Info", button); }

    /// Returns when the import has ended.
    void Press_Import(double seconds = 20)
    {
        Click("Load_Number");
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }, seconds));
    }
    void Load(const QByteArray& content, const QString& name = "numbers.txt")
    {
        Will_Pick(File(name, content));
        Press_Import();
    }
    void Load_Past_The_Panel(const QString& path)
    {
        m_delegate->Load_NUM_Thread(path);
        ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    }

    QWidget& Please_Wait() { return *m_delegate->findChild<QWidget*>("PleaseWait_Modeless"); }
    void Expect_The_Window_Free()
    {
        EXPECT_FALSE(Please_Wait().isVisible());
        EXPECT_TRUE(The<QPushButton>("_sent_btn").isEnabled());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    QTemporaryDir m_folder;
};
