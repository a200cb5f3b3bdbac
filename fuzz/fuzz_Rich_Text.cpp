#include "fuzz/Fuzz_Input.h"
#include "platform/Rich_Text.h"

#include <algorithm>

namespace {

constexpr qsizetype Undecided = 3; // units at the end of what was cut off: half a character, or one still to combine

bool Is_Rich_Text(const QByteArray& document)
{
    return document.trimmed().startsWith("{\\rtf");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned cut = input.Octet();
    const QByteArray document = input.Document();
    const QString text = Plain_Text_Of_Rich_Text(document);
    MUST(text.size() <= 2 * document.size() + 16);

    // What is cut off at its end reads as what stands before the cut.
    const QByteArray beginning = document.left(document.size() * cut / 256);
    if (Is_Rich_Text(beginning)) {
        const QString read = Plain_Text_Of_Rich_Text(beginning);
        MUST(text.startsWith(read.left(std::max<qsizetype>(0, read.size() - Undecided))));
    }
    return 0;
}
