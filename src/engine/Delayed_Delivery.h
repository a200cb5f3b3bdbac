#pragma once

#include <QString>
#include <QStringList>

// Delayed delivery sends in batches with a pause after each. These are the choices of its two boxes, what a choice
// means, and what is shown during a pause. The blanks in the choices are part of the texts: a choice is read by
// position.
namespace Delayed_Delivery {

QStringList Batch_Sizes();
QStringList Pause_Choices();

/// The same as a person reads them: in English, as they are.
QStringList Shown_Pause_Choices();
/// What a person chose or typed, as Read_Setting takes it; in another language, with its unit in English.
QString Pause_Choice_Of(const QString& shown);

inline constexpr int Preselected_Batch_Size = 6;    ///< index of "15"
inline constexpr int Preselected_Pause_Choice = 12; ///< index of " 2  Minutes"

// What the two boxes ask for.
struct Setting
{
    int batch_size = 0;          ///< handled items before each pause; at 0 or less the counter never reaches it
    qint64 pause_in_seconds = 0; ///< 0: no pause
};

/// Reads both texts as they are in the boxes, typed or chosen. The unit of a pause is the fourth character of the
/// trimmed text, S, M or H, and its amount the first two; with any other unit, or the amount "No", there is no pause.
Setting Read_Setting(const QString& batch_size, const QString& pause_choice);

/// What is shown when a pause of this length begins: hours, minutes and seconds, without those before the first that is
/// not zero. Units have the same form for every amount.
QString Whole_Pause_Text(qint64 seconds);

/// What is shown while it counts down: minutes and seconds of the last hour, never hours.
QString Countdown_Text(qint64 seconds);

} // namespace Delayed_Delivery
