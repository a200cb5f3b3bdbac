#include "windows/contacts/Contacts_Strip.h"

#include "platform/One_Line.h"
#include "toolkit/Status_Label.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

namespace {

constexpr qsizetype Most_Named = 8;     // fields
constexpr qsizetype Longest_Named = 24; // characters of each

QString In_Words(const QStringList& names)
{
    QStringList words;
    for (const QString& name : names.first(std::min(names.size(), Most_Named))) {
        const QString line = On_One_Line(name);
        words.append(line.size() > Longest_Named ? line.left(Longest_Named) + u'\u2026' : line);
    }
    if (names.size() > Most_Named)
        words.append(Contacts_Strip::tr("and %n more", nullptr, static_cast<int>(names.size() - Most_Named)));
    return words.join(QLatin1String(", "));
}

} // namespace

Contacts_Strip::Contacts_Strip(QWidget* parent)
    : Quiet_Strip("Contacts_Strip", parent), m_fields(Made_Label("_List_Fields")),
      m_save(Made_Button("Save_With_Fields", tr("Save with fields ..."),
                         tr("Write the list with its messages and fields into a table that can be opened again"))),
      m_words(new Status_Label),
      m_show(Made_Button("Show_Rows_Btn", tr("Show ..."), tr("Show these rows, and what is wrong with each"))),
      m_dismiss(Made_Button("Dismiss_Rows_Btn", tr("Dismiss"), tr("Say no more of it")))
{
    m_words->setObjectName(QStringLiteral("_Rows_Words"));
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    for (QPushButton* button : {m_save, m_show, m_dismiss})
        button->setFlat(true);
    setAccessibleName(tr("Fields and rows of the list"));
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(12, 4, 4, 4);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(0, 1);
    grid->addWidget(m_words, 0, 0);
    grid->addWidget(m_show, 0, 1);
    grid->addWidget(m_dismiss, 0, 2);
    grid->addWidget(m_fields, 1, 0);
    grid->addWidget(m_save, 1, 1, 1, 2);
    connect(m_save, &QPushButton::clicked, this, &Contacts_Strip::Save_Wanted);
    connect(m_show, &QPushButton::clicked, this, &Contacts_Strip::Show_Wanted);
    connect(m_dismiss, &QPushButton::clicked, this, [this] { Say({}, false); });
    Show_Fields({});
    Say({}, false);
}

void Contacts_Strip::Show_Fields(const QStringList& names)
{
    m_fields->setText(names.isEmpty() ? QString() : tr("Fields: %1").arg(In_Words(names)));
    m_fields->setVisible(!names.isEmpty());
    m_save->setVisible(!names.isEmpty());
    Appear();
}

void Contacts_Strip::Say(const QString& words, bool has_rows)
{
    m_words->setVisible(!words.isEmpty());
    m_show->setVisible(!words.isEmpty() && has_rows);
    m_dismiss->setVisible(!words.isEmpty());
    Appear();
    m_words->Say(words);
}

void Contacts_Strip::Appear()
{
    setVisible(!m_fields->isHidden() || !m_words->isHidden());
}
