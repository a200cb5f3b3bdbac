#include "send/Word_Printer.h"

#include "platform/One_Line.h"
#include "send/Json_Printer.h"
#include "send/Output.h"

namespace {

constexpr qsizetype Longest_Progress = 79; // on a terminal that wraps, a longer one would stay

QString Counted(qint64 count, const char* what)
{
    return QString::number(count) + QLatin1Char(' ') + QLatin1String(what) + QLatin1String(count == 1 ? "" : "s");
}

// What there is none of is left out.
QString Counts(std::initializer_list<std::pair<int, const char*>> counts)
{
    QStringList words;
    for (const auto& [count, what] : counts)
        if (count > 0)
            words.append(QString::number(count) + QLatin1Char(' ') + QLatin1String(what));
    return words.isEmpty() ? QStringLiteral("nothing sent") : words.join(QLatin1String(", "));
}

QString Row_And_Number(int row, const QString& number)
{
    return QString::number(row) + QLatin1String("  ") + number + QLatin1String("  ");
}

} // namespace

// Whatever a text holds, it stays on its line and does nothing to a terminal.
void Word_Printer::Print(const QString& line)
{
    QString shown = On_One_Line(line);
    for (QChar& character : shown)
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    m_output.Line(shown.toUtf8());
}

void Word_Printer::Job(const Job_Facts& job)
{
    Print(QStringLiteral("Job %1: %2, %3, about %4%5")
              .arg(job.id, Counted(job.recipients, "recipient"), Counted(job.parts, "part"),
                   Counted(job.seconds, "second"), job.fixed_waits ? QStringLiteral(", by fixed waits") : QString()));
}

void Word_Printer::Row(const Planned_Row& row, const Row_Preview& preview)
{
    QString line = Row_And_Number(row.row, row.number);
    if (row.Is_To_Be_Sent())
        line +=
            QStringLiteral("send  %1, %2%3")
                .arg(Counted(preview.parts, "part"),
                     Counted(preview.units, preview.alphabet == Job_Alphabet::Ucs2 ? "UTF-16 unit" : "septet"),
                     preview.changed.empty()
                         ? QString()
                         : QStringLiteral(", ") + Counted(static_cast<qint64>(preview.changed.size()), "character") +
                               QStringLiteral(" changed"));
    else
        line += row.skipped;
    if (!row.note.isEmpty())
        line += QLatin1String(" (") + row.note + QLatin1Char(')');
    Print(line + QLatin1String("  ") + (preview.shown.isEmpty() ? row.text : preview.shown));
}

void Word_Printer::Plan(const Plan_Facts& plan)
{
    Print(QStringLiteral("Plan: %1, %2 to be sent, %3, %4 in Unicode, about %5")
              .arg(Counted(plan.recipients, "recipient"), QString::number(plan.send), Counted(plan.parts, "part"),
                   QString::number(plan.unicode), Counted(plan.seconds, "second")));
    if (!plan.table)
        return;
    const Table_Facts& facts = plan.table->facts;
    QString line = QStringLiteral("Table: ") + facts.format;
    if (!facts.encoding.isEmpty())
        line += QStringLiteral(" in ") + facts.encoding;
    if (!facts.delimiter.isEmpty())
        line += QStringLiteral(", \"%1\" between fields").arg(facts.delimiter);
    if (!facts.sheet.isEmpty())
        line += QStringLiteral(", sheet \"%1\"").arg(facts.sheet);
    Print(line + QStringLiteral(", numbers in \"%1\"").arg(plan.table->number_column));
}

void Word_Printer::Ended(const Row_End& end)
{
    QString line = Row_And_Number(end.row, end.number) + end.outcome;
    if (!end.reason.isEmpty())
        line += QLatin1String(": ") + end.reason;
    if (end.cause && end.cause->number >= 0)
        line +=
            QStringLiteral(" (%1 %2)")
                .arg(end.cause->kind == Device_Cause::Kind::Cme ? "CME" : "CMS", QString::number(end.cause->number));
    Print(line + (end.is_earlier ? QStringLiteral(" (earlier)") : QString()));
}

void Word_Printer::Held(const QString& reason)
{
    Print(QStringLiteral("Held: ") + reason);
}

void Word_Printer::Goes_On()
{
    Print(QStringLiteral("The job goes on."));
}

void Word_Printer::Report(const Report_Facts& report)
{
    Print(Row_And_Number(report.row, report.number) +
          QStringLiteral("report: part %1 %2").arg(QString::number(report.part), report.meaning));
}

void Word_Printer::End(const End_Facts& end)
{
    Print(QStringLiteral("End: %1, after %2")
              .arg(Counts({{end.sent, "sent"},
                           {end.written, "written"},
                           {end.refused, "refused"},
                           {end.unknown, "unknown"},
                           {end.skipped, "skipped"},
                           {end.not_tried, "not tried"}}),
                   Counted(end.seconds, "second")));
}

void Word_Printer::Unfinished(const Unfinished_Job& job)
{
    if (job.trouble != Job_Trouble::None) {
        Print(job.id + QLatin1String("  ") + Job_Trouble_Sentence(job.trouble));
        return;
    }
    Print(job.id + QLatin1String("  ") + Counted(job.counts.rows, "recipient") + QLatin1String(": ") +
          Counts({{job.counts.sent, "sent"},
                  {job.counts.refused, "refused"},
                  {job.counts.unknown, "unknown"},
                  {job.counts.skipped, "skipped"},
                  {job.counts.not_tried, "not tried"}}) +
          (job.is_in_use ? QStringLiteral(" (a program works on it)") : QString()));
}

void Word_Printer::Found(const Finding& finding)
{
    Print(Sign_Of(finding.mark) + QLatin1String("  ") + finding.sentence);
    for (const QString& help : {finding.remedy, finding.command})
        if (!help.isEmpty())
            Print(QLatin1String("     ") + help);
}

void Word_Printer::Looked(const QStringList& ready)
{
    Print(ready.isEmpty() ? QStringLiteral("No device could send.")
                          : QStringLiteral("Could send: ") + ready.join(QLatin1String(", ")));
}

void Word_Printer::Progress(const QString& text)
{
    m_output.Show(On_One_Line(text).left(Longest_Progress).toUtf8());
}

std::unique_ptr<Printer> Make_Printer(bool json, Output& output)
{
    if (json)
        return std::make_unique<Json_Printer>(output);
    return std::make_unique<Word_Printer>(output);
}
