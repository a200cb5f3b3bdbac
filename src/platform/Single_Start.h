#pragma once

#include "platform/Descriptor.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <memory>

class QSocketNotifier;

// Ensures that only one program at a time works in a private folder. The first start locks the folder, and a file in it
// for file systems shared between computers. The system releases such locks however the program ends, so that nothing
// stale is left behind. Every further start asks the first, through a socket in the folder, to come to the front, and
// should then end. Made by main() before anything in the folder is touched and before the application object; one
// thread.
class Single_Start
{
public:
    enum class Outcome
    {
        First,     ///< this start may work in the folder; also where the folder cannot be locked at all
        Shown,     ///< another start has it, and comes to the front
        No_Answer, ///< another start has it, and does not answer
    };

    explicit Single_Start(const QString& private_folder);
    /// Releases the folder; the last thing a program does, when all its files are written.
    ~Single_Start();
    Single_Start(const Single_Start&) = delete;
    Single_Start& operator=(const Single_Start&) = delete;

    /// Makes the folder if it is missing, and takes it or asks the program that has it. patience, in real seconds, is
    /// how long to wait for an answer, and how long a program on its way out gets to leave the folder.
    Outcome Begin(double patience = 5);

    /// Whether it is certain that no other program works in the folder: both locks are really held, and not merely
    /// unknown to the file system.
    bool Is_Alone() const;

    /// What to do when a further start asks, from now on and for requests already waiting. Needs the application object
    /// and its events; interface thread.
    void When_Asked(std::function<void()> come_to_the_front);

    /// The program is on its way out and accepts no more requests. Further starts wait until the folder is released.
    void Stop_Listening();

private:
    bool Open_Folder();
    void Open_Lock_File();
    bool Take_Locks();
    void Listen();
    bool Ask_The_First(double end);
    void Answer();

    QString m_folder;
    Descriptor m_open_folder;
    Descriptor m_lock_file;
    Descriptor m_listener;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_come_to_the_front;
};
