#pragma once

#include <QStringList>

// Delayed delivery sends in batches with a pause after each. These are the choices of its two boxes; the blanks in them
// are part of the texts, since a choice is read by position.
namespace Delayed_Delivery {

QStringList Batch_Sizes();
QStringList Pause_Choices();

} // namespace Delayed_Delivery
