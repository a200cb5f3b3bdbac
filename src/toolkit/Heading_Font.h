#pragma once

#include <QFont>

/// Of headings in a window with that font: a fifth larger, and heavier.
QFont Heading_Font(QFont font);
