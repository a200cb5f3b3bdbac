#pragma once

#include "victim/Steps.h"

#include <QByteArrayList>
#include <QProcess>
#include <QStringList>
#include <functional>
#include <map>

/// How a life of the program ended.
struct Ending
{
    bool was_killed = false;
    bool lived = false; ///< to the end of its steps; neither of them is a crash or a hang
    int calls = 0;
    QByteArrayList made;    ///< "<name> <file> <bytes> ok", "<name> <file> failed", or "<name> <file> " of one not done
    QByteArrayList journal; ///< see Live
    std::map<QByteArray, QByteArray> picked = {}; ///< see World::Picked

    /// How many calls were made and done that begin so.
    int Done(const QByteArray& beginning) const;
    bool Says(const QByteArray& line) const { return journal.contains(line); }
    /// The names of the steps that were done, in order.
    QByteArrayList Steps() const;
    /// The boxes shown in a step.
    QStringList Boxes(const QByteArray& step) const;
    QStringList All_Boxes() const;
    /// What the data files held after a step, by their names.
    std::map<QByteArray, QByteArray> Files(const QByteArray& step) const;
    /// What the windows showed: the rows of "sent", "template", "list" or "applied", cells apart by tabs.
    QByteArrayList Rows(const QByteArray& what) const;
};

// A running corvane-victim, which lives through orders, each as a program of its own. For one thread.
class Victim
{
public:
    Victim();
    ~Victim();

    Ending Live(const Order& order);

private:
    void Await(const std::function<bool()>& is_there);

    QProcess m_process;
};
