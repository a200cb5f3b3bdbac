#pragma once

#include "plan/Plan_Manner.h"
#include "plan/Planned_Row.h"
#include "plan/Row_Preview.h"

#include <QByteArrayList>

/// Why planned messages cannot be handed over. None as long as what is empty.
struct Hand_Over_Trouble
{
    QString what;
    QString why;

    explicit operator bool() const { return !what.isEmpty(); }
};

// Writes the planned messages for another program to send: in a folder, list.csv with all of them, and in spool/ one
// file for each as smstools3 reads it. The list is written last, so that a hand-over with one is whole. One thread.
class Hand_Over
{
public:
    Hand_Over(const QString& folder, const Plan_Manner& manner) : m_folder(folder), m_manner(manner) {}

    /// Makes the folder. What an earlier hand-over left there is not added to.
    Hand_Over_Trouble Begin();
    /// Writes a message that is to be sent.
    Hand_Over_Trouble Add(const Planned_Row& row, const Row_Preview& preview);
    Hand_Over_Trouble End();

private:
    QByteArray Spool_File(const Planned_Row& row, const Row_Preview& preview) const;

    QString m_folder;
    Plan_Manner m_manner;
    QByteArray m_list;
};
