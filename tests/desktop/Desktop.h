#pragma once

#include <QProcess>

// An X server that nobody sees and a window manager on it, for the life of this object. The windows of an application
// that is made meanwhile stand there, and get and lose the keyboard as they do on a desktop.
class Desktop
{
public:
    /// Starts both and makes the display that of this process. Empty when that went well, or what failed.
    QString Start();
    ~Desktop();

private:
    QProcess m_server;
    QProcess m_manager;
};
