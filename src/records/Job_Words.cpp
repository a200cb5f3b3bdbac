#include "records/Job_Words.h"

namespace {

QString Word_Of(Job_Decision decision)
{
    return decision == Job_Decision::Send_Again ? QStringLiteral("send-again:") : QStringLiteral("count-as-sent:");
}

constexpr QByteArrayView Keeps_Receipt("keep:yes");
constexpr QByteArrayView Keeps_None("keep:no");

} // namespace

QString Job_Words::Text_Of(Job_Decision decision, const QString& who)
{
    return Word_Of(decision) + who;
}

std::optional<Job_Decision> Job_Words::Decision_Of(const QString& text)
{
    for (const Job_Decision decision : {Job_Decision::Send_Again, Job_Decision::Count_As_Sent}) {
        if (text.startsWith(Word_Of(decision)))
            return decision;
    }
    return std::nullopt;
}

QByteArray Job_Words::Text_Of_Keeping(bool keeps_receipt)
{
    return (keeps_receipt ? Keeps_Receipt : Keeps_None).toByteArray();
}

std::optional<bool> Job_Words::Keeping_Of(QByteArrayView field)
{
    return field == Keeps_Receipt || field == Keeps_None ? std::optional(field == Keeps_Receipt) : std::nullopt;
}
