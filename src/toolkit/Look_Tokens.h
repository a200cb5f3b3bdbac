#pragma once

#include <QColor>

// The colours that the program is drawn with, each by what it is for. No other place names a colour.

enum class Look
{
    Light,
    Dark,
    High_Contrast
};

struct Look_Tokens
{
    QColor ground;    ///< of windows; described for the light look
    QColor card;      ///< what lies on the ground, and rows
    QColor field;     ///< what can be written in
    QColor bubble;    ///< what a handset shows, and what the pointer is over
    QColor chosen;    ///< of selected rows
    QColor line;      ///< hairlines and the edges of cards, which carry nothing
    QColor outline;   ///< of buttons, whose words say that they are
    QColor edge;      ///< of what can be filled in or ticked
    QColor ink;       ///< words
    QColor soft;      ///< words that stand back: facts, placeholders, what is switched off
    QColor accent;    ///< what is to be pressed, and what has the keyboard
    QColor on_accent; ///< words on it
    QColor ok;
    QColor warn;
    QColor error;
    QColor link; ///< of the red words that offer the wizard while there is no device
};

const Look_Tokens& Tokens_Of(Look look);

/// The look that the program has by now; Choose_Look changes it.
Look Look_Now();
const Look_Tokens& Tokens_Now();
