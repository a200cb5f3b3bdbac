#pragma once

#include <QProxyStyle>

// Fusion with the program's own colours, flat, and with labels that show every text literally. What is drawn stands by
// theme in Style_Buttons, Style_Fields, Style_Tables, Style_Cards and Style_Bars; here is which of them draws what. The
// application owns it; interface thread.
//
// What forms say to it by properties of their own: a button with "is_first" is the one filled button of its window,
// "line_icon" names a button's icon, and "is_link", "is_bubble" and "is_soft" are what they say.
class Program_Style : public QProxyStyle
{
    Q_OBJECT

public:
    Program_Style();

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    bool Draws_Label_Or_Row(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const;
};
