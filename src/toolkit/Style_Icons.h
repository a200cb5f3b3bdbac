#pragma once

#include <QIcon>
#include <QStyle>

namespace Style_Icons {

/// The sign of a message box, in a colour of the look that the program has when it is painted. None for anything else.
QIcon Icon_Of(QStyle::StandardPixmap standard);

} // namespace Style_Icons
