#include "fuzz/Fuzz_Input.h"
#include "platform/Text_Files.h"
#include "records/Sent_Item_Format.h"
#include "records/Sent_Item_List.h"
#include "records/Stored_Text.h"

namespace {

QList<Sent_Item> Items_In(const QString& text)
{
    QList<Sent_Item> items;
    Sent_Item_Format::Read(text, [&](Sent_Item item) { items.append(std::move(item)); });
    return items;
}

QList<Sent_Item> Read_Back(const QList<Sent_Item>& items)
{
    const auto text = Decode_Utf8(Sent_Item_Format::Lines(items));
    MUST(text.has_value());
    return Items_In(*text);
}

void Read_Any_File(const QByteArray& bytes)
{
    const QString text = Decode_Utf8(bytes).value_or(QString::fromUtf8(bytes));
    QList<Sent_Item> items = Items_In(text);
    qsizetype size = 0;
    for (const Sent_Item& item : items) {
        MUST(!item.Number.isEmpty() && item.Number == item.Number.trimmed());
        size += item.Number.size() + item.Message.size() + item.Date.size() + item.Status.size();
    }
    MUST(size <= text.size());

    // The window's list, which reads the bytes and not their text, has the same records and writes the same file.
    const QByteArray stored = text.toUtf8();
    const Sent_Item_List list = Sent_Item_List::Read(stored);
    MUST(list.size() == items.size());
    for (qsizetype row = 0; row < items.size(); ++row)
        MUST(list.at(row) == items.at(row));
    MUST(list.Lines() == Sent_Item_Format::Lines(items));
    MUST(Is_Valid_Utf8(bytes) == Decode_Utf8(bytes).has_value());

    // A window that is opened and closed again changes nothing but the status, which no file keeps.
    for (Sent_Item& item : items)
        item.Status.clear();
    MUST(Read_Back(items) == items);
}

bool Has_Separator(const QString& text)
{
    return text.contains(u'\a') || text.contains(u'\v');
}

// Whatever holds no separator comes back as it was, but for a typed line-break token and half of a pair.
void Write_And_Read(Fuzz_Input& input)
{
    QList<Sent_Item> items;
    QList<Sent_Item> expected;
    while (!input.Is_At_End()) {
        const auto item = Sent_Item_Format::Record(input.Text(), input.Text(), input.Text(), input.Text());
        if (!item || Has_Separator(item->Number) || Has_Separator(item->Message) || Has_Separator(item->Date))
            continue;
        items.append(*item);
        const auto as_stored = [](const QString& text) {
            return With_Line_Breaks(As_Stored(With_Line_Break_Tokens(text)));
        };
        const auto stored = Sent_Item_Format::Record(as_stored(item->Number), as_stored(item->Message),
                                                     as_stored(item->Date), QString());
        if (stored)
            expected.append(*stored);
    }
    MUST(Read_Back(items) == expected);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    if (input.Octet() % 2 == 0)
        Read_Any_File(input.Document());
    else
        Write_And_Read(input);
    return 0;
}
