#pragma once

#include "send/Arguments.h"
#include "send/Planned_Row.h"
#include "send/Row_Preview.h"

#include <QByteArrayList>

// Writes the planned messages for another program to send: in a folder, list.csv with all of them, and in spool/ one
// file for each as smstools3 reads it. The list is written last, so that a hand-over with one is whole. One thread.
class Hand_Over
{
public:
    explicit Hand_Over(const Arguments& arguments) : m_arguments(arguments) {}

    /// Makes the folder. What an earlier hand-over left there is not added to.
    Trouble Begin();
    /// Writes a message that is to be sent.
    Trouble Add(const Planned_Row& row, const Row_Preview& preview);
    Trouble End();

private:
    QByteArray Spool_File(const Planned_Row& row, const Row_Preview& preview) const;

    const Arguments& m_arguments;
    QByteArray m_list;
};
