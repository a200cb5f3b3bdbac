#pragma once

#include <QApplication>
#include <functional>

// The application object, with a net under every event handler, slot and step left for the interface thread: the
// toolkit lets nothing be thrown through it, and one exception there would end the program. What falls in is logged and
// told. Made by main(); interface thread.
class Guarded_Application : public QApplication
{
public:
    using QApplication::QApplication;

    /// Sets who tells the user that what he asked for has broken; not called again while he is being told.
    static void When_Something_Breaks(std::function<void()> tell);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    static void Catch(const QString& reason);
};
