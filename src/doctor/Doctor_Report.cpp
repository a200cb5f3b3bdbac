#include "doctor/Doctor_Report.h"

#include "doctor/Small_Files.h"
#include "platform/One_Line.h"
#include "texts/Doctor_Texts.h"

#include <QRegularExpression>

namespace T = Texts::Doctor;

namespace {

// The name of a device by its serial number, of which a sentence may show the ends alone, goes as a whole.
QString Without_Serial_Number(QString text, const QString& path)
{
    if (path.contains(QLatin1String("/serial/by-id/")))
        text.replace(Short_Path(path), T::Hidden_Number);
    return text;
}

} // namespace

// Six digits in a row, or apart by signs, as a person writes a number.
QString Without_Numbers(const QString& text)
{
    static const QRegularExpression by_id(QStringLiteral(R"(/dev/serial/by-id/[^\s)]*)"));
    static const QRegularExpression number(QStringLiteral(R"(\+?\p{Nd}(?:[ .\-/()]{0,2}\p{Nd}){5,})"));
    QString left = text;
    return left.replace(by_id, T::Hidden_Number).replace(number, T::Hidden_Number);
}

Finding Without_Numbers(Finding finding)
{
    // The number of a process is nobody's, and whoever is to end that needs it.
    static const QRegularExpression process(QStringLiteral(R"(\([^()\p{Nd}]*\p{Nd}{1,7}\)\.$)"));
    QString kept;
    if (finding.check == Finding::Check::Holder)
        kept = process.match(finding.sentence).captured();
    finding.sentence.chop(kept.size());
    for (QString* words : {&finding.sentence, &finding.remedy, &finding.command})
        *words = Without_Numbers(Without_Serial_Number(On_One_Line(*words), finding.port));
    finding.sentence += kept;
    return finding;
}

QString Doctor_Report(const QList<Finding>& findings)
{
    QStringList lines{T::Report_Title};
    for (const Finding& finding : findings) {
        const Finding told = Without_Numbers(finding);
        QStringList words{told.sentence, told.remedy, told.command};
        words.removeAll(QString());
        lines.append(Sign_Of(told.mark) + QStringLiteral(" ") + Word_Of(told.mark) + QStringLiteral(": ") +
                     words.join(u' '));
    }
    return lines.join(u'\n') + u'\n';
}
