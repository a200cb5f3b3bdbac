#include "windows/contacts/Plan_Words.h"

#include "plan/Time_Words.h"

#include <array>
#include <limits>

namespace {

constexpr std::size_t Most_Named = 6; // characters

struct Verdict_Words
{
    char16_t sign;
    const char* word;
};

// In the order of the verdicts.
constexpr std::array Verdicts{Verdict_Words{u'✓', QT_TRANSLATE_NOOP("Plan_Words", "to be sent")},
                              Verdict_Words{u'–', QT_TRANSLATE_NOOP("Plan_Words", "repeated")},
                              Verdict_Words{u'–', QT_TRANSLATE_NOOP("Plan_Words", "excluded")},
                              Verdict_Words{u'✗', QT_TRANSLATE_NOOP("Plan_Words", "no usable number")},
                              Verdict_Words{u'✗', QT_TRANSLATE_NOOP("Plan_Words", "empty field")},
                              Verdict_Words{u'✗', QT_TRANSLATE_NOOP("Plan_Words", "unknown field")},
                              Verdict_Words{u'✗', QT_TRANSLATE_NOOP("Plan_Words", "too long")},
                              Verdict_Words{u'✗', QT_TRANSLATE_NOOP("Plan_Words", "fields misplaced")}};

// A character as a person sees it: what cannot be seen is named by its number.
QString Shown(char32_t character)
{
    if (QChar::isPrint(character) && !QChar::isSpace(character) && !QChar::isMark(character))
        return QString::fromUcs4(&character, 1);
    return QStringLiteral("U+") + QString::number(character, 16).toUpper().rightJustified(4, u'0');
}

} // namespace

QString Plan_Words::Of_Verdict(Row_Verdict verdict)
{
    return tr(Verdicts[static_cast<std::size_t>(verdict)].word);
}

QString Plan_Words::Signed_Verdict(Row_Verdict verdict)
{
    return QString(QChar(Verdicts[static_cast<std::size_t>(verdict)].sign)) + u' ' + Of_Verdict(verdict);
}

QStringList Plan_Words::Signed_Verdicts()
{
    QStringList words;
    for (std::size_t verdict = 0; verdict < Verdicts.size(); ++verdict)
        words.append(Signed_Verdict(static_cast<Row_Verdict>(verdict)));
    return words;
}

QString Plan_Words::Sums(const Plan_Sums& sums, double seconds, const QDateTime& now)
{
    QString words = sums.send == 1 ? tr("1 message to be sent") : tr("%n messages to be sent", nullptr, sums.send);
    if (sums.send > 0) {
        const int count = static_cast<int>(qMin<qint64>(sums.parts, std::numeric_limits<int>::max()));
        const QString parts = count == 1 ? tr("1 part") : tr("%n parts", nullptr, count);
        words = tr("%1, %2, %3, %4").arg(words, parts, Time_Words::About(seconds), Time_Words::Until(seconds, now));
    }
    QStringList reasons;
    for (std::size_t verdict = 1; verdict < sums.by_verdict.size(); ++verdict) {
        if (sums.by_verdict[verdict] > 0)
            reasons.append(QStringLiteral("%1 %2")
                               .arg(sums.by_verdict[verdict])
                               .arg(Of_Verdict(static_cast<Row_Verdict>(verdict))));
    }
    if (reasons.isEmpty())
        return words + u'.';
    return words + QLatin1String(". ") +
           tr("%n left out: %1.", nullptr, sums.recipients - sums.send).arg(reasons.join(QLatin1String(", ")));
}

QString Plan_Words::Causes(const Plan_Sums& sums)
{
    if (sums.unicode == 0)
        return {};
    QStringList characters;
    for (const Unicode_Cause& cause : sums.causes) {
        if (characters.size() == Most_Named) {
            characters.append(tr("others"));
            break;
        }
        characters.append(QStringLiteral("%1 (%2)").arg(Shown(cause.character)).arg(cause.rows));
    }
    const QString words =
        sums.unicode == 1 ? tr("1 message goes as Unicode") : tr("%n messages go as Unicode", nullptr, sums.unicode);
    return characters.isEmpty() ? words + u'.'
                                : tr("%1, because of %2.").arg(words, characters.join(QLatin1String(", ")));
}
