#pragma once

class QPainter;
class QStyleOption;
class QStyleOptionHeader;
class QStyleOptionHeaderV2;
class QStyleOptionViewItem;

// Tables: rows with hairlines, and headings that are words. Interface thread.

namespace Style_Tables {

void Draw_Row(const QStyleOptionViewItem& option, QPainter& painter);
void Draw_Mark_Of_Row(const QStyleOptionViewItem& cell, QPainter& painter);
void Draw_Heading_Ground(const QStyleOption& option, QPainter& painter);

/// The cell as the row's ground wants it: its words keep their colour in a selected row.
QStyleOptionViewItem On_Its_Row(const QStyleOptionViewItem& cell);
QStyleOptionHeaderV2 In_Soft_Words(const QStyleOptionHeader& heading);

} // namespace Style_Tables
