#include "toolkit/Program_Style.h"

#include "toolkit/Activity_Bar.h"
#include "toolkit/Key_Marks.h"
#include "toolkit/Look_Tokens.h"
#include "toolkit/Style_Bars.h"
#include "toolkit/Style_Buttons.h"
#include "toolkit/Style_Cards.h"
#include "toolkit/Style_Fields.h"
#include "toolkit/Style_Icons.h"
#include "toolkit/Style_Paint.h"
#include "toolkit/Style_Tables.h"

#include <QDialogButtonBox>
#include <QFrame>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QStyleOption>
#include <QTableView>
#include <QTextEdit>
#include <QTreeView>

using Style_Paint::Scaled;

namespace {

bool Is_Table(const QWidget* widget)
{
    return qobject_cast<const QTableView*>(widget);
}

bool Is_Area(const QWidget* widget)
{
    // The lists are those of the panel for files: the choices of a box have the box's frame.
    return qobject_cast<const QPlainTextEdit*>(widget) || qobject_cast<const QTextEdit*>(widget) || Is_Table(widget) ||
           qobject_cast<const QTreeView*>(widget) ||
           (qobject_cast<const QListView*>(widget) && !widget->inherits("QComboBoxListView"));
}

// Neither an area nor a label, both of which are frames, too.
bool Is_Panel(const QWidget* widget)
{
    return qobject_cast<const QFrame*>(widget) && !qobject_cast<const QAbstractScrollArea*>(widget) &&
           !qobject_cast<const QLabel*>(widget);
}

// Which is told by its ground and its bar, and the table's frame has a ring. A ring around the cell is for a table
// without a frame, and tells which of several rows the keys are at.
bool Is_The_Selected_Row(const QStyleOption& option, const QWidget* widget)
{
    const auto* table = qobject_cast<const QTableView*>(widget);
    if (!table || table->frameShape() == QFrame::NoFrame || !(option.state & QStyle::State_Selected))
        return false;
    const QItemSelection selected = table->selectionModel()->selection();
    return selected.size() == 1 && selected.constFirst().height() == 1;
}

template <class Option>
const Option* As(const QStyleOption* option)
{
    return qstyleoption_cast<const Option*>(option);
}

} // namespace

Program_Style::Program_Style() : QProxyStyle(QStringLiteral("Fusion")) {}

// By default a label guesses whether its text is markup, and the text may come from a device or from a file's name.
// This also covers tool tips and the toolkit's own boxes and panels, whose labels are not ours to make.
void Program_Style::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    auto* label = qobject_cast<QLabel*>(widget);
    if (label && label->textFormat() == Qt::AutoText)
        label->setTextFormat(Qt::PlainText);
    if (label && label->property("is_soft").toBool())
        label->setForegroundRole(QPalette::PlaceholderText);
    auto* area = qobject_cast<QAbstractScrollArea*>(widget);
    if (auto* table = qobject_cast<QTableView*>(widget)) // no box in a box
        table->setFrameShape(Style_Paint::Is_On_A_Card(*table) ? QFrame::NoFrame : QFrame::StyledPanel);
    else if (area && Is_Area(area) && area->frameShape() == QFrame::StyledPanel)
        area->setFrameStyle(area->frameStyle()); // its frame was measured before it was an area
    else if (area && qobject_cast<QPlainTextEdit*>(widget) && area->frameShape() == QFrame::NoFrame)
        area->viewport()->setAutoFillBackground(false); // it only shows something, on the ground that it lies on
}

int Program_Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return Scaled(16, option);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return Scaled(8, option);
    case PM_ScrollBarExtent:
        return Scaled(12, option);
    case PM_ScrollBarSliderMin:
        return Scaled(28, option);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_DefaultFrameWidth:
        return Is_Table(widget) ? 4 : Is_Area(widget) ? 3 : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return 14;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return 8;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return Scaled(4, option);
    case PM_HeaderMargin:
        return 9; // its words are in line with those of the cells
    case PM_FocusFrameHMargin:
        return Is_Table(widget) ? 8 : QProxyStyle::pixelMetric(metric, option, widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Program_Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_ScrollBar_Transient:
    case SH_EtchDisabledText:
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_DialogButtonLayout: // as in the program's own forms: what is first stands last
        return QDialogButtonBox::GnomeLayout;
    case SH_UnderlineShortcut:
        return Key_Marks::Are_Shown_In(widget);
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QSize Program_Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                      const QWidget* widget) const
{
    if (type == CT_PushButton) {
        if (const auto* button = As<QStyleOptionButton>(option); button && button->icon.isNull())
            return Style_Buttons::Size_Of(*button, widget);
    }
    const QSize fitting = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_LineEdit: // a fact needs no room around it
        return QSize(size.width() + 2 * Scaled(8, option),
                     size.height() + 2 * Scaled(option->state & State_ReadOnly ? 2 : 7, option));
    case CT_ComboBox:
        return QSize(size.width() + Scaled(40, option), size.height() + 2 * Scaled(7, option));
    case CT_CheckBox:
    case CT_RadioButton:
        return fitting + QSize(0, Scaled(2, option));
    case CT_MenuItem:
        if (const auto* item = As<QStyleOptionMenuItem>(option);
            item && item->menuItemType != QStyleOptionMenuItem::Separator)
            return fitting + QSize(Scaled(14, option), Scaled(8, option));
        return fitting;
    case CT_HeaderSection:
        return fitting.expandedTo(QSize(0, option->fontMetrics.height() + Scaled(14, option)));
    default:
        return fitting;
    }
}

QRect Program_Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents) {
        if (const auto* line = As<QStyleOptionFrame>(option))
            return visualRect(line->direction, line->rect, Style_Fields::Words_Of_Line(*line));
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect Program_Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                    const QWidget* widget) const
{
    if (const auto* box = As<QStyleOptionComboBox>(option); box && control == CC_ComboBox) {
        if (part == SC_ComboBoxEditField)
            return visualRect(box->direction, box->rect, Style_Fields::Words_Of_Combo(*box));
        if (part == SC_ComboBoxArrow)
            return visualRect(box->direction, box->rect, Style_Fields::Arrow_Of_Combo(*box));
    }
    if (const auto* group = As<QStyleOptionGroupBox>(option); group && control == CC_GroupBox) {
        if (part == SC_GroupBoxContents)
            return Style_Cards::Room_Of_Group(*group, widget);
        if (part == SC_GroupBoxLabel)
            return visualRect(group->direction, group->rect, Style_Cards::Heading_Of_Group(*group, widget));
        if (part == SC_GroupBoxFrame)
            return group->rect;
    }
    if (const auto* bar = As<QStyleOptionSlider>(option); bar && control == CC_ScrollBar) {
        const QRect handle = Style_Bars::Handle_Of(*bar);
        const bool is_flat = bar->orientation == Qt::Horizontal;
        QRect place = bar->rect;
        if (part == SC_ScrollBarAddLine || part == SC_ScrollBarSubLine)
            return {};
        if (part == SC_ScrollBarSlider)
            place = handle;
        else if (part == SC_ScrollBarSubPage)
            is_flat ? place.setRight(handle.left() - 1) : place.setBottom(handle.top() - 1);
        else if (part == SC_ScrollBarAddPage)
            is_flat ? place.setLeft(handle.right() + 1) : place.setTop(handle.bottom() + 1);
        return visualRect(bar->direction, bar->rect, place);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QIcon Program_Style::standardIcon(StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const
{
    const QIcon own = Style_Icons::Icon_Of(standard);
    return own.isNull() ? QProxyStyle::standardIcon(standard, option, widget) : own;
}

void Program_Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        if (const auto* button = As<QStyleOptionButton>(option))
            return Style_Buttons::Draw_Panel(*button, *painter, widget);
        break;
    case PE_IndicatorCheckBox:
        return Style_Buttons::Draw_Check_Mark(*option, *painter);
    case PE_IndicatorRadioButton:
        return Style_Buttons::Draw_Radio_Mark(*option, *painter);
    case PE_PanelLineEdit:
        if (const auto* line = As<QStyleOptionFrame>(option))
            return Style_Fields::Draw_Line(*line, *painter, widget);
        break;
    case PE_FrameFocusRect:
        if (option->state & State_KeyboardFocusChange && !Is_The_Selected_Row(*option, widget))
            Style_Paint::Draw_Focus(*painter, option->rect, Style_Paint::Mark_Radius);
        return;
    case PE_PanelMenu:
        return Style_Paint::Draw_Box(*painter, option->rect,
                                     {.fill = Tokens_Now().card, .line = Tokens_Now().outline, .radius = 0});
    case PE_FrameMenu:
        return Style_Paint::Draw_Box(*painter, option->rect, {.fill = {}, .line = Tokens_Now().outline, .radius = 0});
    case PE_PanelItemViewRow:
        if (const auto* row = As<QStyleOptionViewItem>(option); row && Is_Table(widget))
            return Style_Tables::Draw_Row(*row, *painter);
        break;
    case PE_PanelItemViewItem:
        if (const auto* cell = As<QStyleOptionViewItem>(option); cell && Is_Table(widget))
            return Style_Tables::Draw_Mark_Of_Row(*cell, *painter); // the row is its ground
        break;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

// Answers no for what Fusion draws.
bool Program_Style::Draws_Label_Or_Row(ControlElement element, const QStyleOption* option, QPainter* painter,
                                       const QWidget* widget) const
{
    const auto* button = As<QStyleOptionButton>(option);
    if (button && element == CE_PushButton && button->icon.isNull()) {
        Style_Buttons::Draw_Panel(*button, *painter, widget);
        Style_Buttons::Draw_Label(*button, *painter, widget);
        Style_Buttons::Draw_Focus_Of(*button, *painter, widget);
        return true;
    }
    const auto* cell = As<QStyleOptionViewItem>(option);
    if (cell && element == CE_ItemViewItem && Is_Table(widget)) {
        const QStyleOptionViewItem own = Style_Tables::On_Its_Row(*cell);
        QProxyStyle::drawControl(element, &own, painter, widget);
        return true;
    }
    if (const auto* item = As<QStyleOptionMenuItem>(option); item && element == CE_MenuItem) {
        QStyleOptionMenuItem own = *item; // chosen like a row
        own.palette.setColor(QPalette::Highlight, Tokens_Now().chosen);
        own.palette.setColor(QPalette::HighlightedText, Tokens_Now().ink);
        QProxyStyle::drawControl(element, &own, painter, widget);
        return true;
    }
    const auto* heading = As<QStyleOptionHeader>(option);
    if (heading && element == CE_HeaderLabel) {
        const QStyleOptionHeaderV2 own = Style_Tables::In_Soft_Words(*heading);
        QProxyStyle::drawControl(element, &own, painter, widget);
        return true;
    }
    return false;
}

void Program_Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    if (Draws_Label_Or_Row(element, option, painter, widget))
        return;
    switch (element) {
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        return Style_Tables::Draw_Heading_Ground(*option, *painter);
    case CE_ShapedFrame:
        if (const auto* frame = As<QStyleOptionFrame>(option); frame && frame->frameShape == QFrame::StyledPanel) {
            if (Is_Area(widget))
                return Style_Fields::Draw_Area(*option, *painter, *widget);
            if (Is_Panel(widget))
                return Style_Cards::Draw_Panel(*option, *painter, *widget);
        }
        break;
    case CE_ProgressBarGroove:
        if (const auto* bar = As<QStyleOptionProgressBar>(option))
            return Style_Bars::Draw_Groove(*bar, *painter);
        break;
    case CE_ProgressBarContents:
        if (const auto* bar = As<QStyleOptionProgressBar>(option); bar && bar->maximum > bar->minimum)
            return Style_Bars::Draw_Done(*bar, *painter);
        else if (const auto* busy = qobject_cast<const Activity_Bar*>(widget); bar && busy)
            return Style_Bars::Draw_Busy(*bar, *painter, busy->Round_Done());
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Program_Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                       const QWidget* widget) const
{
    if (const auto* box = As<QStyleOptionComboBox>(option); box && control == CC_ComboBox)
        Style_Fields::Draw_Combo(*box, *painter);
    else if (const auto* group = As<QStyleOptionGroupBox>(option);
             group && control == CC_GroupBox && !(group->subControls & SC_GroupBoxCheckBox))
        Style_Cards::Draw_Group(*group, *painter, widget);
    else if (const auto* bar = As<QStyleOptionSlider>(option); bar && control == CC_ScrollBar)
        Style_Bars::Draw_Scroll_Bar(*bar, *painter);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}
