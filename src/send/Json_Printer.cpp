#include "send/Json_Printer.h"

#include "send/Output.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString Kind_Of(const Device_Cause& cause)
{
    switch (cause.kind) {
    case Device_Cause::Kind::Cms:
        return QStringLiteral("cms");
    case Device_Cause::Kind::Cme:
        return QStringLiteral("cme");
    case Device_Cause::Kind::Error:
    case Device_Cause::Kind::Words:
        break;
    }
    return QStringLiteral("error");
}

QJsonValue Number_Of(const Device_Cause& cause)
{
    return cause.number >= 0 ? QJsonValue(cause.number) : QJsonValue(QJsonValue::Null);
}

QJsonArray Array_Of(const QList<int>& numbers)
{
    QJsonArray array;
    for (const int number : numbers)
        array.append(number);
    return array;
}

QJsonArray Array_Of(const std::vector<Changed_Text>& changes)
{
    QJsonArray array;
    for (const Changed_Text& change : changes)
        array.append(QJsonObject{{"at", change.at}, {"from", change.from}, {"to", change.to}});
    return array;
}

QJsonObject Object_Of(const Table_Told& table)
{
    QJsonObject object{{"format", table.facts.format}, {"number_column", table.number_column}};
    for (const auto& [key, value] : {std::pair("encoding", table.facts.encoding),
                                     {"delimiter", table.facts.delimiter},
                                     {"sheet", table.facts.sheet}})
        if (!value.isEmpty())
            object.insert(QLatin1String(key), value);
    return object;
}

} // namespace

void Json_Printer::Print(const char* event, const QJsonObject& object)
{
    QJsonObject whole = object;
    whole.insert(QLatin1String("event"), QLatin1String(event));
    m_output.Line(QJsonDocument(whole).toJson(QJsonDocument::Compact));
}

void Json_Printer::Job(const Job_Facts& job)
{
    Print("job", {{"job", job.id},
                  {"manner", job.fixed_waits ? "fixed-waits" : "confirmed"},
                  {"recipients", job.recipients},
                  {"parts", job.parts},
                  {"seconds", job.seconds}});
}

void Json_Printer::Row(const Planned_Row& row, const Row_Preview& preview)
{
    QJsonObject object{{"row", row.row},
                       {"number", row.number},
                       {"text", row.text},
                       {"alphabet", preview.alphabet == Job_Alphabet::Ucs2 ? "unicode" : "gsm"},
                       {"units", preview.units},
                       {"parts", preview.parts},
                       {"shown", preview.shown},
                       {"changed", Array_Of(preview.changed)},
                       {"verdict", row.Is_To_Be_Sent() ? QStringLiteral("send") : row.skipped}};
    if (!row.note.isEmpty())
        object.insert(QLatin1String("note"), row.note);
    Print("row", object);
}

void Json_Printer::Plan(const Plan_Facts& plan)
{
    QJsonObject object{{"recipients", plan.recipients},
                       {"send", plan.send},
                       {"parts", plan.parts},
                       {"unicode", plan.unicode},
                       {"seconds", plan.seconds}};
    if (plan.table)
        object.insert(QLatin1String("table"), Object_Of(*plan.table));
    Print("plan", object);
}

void Json_Printer::Ended(const Row_End& end)
{
    QJsonObject object{{"row", end.row},     {"number", end.number},         {"outcome", end.outcome},
                       {"parts", end.parts}, {"parts_sent", end.parts_sent}, {"references", Array_Of(end.references)},
                       {"tries", end.tries}};
    if (!end.reason.isEmpty())
        object.insert(QLatin1String("reason"), end.reason);
    if (end.cause) {
        object.insert(QLatin1String("cause"), Number_Of(*end.cause));
        object.insert(QLatin1String("cause_kind"), Kind_Of(*end.cause));
    }
    if (end.is_earlier)
        object.insert(QLatin1String("earlier"), true);
    Print("outcome", object);
}

void Json_Printer::Held(const QString& reason)
{
    Print("held", {{"reason", reason}});
}

void Json_Printer::Report(const Report_Facts& report)
{
    Print("report", {{"row", report.row},
                     {"number", report.number},
                     {"part", report.part},
                     {"reference", report.reference},
                     {"status", report.status},
                     {"meaning", report.meaning}});
}

void Json_Printer::End(const End_Facts& end)
{
    QJsonObject object{{"sent", end.sent},       {"refused", end.refused},     {"unknown", end.unknown},
                       {"skipped", end.skipped}, {"not_tried", end.not_tried}, {"seconds", end.seconds}};
    if (end.fixed_waits)
        object.insert(QLatin1String("written"), end.written);
    Print("end", object);
}

void Json_Printer::Unfinished(const Unfinished_Job& job)
{
    QJsonObject object{{"job", job.id},
                       {"recipients", job.counts.rows},
                       {"sent", job.counts.sent},
                       {"refused", job.counts.refused},
                       {"unknown", job.counts.unknown},
                       {"skipped", job.counts.skipped},
                       {"not_tried", job.counts.not_tried},
                       {"in_use", job.is_in_use}};
    if (job.trouble != Job_Trouble::None)
        object.insert(QLatin1String("trouble"), Job_Trouble_Sentence(job.trouble));
    Print("unfinished", object);
}

void Json_Printer::Found(const Finding& finding)
{
    QJsonObject object{{"check", Code_Of(finding.check)}, {"mark", Code_Of(finding.mark)}, {"text", finding.sentence}};
    for (const auto& [key, value] :
         {std::pair("device", finding.port), {"remedy", finding.remedy}, {"command", finding.command}})
        if (!value.isEmpty())
            object.insert(QLatin1String(key), value);
    Print("check", object);
}

void Json_Printer::Looked(const QStringList& ready)
{
    Print("looked", {{"ready", QJsonArray::fromStringList(ready)}});
}
