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

QString Doctor_Report(const QList<Finding>& findings)
{
    QStringList lines{T::Report_Title};
    for (const Finding& finding : findings) {
        QStringList words{finding.sentence, finding.remedy, finding.command};
        words.removeAll(QString());
        lines.append(Sign_Of(finding.mark) + QStringLiteral(" ") + Word_Of(finding.mark) + QStringLiteral(": ") +
                     Without_Numbers(Without_Serial_Number(On_One_Line(words.join(u' ')), finding.port)));
    }
    return lines.join(u'\n') + u'\n';
}
