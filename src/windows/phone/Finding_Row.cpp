#include "windows/phone/Finding_Row.h"

#include "doctor/Finding.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

QLabel* Made_Text(const char* name, const QString& text)
{
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setText(text);
    return label;
}

QLineEdit* Made_Command(const QString& command)
{
    auto* field = new QLineEdit(command);
    field->setObjectName(QStringLiteral("finding_command"));
    field->setAccessibleName(QCoreApplication::translate("Finding_Row", "Command to copy"));
    field->setReadOnly(true);
    field->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return field;
}

} // namespace

QWidget* Made_Finding_Row(const Finding& finding, QWidget* parent)
{
    auto* row = new QWidget(parent);
    row->setObjectName(QStringLiteral("finding_row"));
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* sign = new QLabel(Sign_Of(finding.mark));
    sign->setObjectName(QStringLiteral("finding_sign"));
    sign->setTextFormat(Qt::PlainText);
    sign->setAccessibleName(Word_Of(finding.mark));
    QFont bold = sign->font();
    bold.setBold(true);
    sign->setFont(bold);
    sign->setFixedWidth(QFontMetrics(bold).horizontalAdvance(QStringLiteral("WW")));
    layout->addWidget(sign, 0, Qt::AlignTop);

    auto* words = new QVBoxLayout;
    auto* sentence = Made_Text("finding_sentence", finding.sentence);
    sentence->setAccessibleName(Word_Of(finding.mark) + QStringLiteral(": ") + finding.sentence);
    words->addWidget(sentence);
    if (!finding.remedy.isEmpty())
        words->addWidget(Made_Text("finding_remedy", finding.remedy));
    if (!finding.command.isEmpty())
        words->addWidget(Made_Command(finding.command));
    layout->addLayout(words, 1);
    return row;
}
