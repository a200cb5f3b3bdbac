#include "fuzz/Fuzz_Input.h"
#include "plan/Message_Preview.h"

// Any text in every manner of sending: what is said of it is true of it, and what stands in for its characters fits.
namespace {

constexpr int Longest_Message = 1600;

Plan_Manner Manner_Of(unsigned octet)
{
    Plan_Manner manner;
    manner.fixed_waits = (octet & 1) != 0;
    manner.is_flash = (octet & 2) != 0;
    const auto choice = static_cast<Job_Alphabet_Choice>((octet >> 2) % 3);
    manner.alphabet = manner.fixed_waits && choice == Job_Alphabet_Choice::Auto ? Job_Alphabet_Choice::Gsm : choice;
    return manner;
}

void Check_Places(const QString& text, const Message_Preview& preview)
{
    qsizetype next = 0;
    std::vector<int> counts(preview.characters.size());
    for (const Marked_Place& place : preview.places) {
        MUST(place.at >= next && place.length > 0 && place.at + place.length <= text.size());
        const auto named = static_cast<std::size_t>(place.character);
        MUST(named < preview.characters.size());
        MUST(text.mid(place.at, place.length) == preview.characters[named].character);
        ++counts[named];
        next = place.at + place.length;
    }
    for (std::size_t named = 0; named < counts.size(); ++named)
        MUST(preview.characters[named].count == counts[named]);
}

void Check_Room(const Message_Preview& preview)
{
    MUST(preview.row.parts >= 1 && preview.left >= 0 && preview.left <= preview.room && preview.room <= 160);
    MUST(preview.parts_without >= 1 && preview.parts_without <= preview.row.parts);
}

// Once everything is replaced that can be, nothing is left to be.
void Check_Replacements(const QString& text, const Message_Preview& preview, const Plan_Manner& manner)
{
    const auto changes = Replacements_In(text, preview, Replaced::All);
    qsizetype next = 0;
    for (const Changed_Text& change : changes) {
        MUST(change.at >= next && text.mid(change.at, change.from.size()) == change.from && change.from != change.to);
        next = change.at + change.from.size();
    }
    const QString replaced = With_Changes(text, changes);
    const auto common = Replacements_In(text, preview, Replaced::Common);
    const auto script = Replacements_In(text, preview, Replaced::Script);
    MUST(common.size() + script.size() == changes.size());
    if (!manner.fixed_waits && replaced.size() <= Longest_Message)
        MUST(Replacements_In(replaced, Preview_Of_Message(replaced, QStringLiteral("123"), manner), Replaced::All)
                 .empty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const Plan_Manner manner = Manner_Of(input.Octet());
    const QString number = QString(1 + static_cast<int>(input.Octet() % 20), u'7');
    const QString text = Fuzz_Input::Text_Of(input.Rest()).left(Longest_Message);
    if (text.isEmpty())
        return 0;
    const Message_Preview preview = Preview_Of_Message(text, number, manner);
    MUST(With_Changes(text, preview.row.changed) == preview.row.shown);
    Check_Places(text, preview);
    Check_Room(preview);
    Check_Replacements(text, preview, manner);
    return 0;
}
