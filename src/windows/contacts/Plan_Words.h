#pragma once

#include "plan/Job_Plan.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>

// What the sheet says about a plan. Any thread.
class Plan_Words
{
    Q_DECLARE_TR_FUNCTIONS(Plan_Words)

public:
    static QString Of_Verdict(Row_Verdict verdict);
    /// The same behind a sign.
    static QString Signed_Verdict(Row_Verdict verdict);
    static QStringList Signed_Verdicts(); ///< each of them
    /// How many are to be sent, in how many parts, how long that takes, and what is left out and why. The job would
    /// begin now, and take so many seconds.
    static QString Sums(const Plan_Sums& sums, double seconds, const QDateTime& now);
    /// Which characters make messages Unicode; empty where none does.
    static QString Causes(const Plan_Sums& sums);
};
