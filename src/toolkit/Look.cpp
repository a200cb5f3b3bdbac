#include "toolkit/Look.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>
#include <QWidget>

namespace {

Look The_Look = Look::Light;

const char* const On_The_Ground = "lies_on_the_ground";

void Give_Ground(QWidget& widget)
{
    QPalette palette = widget.palette();
    for (const auto role : {QPalette::Base, QPalette::Window})
        palette.setColor(role, Tokens_Now().ground);
    widget.setPalette(palette);
}

} // namespace

Look Look_Now()
{
    return The_Look;
}

const Look_Tokens& Tokens_Now()
{
    return Tokens_Of(The_Look);
}

// Complete, so that no desktop theme can put light text on a light ground.
QPalette Palette_Of(const Look_Tokens& tokens)
{
    QPalette palette(tokens.card, tokens.ground); // which derives the shades that nothing below names
    const std::pair<QPalette::ColorRole, QColor> roles[] = {{QPalette::WindowText, tokens.ink},
                                                            {QPalette::Text, tokens.ink},
                                                            {QPalette::ButtonText, tokens.ink},
                                                            {QPalette::BrightText, tokens.error},
                                                            {QPalette::ToolTipText, tokens.ink},
                                                            {QPalette::ToolTipBase, tokens.card},
                                                            {QPalette::Base, tokens.card},
                                                            {QPalette::AlternateBase, tokens.card},
                                                            {QPalette::PlaceholderText, tokens.soft},
                                                            {QPalette::Highlight, tokens.accent},
                                                            {QPalette::HighlightedText, tokens.on_accent},
                                                            {QPalette::Link, tokens.accent},
                                                            {QPalette::LinkVisited, tokens.accent},
                                                            {QPalette::Mid, tokens.line}};
    for (const auto& [role, colour] : roles)
        palette.setColor(role, colour);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, tokens.soft);
    palette.setColor(QPalette::Disabled, QPalette::Base, tokens.ground);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tokens.chosen);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, tokens.ink);
    return palette;
}

void Choose_Look(Look look)
{
    The_Look = look;
    const QPalette palette = Palette_Of(Tokens_Now());
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    // The application tells windows of it only once its event loop runs. None has a palette of its own but tool tips.
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (!window->testAttribute(Qt::WA_SetPalette))
            window->setPalette(QPalette());
    }
    const auto widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (widget->property(On_The_Ground).toBool())
            Give_Ground(*widget);
        widget->update(); // also what has no colour of the palette
    }
}

// Without a palette of its own the application has the desktop's.
Look Look_Of_The_Desktop()
{
    const QPalette own = QApplication::palette();
    QApplication::setPalette(QPalette());
    const QPalette desktop = QApplication::palette();
    QApplication::setPalette(own);
    const auto lightness = [&](QPalette::ColorRole role) { return desktop.color(role).lightness(); };
    return lightness(QPalette::Window) < lightness(QPalette::WindowText) ? Look::Dark : Look::Light;
}

void Lie_On_The_Ground(QWidget& widget)
{
    widget.setProperty(On_The_Ground, true);
    Give_Ground(widget);
}
