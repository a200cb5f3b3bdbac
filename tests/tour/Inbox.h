#pragma once

#include "tour/Story.h"

#include <QByteArray>

/// What a phone has received, in its order.
using Inbox = std::vector<Story::Message>;

/// Collects what a phone prints: a line for each part, and one for each complete message.
void Collect(Inbox& inbox, const QByteArray& line);

/// Says that the phone has received what was written, and throws Tour_Failed when it has not.
void Expect_Exactly(const Inbox& inbox, const Inbox& written);
