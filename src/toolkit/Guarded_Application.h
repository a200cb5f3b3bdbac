#pragma once

#include <QApplication>
#include <functional>

// The application object, with a net under every event handler, slot and step left for the interface thread: no
// exception may pass through the toolkit, and a single one there would end the program. What the net catches is logged
// and reported. Made by main(); interface thread.
class Guarded_Application : public QApplication
{
public:
    using QApplication::QApplication;

    /// Sets what reports to the user that a requested action has failed; not called again while a report is showing.
    static void When_Something_Breaks(std::function<void()> tell);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    static void Catch(const QString& reason);
};
