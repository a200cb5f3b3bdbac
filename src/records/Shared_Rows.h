#pragma once

#include "platform/Interface_Thread.h"

#include <QList>
#include <utility>
#include <vector>

// The rows of a list window: a list whose copies cost nothing, so that a worker can read a copy of what the window
// shows and build the list that replaces it.

/// The rows that remain without the removed ones, which are given in ascending order. For a worker when there are many.
template <typename Row>
QList<Row> Rows_Without(const QList<Row>& rows, const std::vector<int>& removed)
{
    QList<Row> left;
    left.reserve(rows.size() - static_cast<qsizetype>(removed.size()));
    auto next = removed.begin();
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (next != removed.end() && *next == row)
            ++next;
        else
            left.append(rows.at(row));
    }
    return left;
}

/// Replaces the rows shown by new ones. Releasing a million rows takes time, so a worker does it.
template <typename List>
void Put_In_Place(List& shown, List rows)
{
    std::swap(shown, rows);
    if (rows.size() > 10'000)
        Start_Worker("let go of rows", [old_rows = std::move(rows)] {});
}
