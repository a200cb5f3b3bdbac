#pragma once

#include <QStringList>
#include <vector>

/// A sheet of a workbook.
struct Named_Sheet
{
    QString name;
    bool is_hidden = false;
};

QStringList Names_Of(const std::vector<Named_Sheet>& sheets);

struct Chosen_Sheet
{
    int index = -1;
    QString trouble; ///< why there is none; lists those that there are
};

/// The sheet of this name, case and blanks at its ends ignored where none is exactly that; without a name the first
/// that is not hidden, else the first.
Chosen_Sheet Choose_Sheet(const std::vector<Named_Sheet>& sheets, const QString& name);
