#include "toolkit/Empty_List_Hint.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int Gap = 8;

QPushButton* Made_Step(const QString& name)
{
    auto* step = new QPushButton;
    step->setObjectName(name);
    step->setFlat(true);
    step->setAutoDefault(false);
    step->setFocusPolicy(Qt::NoFocus);
    step->setCursor(Qt::PointingHandCursor);
    QFont link = step->font();
    link.setUnderline(true);
    step->setFont(link);
    return step;
}

} // namespace

Empty_List_Hint::Empty_List_Hint(QTableView& table, const QString& step_name)
    : QWidget(table.viewport()), m_table(table), m_words(new QLabel), m_step(Made_Step(step_name))
{
    m_words->setTextFormat(Qt::PlainText);
    m_words->setAlignment(Qt::AlignCenter);
    m_words->setWordWrap(true);
    m_words->setProperty("is_soft", true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    column->addWidget(m_words);
    column->addWidget(m_step, 0, Qt::AlignHCenter);
    hide();
    connect(m_step, &QPushButton::clicked, this, &Empty_List_Hint::Step_Wanted);
    const auto* model = table.model();
    for (const auto changed : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(model, changed, this, &Empty_List_Hint::Show_Or_Hide);
    connect(model, &QAbstractItemModel::modelReset, this, &Empty_List_Hint::Show_Or_Hide);
    table.viewport()->installEventFilter(this);
}

void Empty_List_Hint::Say(const QString& words, const QString& offer)
{
    m_words->setText(words);
    m_step->setText(offer);
    Show_Or_Hide();
}

void Empty_List_Hint::Hold_True(bool are_true)
{
    m_are_true = are_true;
    Show_Or_Hide();
}

void Empty_List_Hint::Show_Or_Hide()
{
    const bool is_shown = m_are_true && m_table.model()->rowCount() == 0;
    m_table.setAccessibleDescription(is_shown ? m_words->text() : QString());
    setVisible(is_shown);
    Lie_In_The_Middle();
}

bool Empty_List_Hint::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        Lie_In_The_Middle();
    return false;
}

// Where there is no room for the words there is the step alone, and where there is none for that there is nothing.
void Empty_List_Hint::Lie_In_The_Middle()
{
    const QSize room = parentWidget()->size() - QSize(2 * Gap, 2 * Gap);
    const QSize step = m_step->text().isEmpty() ? QSize(0, 0) : m_step->sizeHint();
    const int width = std::min(room.width(), std::max(m_words->sizeHint().width(), step.width()));
    const int words_height = m_words->heightForWidth(width);
    const bool has_room_for_step = !step.isEmpty() && step.width() <= room.width() && step.height() <= room.height();
    const bool has_room_for_words = m_words->minimumSizeHint().width() <= width && step.width() <= room.width() &&
                                    words_height + Gap + step.height() <= room.height();
    m_step->setVisible(has_room_for_step);
    m_words->setVisible(has_room_for_words);
    const int height = (has_room_for_words ? words_height : 0) + (has_room_for_step ? step.height() : 0) +
                       (has_room_for_words && has_room_for_step ? Gap : 0);
    setGeometry((parentWidget()->width() - width) / 2, (parentWidget()->height() - height) / 2, width, height);
}
