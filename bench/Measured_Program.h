#pragma once

#include "windows/main/CorvaneAppDelegate.h"

#include <QApplication>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <string>

class QMessageBox;

// How long the interface thread was away from its events: a timer that wants to come every millisecond writes down the
// longest time it did not. Interface thread.
class Heartbeat
{
public:
    Heartbeat();

    void Begin();
    /// Ends the measuring; returns the longest gap since Begin, in milliseconds.
    double End();

private:
    void Beat();

    QTimer m_timer;
    double m_last = 0;
    double m_longest = 0;
};

/// What the system says of this process, in kilobytes: what lies in memory now, and the most that ever did.
long Resident_Kilobytes();
long Highest_Resident_Kilobytes();

// The real main window on the offscreen platform, driven by a benchmark in the place of a person: message boxes are
// answered with Yes or OK as they open, windows that open get what was left for them. Results come out as one JSON
// object on one line. One in a process; interface thread.
class Measured_Program : public QObject
{
public:
    Measured_Program(int& argument_count, char** arguments);
    ~Measured_Program() override;

    CorvaneAppDelegate& Window() { return *m_delegate; }

    template <typename Widget>
    Widget& The(const char* name)
    {
        return Part<Widget>(*m_delegate, name);
    }

    template <typename Widget>
    static Widget& Part(QWidget& window, const char* name)
    {
        auto* widget = window.findChild<Widget*>(QString::fromLatin1(name));
        if (!widget)
            qFatal("there is no %s", name);
        return *widget;
    }

    void Click(const char* button);
    void Tick(const char* check_box);

    /// Serves events until is_over answers yes.
    void Serve_Until(const std::function<bool()>& is_over);

    /// What to do when a window with this object name opens next.
    void When_Opens(const QString& object_name, std::function<void(QWidget&)> handle);

    /// The numbers of a file become an exclusion list, which is applied, and the exclusion option is switched on.
    void Apply_Exclusions(const QString& path);

    /// Imports a file of numbers and returns when the list shows them; the seconds that took.
    double Import(const QString& path);

    void Put(const std::string& name, double value) { m_results[name] = value; }
    void Put(const std::string& step, double seconds, double longest_gap);
    void Print() const;

    /// Does a step under the heartbeat and puts down its seconds and its longest gap.
    void Measure(const std::string& step, const std::function<void()>& work);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QApplication m_application;
    std::unique_ptr<CorvaneAppDelegate> m_delegate;
    std::map<QString, std::function<void(QWidget&)>> m_openings;
    std::map<std::string, double> m_results;
};
