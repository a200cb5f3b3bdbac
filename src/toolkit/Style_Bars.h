#pragma once

#include <QRect>

class QPainter;
class QStyleOptionProgressBar;
class QStyleOptionSlider;

// Bars of progress and for scrolling. Interface thread.

namespace Style_Bars {

void Draw_Groove(const QStyleOptionProgressBar& option, QPainter& painter);
/// Of work whose end is known.
void Draw_Done(const QStyleOptionProgressBar& option, QPainter& painter);

/// Of work whose end is not known: a part that runs along the bar, as far as the given share of its way.
void Draw_Busy(const QStyleOptionProgressBar& option, QPainter& painter, double share);

void Draw_Scroll_Bar(const QStyleOptionSlider& option, QPainter& painter);
/// The part that is dragged.
QRect Handle_Of(const QStyleOptionSlider& option);

} // namespace Style_Bars
