#pragma once

#include <QString>
#include <Qt>
#include <functional>
#include <optional>
#include <vector>

// Finding and sorting the rows of a list, for whoever shows it: the list itself stays as it is.

// The rows of a list as texts, in a state that does not change while they are searched, by one thread at a time.
struct Row_Source
{
    int rows = 0;
    int columns = 0;
    std::function<QString(int column, int row)> cell;     ///< for indexes from 0 on
    std::function<QString(int column, int row)> key = {}; ///< what a cell is sorted by, where that is not its text
};

// Which rows are wanted, and in what order.
struct Row_Wish
{
    QString words;   ///< a row is wanted that has each of them in one of its cells; without words every row is
    int column = -1; ///< by which the rows are sorted; as in the list for one that the source does not have
    Qt::SortOrder order = Qt::AscendingOrder;

    bool operator==(const Row_Wish&) const = default;
};

/// Whether these are more or less than all rows as they stand in the list.
bool Is_A_Wish(const Row_Wish& wish);

/// The indexes of the wanted rows. Capitals and small letters count as the same, and a number with "+" is found as it
/// is kept, with "00"; rows whose texts are the same keep the order of the list. Nothing when is_stopped, which is
/// asked every now and then, has answered yes.
std::optional<std::vector<int>> Rows_Found(const Row_Source& source, const Row_Wish& wish,
                                           const std::function<bool()>& is_stopped);
