#include "fuzz/Fuzz_Input.h"
#include "platform/Text_Files.h"
#include "records/Stored_Text.h"
#include "records/Template_Format.h"

namespace {

QList<Template_Item> Templates_In(const QString& text)
{
    QList<Template_Item> items;
    Template_Format::Read(text, [&](Template_Item item) {
        MUST(!item.Message.isEmpty() && item.Message.size() <= Template_Format::Most_Characters);
        MUST(!item.Message.front().isSpace());
        items.append(std::move(item));
    });
    return items;
}

QList<Template_Item> Read_Back(const QList<Template_Item>& items)
{
    const auto text = Decode_Utf8(Template_Format::Lines(items));
    MUST(text.has_value());
    return Templates_In(*text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const QString text = Fuzz_Input::Text_Of(input.Document());

    // A cut may leave a blank at the end or half of a pair, and repeats after that; from then on nothing changes any
    // more.
    const QList<Template_Item> settled = Read_Back(Read_Back(Templates_In(text)));
    MUST(settled.size() <= text.size());
    MUST(Read_Back(settled) == settled);

    int lines = 0;
    Template_Format::Read_Lines(text, [&](const QString& line) {
        MUST(!line.isEmpty());
        ++lines;
    });
    MUST(lines <= text.count(u'\n') + 1);

    const QByteArray line = Template_Format::Line(text);
    MUST(line.endsWith('\n') && line.count('\n') == 1 && Decode_Utf8(line).has_value());
    return 0;
}
