#include "windows/contacts/Fields_Strip.h"

#include "platform/One_Line.h"

#include <QHBoxLayout>
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
        words.append(Fields_Strip::tr("and %1 more").arg(names.size() - Most_Named));
    return words.join(QLatin1String(", "));
}

} // namespace

Fields_Strip::Fields_Strip(QWidget* parent)
    : Quiet_Strip("Fields_Strip", parent), m_fields(Made_Label("_List_Fields")),
      m_save(Made_Button("Save_With_Fields", tr("Save with fields ..."),
                         tr("Write the list with its messages and fields into a table that can be opened again")))
{
    setAccessibleName(tr("Fields of the list"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 4, 4);
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
    setVisible(true);
}

void Fields_Strip::setVisible(bool visible)
{
    QWidget::setVisible(visible && !m_fields->text().isEmpty());
}
