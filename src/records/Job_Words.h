#pragma once

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <optional>

/// What a person decides about a row that may have been sent.
enum class Job_Decision
{
    Send_Again,
    Count_As_Sent
};

// What the lines of a journal begin with, and the words that both its writer and its reader know.
namespace Job_Words {

constexpr char Handing_Over = 'H';
constexpr char Accepted = 'S';
constexpr char Refused = 'E';
constexpr char Unknown = 'U';
constexpr char Skipped = 'K';
constexpr char Report = 'D';
constexpr char Decision = 'R';
constexpr char End = 'Z';

/// Stands in front of the cause of a refusal after which the part is to be tried again.
inline constexpr QLatin1String To_Be_Tried_Again("again:");

/// The field of a decision: what was decided, and, behind a colon, by whom or through what.
QString Text_Of(Job_Decision decision, const QString& who);
std::optional<Job_Decision> Decision_Of(const QString& text);

/// The header's last field, where it is there: whether the job's files stay when it has ended.
QByteArray Text_Of_Keeping(bool keeps_receipt);
std::optional<bool> Keeping_Of(QByteArrayView field);

} // namespace Job_Words
