#include "fuzz/Fuzz_Input.h"
#include "list/Number_Column.h"
#include "list/Number_Rules.h"
#include "list/Written_Number.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const QString letters =
        QString(QLatin1Char(static_cast<char>(input.Octet()))) + QLatin1Char(static_cast<char>(input.Octet()));
    const Country* country = Country_With_Letters(letters);
    const QString written = input.Text();
    const Read_Number read = Number_As_Written(written, country);
    MUST(read.number.size() <= Number_Rules::Longest_Number);
    MUST(Number_Rules::Normalised_Number(read.number) == read.number);
    MUST(read.number.isEmpty() == (read.reading >= Number_Reading::Empty));
    if (!read.number.isEmpty()) {
        MUST(!country || read.number.startsWith(QLatin1String("00")));
        MUST(Number_As_Written(read.number, country).number == read.number);
    } else {
        MUST(!Words_For_Reading(read.reading, country).isEmpty());
    }
    Looks_Like_A_Number(written.toUtf8(), 7);
    return 0;
}
