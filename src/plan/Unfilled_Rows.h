#pragma once

#include <QString>

class Job_Plan;

// The rows of a plan that get nothing because of their fields: their placeholders leave no text that can be sent. A
// value; any thread.
struct Unfilled_Rows
{
    int count = 0;
    /// What is wrong with the first of them, "{{Name}} is empty".
    QString reason = {};
    /// Where all of them have the same fault: the name in its placeholder. Otherwise empty.
    QString name = {};
    bool is_unknown = false; ///< that name, rather than empty for them

    bool operator==(const Unfilled_Rows&) const = default;

    /// "3 recipients have no Name: they get nothing."; empty for none.
    QString In_Words() const;
};

Unfilled_Rows Unfilled_Rows_Of(const Job_Plan& plan);
