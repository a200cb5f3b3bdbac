#pragma once

#include "gui/Leaving_Program.h"
#include "platform/Settings_File.h"
#include "support/Files.h"

#include <QtTest/qtestspontaneevent.h>

// What the program knows again at its next start.
class Remembered_Things : public Leaving_Program
{
protected:
    Remembered_Things() { Begin(); }
    ~Remembered_Things() override
    {
        m_program.reset();
        QFile::remove(Settings_Path);
        QFile::remove(Kept_List());
    }

    void Begin()
    {
        Forget_Program_Exit();
        Start();
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        QCoreApplication::processEvents();
    }
    void Leave()
    {
        Leave_When([] { return true; }, [] {});
    }
    void Leave_And_Begin_Again()
    {
        Leave();
        Begin();
    }
    CorvaneAppDelegate& Window() { return m_program->Delegate(); }
    QAction& Remember() { return In<QAction>(Window(), "Remember_List"); }
    static QString Kept_List() { return QFileInfo(Settings_Path).path() + "/LastList.csv"; }
    QStringList Recipients()
    {
        QStringList recipients;
        const Recipient_List& list = Window().Recipients();
        for (int row = 0; row < list.Count(); ++row)
            recipients.append(list.Numbers().At(row) + ' ' + list.Message_At(row));
        return recipients;
    }
    QString News()
    {
        auto& strip = The<QWidget>("_Import_Strip");
        return strip.isVisible() ? strip.findChild<QLabel*>()->text() : QString();
    }
    /// As the frame of the window does it in a person's hand.
    void Resize_By_Hand(QWidget& window, const QSize& size)
    {
        const QSize before = window.size();
        window.resize(size);
        QResizeEvent event(size, before);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&window, &event);
    }
};
