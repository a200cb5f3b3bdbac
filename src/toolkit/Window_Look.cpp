#include "toolkit/Window_Look.h"

#include <QApplication>
#include <QColor>
#include <QLabel>
#include <QPalette>
#include <QProxyStyle>
#include <QWidget>

namespace {

// Fusion, with room around the text of buttons, fields and boxes, and with labels that show every text literally.
class Program_Style : public QProxyStyle
{
public:
    Program_Style() : QProxyStyle(QStringLiteral("Fusion")) {}

    // By default a label guesses whether its text is markup, and the text may come from a device or from a file's name.
    // This also covers tool tips and the toolkit's own boxes and panels, whose labels are not ours to make.
    void polish(QWidget* widget) override
    {
        QProxyStyle::polish(widget);
        auto* label = qobject_cast<QLabel*>(widget);
        if (label && label->textFormat() == Qt::AutoText)
            label->setTextFormat(Qt::PlainText);
    }
    using QProxyStyle::polish;

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override
    {
        const QSize fitting = QProxyStyle::sizeFromContents(type, option, size, widget);
        switch (type) {
        case CT_PushButton:
            return fitting + QSize(14, 6);
        case CT_LineEdit:
        case CT_ComboBox:
            return fitting + QSize(0, 6);
        default:
            return fitting;
        }
    }
};

// Complete, so that a dark desktop theme cannot put light text on the light background.
QPalette Program_Palette()
{
    const QColor text(0x1d, 0x23, 0x2f);
    const QColor faint_text(0x8a, 0x91, 0x9e);
    const QColor highlight(0x2f, 0x65, 0xb3);
    QPalette palette(QColor(0xe4, 0xe9, 0xf3), Window_Background());
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf3, 0xf6, 0xfb));
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, faint_text);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0, 0, 0xee));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint_text);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, text);
    palette.setColor(QPalette::Disabled, QPalette::Base, Window_Background());
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xc5, 0xcc, 0xd8));
    return palette;
}

} // namespace

QColor Window_Background()
{
    return {241, 244, 250};
}

void Apply_Application_Look(QApplication& application)
{
    application.setStyle(new Program_Style); // the application owns it
    QApplication::setPalette(Program_Palette());
}

void Apply_Window_Look(QWidget& window, Letters first_size)
{
    QPalette palette = window.palette();
    palette.setColor(QPalette::Window, Window_Background());
    window.setPalette(palette);
    window.setAutoFillBackground(true);
    Fit_Window(window, first_size);
}
