#include "fuzz/Fuzz_Input.h"
#include "list/Custom_Smsc_Rules.h"
#include "list/Edited_Number.h"
#include "list/Exclusion_Rules.h"
#include "list/Number_Acceptance.h"
#include "list/Number_File.h"
#include "list/Number_Import.h"
#include "list/Number_Rules.h"

#include <algorithm>

namespace {

void Check_Number(const QString& number)
{
    MUST(number.size() <= Number_Rules::Longest_Number);
    MUST(std::all_of(number.begin(), number.end(), [](QChar each) { return each >= u'0' && each <= u'9'; }));
    MUST(Number_Rules::Normalised_Number(number) == number);
    MUST(!Number_Rules::Check_Ph_Number(number, false));
}

void Check_Rules(const QString& typed, const QString& other, unsigned choices)
{
    const QString number = Number_Rules::Normalised_Number(typed);
    Check_Number(number);
    MUST(Custom_Smsc_Rules::Is_Valid(typed) == !number.isEmpty());
    MUST(Number_Rules::Check_Ph_Number(typed, true) <= Number_Rules::Check_Ph_Number(typed, false));

    Recipient_List recipients;
    Exclusion_Set exclusions;
    const QString before = Number_Rules::Normalised_Number(other);
    if ((choices & 1) != 0 && !before.isEmpty())
        recipients.Append(before, {});
    if ((choices & 2) != 0)
        exclusions.Append(before);
    const bool heed_duplicates = (choices & 4) != 0;
    const bool heed_exclusions = (choices & 8) != 0;
    const auto accepted = Judge_Number(typed, recipients, exclusions, heed_duplicates, heed_exclusions);
    MUST(accepted.number == number);
    MUST((accepted.verdict == Number_Acceptance::Verdict::Not_Valid) == number.isEmpty());
    const auto edited = Judge_Edited_Number(typed, before, recipients, exclusions, heed_duplicates, heed_exclusions);
    MUST(typed == before || edited.number == number);
    MUST(typed == before || static_cast<int>(edited.verdict == Edited_Number::Verdict::Accepted) ==
                                static_cast<int>(accepted.verdict == Number_Acceptance::Verdict::Accepted));
}

// The two ways a file's line takes, into the recipient list and into an exclusion list, are of one mind.
void Check_File(const QString& path, const QByteArray& bytes)
{
    const QString text = Text_Of_Number_File(path, bytes);
    const Number_Texts texts;
    for (const QString& line : text.split(u'\n')) {
        const QString number = Number_Rules::Normalised_Number(Number_Import::Cleaned_Line(line));
        Check_Number(number);
        MUST(number == Exclusion_Rules::Number_In_Line(line));
        MUST(number == texts.Text_Of(Number_Import::Number_In_Line(line)));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned choices = input.Octet();
    if ((choices & 0x10) == 0) {
        const QString typed = input.Text();
        Check_Rules(typed, input.Text(), choices);
    } else {
        Check_File((choices & 1) != 0 ? QStringLiteral("numbers.rtf") : QStringLiteral("numbers.txt"),
                   input.Document());
    }
    return 0;
}
