#include "plan/Row_Preview.h"

#include "device/Submission_Plan.h"
#include "engine/Message_Frames.h"
#include "handset/Message_Joiner.h"
#include "handset/Submit_Decoder.h"
#include "handset/Text_Parts.h"
#include "plan/Septet_Changes.h"
#include "platform/Utf16_Units.h"

namespace {

Job_Row Confirmed_Row(const Planned_Row& row, const Plan_Manner& manner)
{
    return Frozen_Row(row.row, row.number, row.text, manner.alphabet, manner.is_flash, 0, false);
}

Outgoing_Message With_Fixed_Waits(const Planned_Row& row, const Plan_Manner& manner)
{
    const bool is_unicode = manner.alphabet == Job_Alphabet_Choice::Unicode;
    return {row.text, row.number, manner.service_centre, manner.is_flash, is_unicode};
}

QByteArrayList Frames_Of(const Planned_Row& row, const Plan_Manner& manner)
{
    QByteArrayList frames;
    if (manner.fixed_waits) {
        for (const Pdu_Frame& frame : Plan_Pdu(With_Fixed_Waits(row, manner), {}).m_frames)
            frames.append(frame.m_digits);
    } else {
        for (const Part_To_Send& part :
             Parts_Of(Confirmed_Row(row, manner), manner.service_centre, manner.asks_for_reports, false))
            frames.append(part.m_body);
    }
    return frames;
}

Handset::Received_Part Part_Of(const Handset::Submit_Frame& frame)
{
    Handset::Received_Part part;
    part.m_alphabet = frame.m_coding.m_alphabet;
    part.m_units = frame.m_units;
    part.m_shown.m_number = frame.m_number;
    part.m_shown.m_text = frame.Text();
    if (frame.m_concatenation) {
        part.m_shown.m_part = frame.m_concatenation->m_part;
        part.m_shown.m_parts = frame.m_concatenation->m_parts;
        part.m_shown.m_reference = frame.m_concatenation->m_reference;
        part.m_wide_reference = frame.m_concatenation->m_wide;
    }
    return part;
}

int Units_At(const QString& text, qsizetype at)
{
    return text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate() ? 2 : 1;
}

// Character by character; nothing when one of the two has more of them.
std::optional<std::vector<Changed_Text>> Changes_In_Step(const QString& text, const QString& shown)
{
    std::vector<Changed_Text> changes;
    qsizetype at = 0;
    qsizetype shown_at = 0;
    while (at < text.size() && shown_at < shown.size()) {
        const auto from = QStringView(text).sliced(at, Units_At(text, at));
        const auto to = QStringView(shown).sliced(shown_at, Units_At(shown, shown_at));
        if (from != to)
            changes.push_back({static_cast<int>(at), from.toString(), to.toString()});
        at += from.size();
        shown_at += to.size();
    }
    if (at < text.size() || shown_at < shown.size())
        return std::nullopt;
    return changes;
}

} // namespace

Row_Preview Preview_Of(const Planned_Row& row, const Plan_Manner& manner)
{
    Row_Preview preview;
    preview.alphabet = Confirmed_Row(row, manner).alphabet;
    preview.units = static_cast<int>(Handset::Written_Units(Units_Of(row.text), preview.alphabet == Job_Alphabet::Ucs2
                                                                                    ? Handset::Alphabet::Ucs2
                                                                                    : Handset::Alphabet::Gsm_7_Bit));
    preview.parts = Parts_Of_Row(row, manner);
    const bool has_frames = row.skipped != QLatin1String(Skip_Words::Invalid_Number) && !row.text.isEmpty() &&
                            row.skipped != QLatin1String(Skip_Words::Too_Long);
    if (!has_frames)
        return preview;
    const QByteArrayList frames = Frames_Of(row, manner);
    preview.shown = Shown_By_A_Handset(frames);
    auto by_septets = manner.fixed_waits && preview.alphabet == Job_Alphabet::Gsm ? Changes_By_Septets(row.text, frames)
                                                                                  : std::nullopt;
    preview.changed = by_septets ? std::move(*by_septets) : Changes_Between(row.text, preview.shown);
    return preview;
}

int Parts_Of_Row(const Planned_Row& row, const Plan_Manner& manner)
{
    return manner.fixed_waits ? Parts_In_Pdu_Mode(With_Fixed_Waits(row, manner)) : Confirmed_Row(row, manner).parts;
}

QString Shown_By_A_Handset(const QByteArrayList& frames)
{
    Handset::Message_Joiner joiner;
    std::string shown;
    for (const QByteArray& digits : frames) {
        const auto frame = Handset::Decode_Submit(digits.toStdString()).m_frame;
        if (!frame)
            continue;
        if (const auto message = joiner.Take(Part_Of(*frame)))
            shown += message->m_text;
    }
    return Text_Of_Utf8(shown);
}

// Where characters do not stand in step, everything between what is alike at both ends is one change.
std::vector<Changed_Text> Changes_Between(const QString& text, const QString& shown)
{
    if (auto changes = Changes_In_Step(text, shown))
        return *changes;
    const qsizetype most = std::min(text.size(), shown.size());
    qsizetype before = 0;
    while (before < most && text[before] == shown[before])
        ++before;
    if (before > 0 && text[before - 1].isHighSurrogate())
        --before;
    qsizetype after = 0;
    while (after < most - before && text[text.size() - 1 - after] == shown[shown.size() - 1 - after])
        ++after;
    if (after > 0 && text[text.size() - after].isLowSurrogate())
        --after;
    return {{static_cast<int>(before), text.mid(before, text.size() - before - after),
             shown.mid(before, shown.size() - before - after)}};
}
