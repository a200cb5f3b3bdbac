#pragma once

#include "engine/Row_Outcome.h"

#include <QString>
#include <QStringList>

// How a person is told what became of a recipient's message. Any thread.

/// In a few words on one line, "refused (500: unknown error)".
QString Outcome_Words(const Row_Outcome& outcome);

/// The same behind a sign that can be told from the others at a glance, "✗ refused (500: unknown error)".
QString Signed_Outcome(const Row_Outcome& outcome);

/// Why a row was not filled or does not fit its table, by one of Skip_Words as jobs write it: "a placeholder is empty".
/// Empty for any other word.
QString Words_For_Skip(const QString& word);

/// One of each kind, with their signs: what a column for them needs room for.
QStringList Usual_Signed_Outcomes();

/// Whether nothing of the message was taken, certainly, so that it arrives once if it is sent again. Whoever is to be
/// left out does not count.
inline bool Was_Not_Taken(Row_State state)
{
    return state == Row_State::Refused || state == Row_State::Not_Tried;
}
