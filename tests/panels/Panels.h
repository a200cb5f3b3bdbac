#pragma once

#include <QStringList>
#include <QVariantMap>

// The desktop's file panels as far as a program knows of them: what they are asked for, and what somebody picks in
// them. They live in a process of their own, from before the application object is made, which looks for them then.
class Panels
{
public:
    /// On the bus at an address. The process that returns is that of the tests.
    explicit Panels(const QString& bus);
    ~Panels();
    Panels(const Panels&) = delete;
    Panels& operator=(const Panels&) = delete;

    /// Waits until the toolkit knows that there are panels, and answers whether it does.
    static bool Are_Known();

    /// What is picked in the next ones; an empty path where one is cancelled. One for which there is none stays open.
    static void Will_Pick(const QStringList& paths);
    /// What each was asked for since then: its options, and as "what" "OpenFile" or "SaveFile".
    static QList<QVariantMap> Asked();

private:
    int m_process = 0;
};
