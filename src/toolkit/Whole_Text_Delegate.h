#pragma once

#include <QStyledItemDelegate>

// Paints table cells whose values may be texts of any length, with line breaks: on one line, and no more of a text than
// a screen can be wide. A text that does not fit its cell is shown by a tool tip. Belongs to its table; interface
// thread.
class Whole_Text_Delegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale& locale) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

/// A text as a tool tip shows it: in lines of a readable width, and no more of them than fit on a screen. Ends with an
/// ellipsis if the text goes on.
QString Tool_Tip_Of(const QString& text);
