#pragma once

#include <QTableView>
#include <algorithm>
#include <cstdlib>

/// Whether the words of a cell are seen in a colour: some of its points have it, but for what smoothing makes of it.
inline bool Shows_Words_In(QTableView& table, const QModelIndex& cell, const QColor& colour)
{
    const QImage seen = table.viewport()->grab(table.visualRect(cell)).toImage();
    constexpr int smoothed = 24;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QColor point = seen.pixelColor(x, y);
            if (std::max({std::abs(point.red() - colour.red()), std::abs(point.green() - colour.green()),
                          std::abs(point.blue() - colour.blue())}) <= smoothed)
                return true;
        }
    }
    return false;
}

/// In letters so large that smoothing leaves some points of them alone.
inline void Enlarge_Letters_Of(QTableView& table)
{
    QFont large = table.font();
    large.setPointSize(30);
    large.setBold(true);
    table.setFont(large);
    table.resizeColumnsToContents();
    table.resizeRowsToContents();
}
