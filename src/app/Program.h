#pragma once

#include "app/Command_Line.h"

#include <QObject>
#include <memory>

class CorvaneAppDelegate;
class Demo_Phone;
class Single_Start;

// The program from its start to its orderly end: the look, the main window, the virtual phone of --demo, and on the way
// out every worker joined and every window gone. One instance, made by main() after the application object; interface
// thread.
class Program : public QObject
{
    Q_OBJECT

public:
    /// single_start, if given, outlives the program and has begun as the first.
    explicit Program(Command_Line command_line, Single_Start* single_start = nullptr);
    ~Program() override;

    /// Builds everything and shows the main window. Returns false if the program cannot go on; the user has then been
    /// told.
    bool Start();
    /// Serves events until the user leaves. Returns the exit status.
    int Run();

    CorvaneAppDelegate& Delegate() { return *m_delegate; }
    Demo_Phone* Phone_Of_The_Demo() { return m_demo_phone.get(); }

    /// Begins the way out, like the user's Yes: a running job stops, open boxes and dialogs close, Run() returns.
    void Leave();

    /// Shows the main window, and what is open over it, above all other windows: the user has started the program once
    /// more.
    void Come_To_The_Front();

private:
    void Start_Demo_Phone();

    Command_Line m_command_line;
    Single_Start* m_single_start;
    std::unique_ptr<Demo_Phone> m_demo_phone;
    std::unique_ptr<CorvaneAppDelegate> m_delegate;
    bool m_is_leaving = false;
};
