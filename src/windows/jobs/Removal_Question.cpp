#include "windows/jobs/Removal_Question.h"

#include "toolkit/Flow_Layout.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Removal_Question::Removal_Question(QWidget* parent) : QWidget(parent), m_keep(new QPushButton(tr("Keep it")))
{
    setObjectName(QStringLiteral("Removal_Question"));
    auto* question =
        new QLabel(tr("Really remove the job's list and its record from this computer? Nothing more can be "
                      "sent of it then, and it has no receipt any more."));
    question->setObjectName(QStringLiteral("_Question"));
    question->setTextFormat(Qt::PlainText);
    question->setWordWrap(true);
    auto* remove = new QPushButton(tr("Remove for good"));
    m_keep->setObjectName(QStringLiteral("Keep_Btn"));
    remove->setObjectName(QStringLiteral("Remove_For_Good_Btn"));
    auto* buttons = new Flow_Layout(nullptr);
    for (QPushButton* button : {m_keep, remove}) {
        button->setAutoDefault(false);
        button->setAccessibleDescription(question->text());
        buttons->addWidget(button);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(question);
    column->addLayout(buttons);
    connect(m_keep, &QPushButton::clicked, this, [this] {
        hide();
        Q_EMIT Kept();
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        hide();
        Q_EMIT Confirmed();
    });
    hide();
}

void Removal_Question::Ask()
{
    show();
    m_keep->setFocus();
}
