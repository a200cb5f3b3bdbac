#include "engine/Composer_Rules.h"
#include "engine/Delayed_Delivery.h"
#include "fuzz/Fuzz_Input.h"
#include "platform/Pace.h"
#include "platform/String_Helpers.h"

#include <cmath>

// What a person types or picks besides numbers: a batch's size, a pause, the pace, a message's length.
namespace {

void Check_Delay(const QString& batch_size, const QString& pause_choice)
{
    const auto setting = Delayed_Delivery::Read_Setting(batch_size, pause_choice);
    MUST(setting.pause_in_seconds >= 0 && setting.pause_in_seconds <= qint64{99} * 3600);
    if (Delayed_Delivery::Batch_Sizes().contains(batch_size.trimmed()))
        MUST(setting.batch_size == batch_size.trimmed().toInt());
    if (Delayed_Delivery::Pause_Choices().contains(pause_choice))
        MUST(setting.pause_in_seconds > 0);
    for (const QString& text : {Delayed_Delivery::Whole_Pause_Text(setting.pause_in_seconds),
                                Delayed_Delivery::Countdown_Text(setting.pause_in_seconds)})
        MUST(text.startsWith(u"Pausing the process for ") && text.endsWith(u" Seconds."));
}

void Check_Message(const QString& message, const QString& counter, bool unicode)
{
    const QString cut = Composer_Rules::Cut_To_Limit(message);
    MUST(message.startsWith(cut) && cut.size() <= Composer_Rules::Most_Characters);
    const int length = static_cast<int>(cut.size());
    const int count = Composer_Rules::SMS_Count(length, unicode);
    const int limit = Composer_Rules::Single_SMS_Limit(unicode);
    MUST(count * limit >= length && (count - 1) * limit < std::max(1, length));
    const auto shown = Composer_Rules::Long_SMS_Calculation(length, counter, unicode, true);
    MUST(shown.text.startsWith(QString::number(length)));
    MUST(!shown.open_dialog_first || (count > 1 && !counter.contains(u"SMS")));
}

void Check_Helpers(const QString& text, int index)
{
    MUST(text.startsWith(Left_Str_substringToIndex(text, index)));
    MUST(text.endsWith(Right_Str_substringFromIndex(text, index)));
    const bool is_inside = index >= 0 && index <= text.size();
    MUST(Read_Str_Upto_Index(text, index) + Read_Str_FromIndex(text, index) == (is_inside ? text : QString()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned choices = input.Octet();
    const int index = static_cast<qint8>(input.Octet()); // NOLINT: an index below none is tried, too
    const QString first = input.Text();
    const QString second = input.Text();
    Check_Delay(first, second);
    Check_Message(first, second, (choices & 1) != 0);
    Check_Helpers(first, index);
    const auto pace = Parse_Pace(first);
    MUST(!pace || (*pace > 0 && std::isfinite(*pace)));
    return 0;
}
