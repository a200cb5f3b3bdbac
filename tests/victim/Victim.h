#pragma once

#include "victim/Doomed_Calls.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>
#include <cstdio>
#include <map>
#include <sys/types.h>

/// What a victim is to do; see Order.
struct Errand
{
    const char* steps = "start";
    int items = 0;
    int first = 0;
    std::string phone = "-";
    char disk = 'u';
    Doom doom = {};
};

/// How a life of the program ended.
struct Ending
{
    bool was_killed = false;
    bool lived = false; ///< to the end of its steps; neither of them is a crash or a hang
    int status = 0;
    int calls = 0;
    QByteArrayList
        made; ///< "<name> <file> <bytes> ok", "<name> <file> failed", or "<name> <file> " when it was not done
    QByteArrayList journal; ///< see Live

    /// How many calls were made and done that begin so.
    int Done(const QByteArray& beginning) const;
    bool Says(const QByteArray& line) const { return journal.contains(line); }
    /// The boxes shown in a step.
    QStringList Boxes(const QByteArray& step) const;
    QStringList All_Boxes() const;
    /// What the data files held after a step, by their names.
    std::map<QByteArray, QByteArray> Files(const QByteArray& step) const;
    /// What the windows showed: the rows of "sent", "template", "list" or "applied", cells apart by tabs.
    QStringList Rows(const QByteArray& what) const;
};

// A running corvane-victim, which lives through one errand after the other, each as a program of its own. For one
// thread.
class Victim
{
public:
    Victim();
    ~Victim();
    Victim(const Victim&) = delete;
    Victim& operator=(const Victim&) = delete;

    Ending Live(const QString& world, const Errand& errand);

private:
    pid_t m_process = -1;
    FILE* m_orders = nullptr;
    FILE* m_answers = nullptr;
};
