#include "windows/contacts/Fields_Strip.h"

#include "platform/One_Line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>

namespace {

constexpr qsizetype Longest_Name = 10; // characters of each field
constexpr qsizetype Most_Named = 18;   // characters of all of them

// As many as fit; the tool tip has them all.
QString In_Words(const QStringList& names)
{
    QStringList words;
    qsizetype characters = 0;
    for (const QString& name : names) {
        const QString line = On_One_Line(name);
        const QString word = line.size() > Longest_Name ? line.left(Longest_Name - 1) + u'\u2026' : line;
        characters += word.size();
        if (!words.isEmpty() && characters > Most_Named)
            return Fields_Strip::tr("%1 and %2 more")
                .arg(words.join(QLatin1String(", ")))
                .arg(names.size() - words.size());
        words.append(word);
    }
    return words.join(QLatin1String(", "));
}

} // namespace

Fields_Strip::Fields_Strip(QWidget* parent)
    : Quiet_Strip("Fields_Strip", parent), m_fields(Made_Label("_List_Fields")),
      m_save(Made_Button("Save_With_Fields", tr("Save with fields ..."),
                         tr("Write the list with its messages and fields into a table that can be opened again")))
{
    setAccessibleName(tr("Fields of the list"));
    // As those of other strips: beside a height that depends on the width, layouts cut what is below and beside it.
    m_fields->setWordWrap(false);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(14, 4, 4, 4);
    row->setSpacing(4);
    row->addWidget(m_fields, 1);
    m_save->setFlat(true);
    row->addWidget(m_save, 0, Qt::AlignVCenter);
    connect(m_save, &QPushButton::clicked, this, &Fields_Strip::Save_Wanted);
    hide();
}

void Fields_Strip::Show_Fields(const QStringList& names)
{
    m_fields->setText(names.isEmpty() ? QString() : tr("Fields: %1").arg(In_Words(names)));
    m_fields->setToolTip(Qt::convertFromPlainText(names.join(QLatin1String(", "))));
    setVisible(true);
}

void Fields_Strip::setVisible(bool visible)
{
    QWidget::setVisible(visible && !m_fields->text().isEmpty());
}
