#include "fuzz/Fuzz_Input.h"
#include "list/Custom_Smsc_Rules.h"
#include "list/Number_File.h"
#include "list/Number_Judge.h"
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

    Number_List present;
    Number_List excluded;
    const QString before = Number_Rules::Normalised_Number(other);
    if ((choices & 1) != 0 && !before.isEmpty())
        present.Append(before);
    if ((choices & 2) != 0)
        excluded.Append(before);
    const Number_Terms terms{(choices & 4) != 0 ? &present : nullptr, (choices & 8) != 0 ? &excluded : nullptr};
    const auto judged = Judge_Number(typed, terms);
    MUST(judged.number == number);
    MUST((judged.verdict == Number_Verdict::Not_Valid) == number.isEmpty());
    if (const auto packed = Packed_Number::Of(number); packed && !number.isEmpty())
        MUST(Judge_Valid_Number(*packed, terms) == judged.verdict);
    const auto edited = Judge_Edited_Number(typed, before, terms);
    MUST(edited.verdict == (typed == before ? Number_Verdict::Accepted : judged.verdict));
    MUST(edited.number == (typed == before ? typed : number));
}

void Check_File(const QString& path, const QByteArray& bytes)
{
    const QString text = Text_Of_Number_File(path, bytes);
    for (const QString& line : text.split(u'\n'))
        Check_Number(Number_Texts().Text_Of(Number_In_Line(line)));
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
