#pragma once

#include "doctor/Finding.h"

/// What was found as plain text, to be given to somebody who helps: a line for each finding. Whatever looks like a
/// number of a person, a card or a device is left out, wherever it stands.
QString Doctor_Report(const QList<Finding>& findings);

/// The finding as it stands there.
Finding Without_Numbers(Finding finding);

/// A text without runs of so many digits as such numbers have, whatever stands between them.
QString Without_Numbers(const QString& text);
