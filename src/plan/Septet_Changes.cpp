#include "plan/Septet_Changes.h"

#include "handset/Gsm_Alphabet.h"
#include "handset/Submit_Decoder.h"

namespace {

using Septets = std::vector<std::uint8_t>;

std::optional<Septets> Septets_Of(const QByteArrayList& frames)
{
    Septets septets;
    for (const QByteArray& digits : frames) {
        const auto frame = Handset::Decode_Submit(digits.toStdString()).m_frame;
        if (!frame || frame->m_coding.m_alphabet != Handset::Alphabet::Gsm_7_Bit || frame->m_coding.m_compressed)
            return std::nullopt;
        septets.insert(septets.end(), frame->m_units.begin(), frame->m_units.end());
    }
    return septets;
}

// What the handset shows for each septet: nothing, which is 0, for an escape that the next one completes. No character
// of either table takes two UTF-16 units.
std::vector<char16_t> Shown_For_Each(const Septets& septets)
{
    std::vector<char16_t> shown(septets.size());
    bool is_escaped = false;
    for (std::size_t at = 0; at < septets.size(); ++at) {
        const bool is_escape = septets[at] == Handset::Gsm_Escape;
        if (is_escape && !is_escaped && at + 1 < septets.size()) {
            is_escaped = true;
            continue;
        }
        if (is_escape || is_escaped) {
            const Septets code = is_escaped ? Septets{Handset::Gsm_Escape, septets[at]} : Septets{septets[at]};
            shown[at] = QString::fromStdString(Handset::Text_Of_Septets(code)).front().unicode();
        } else {
            shown[at] = static_cast<char16_t>(Handset::Gsm_Default_Table.at(septets[at]));
        }
        is_escaped = false;
    }
    return shown;
}

// A walk along a text and its septets side by side.
class Septet_Walk
{
public:
    Septet_Walk(const QString& text, const Septets& septets)
        : m_text(text), m_septets(septets), m_shown(Shown_For_Each(septets))
    {
    }

    std::optional<std::vector<Changed_Text>> Changes()
    {
        while (m_at < m_text.size()) {
            if (!Take_Character())
                return std::nullopt;
        }
        Changed_Text behind{static_cast<int>(m_at), {}, {}};
        Take_Shown(behind.to, m_septets.size());
        if (!behind.to.isEmpty())
            m_changes.push_back(behind);
        return std::move(m_changes);
    }

private:
    void Take_Shown(QString& shown, std::size_t end)
    {
        for (; m_next < end; ++m_next) {
            if (m_shown[m_next] != 0)
                shown += QChar(m_shown[m_next]);
        }
    }

    // A unit without a place in the alphabet goes out as its lowest seven bits. One that is an escape by that has no
    // code behind it.
    bool Take_Unit(Changed_Text& change)
    {
        if (m_next >= m_septets.size())
            return false;
        const char16_t unit = m_text[m_at].unicode();
        const bool has_code = m_septets[m_next] == Handset::Gsm_Escape && (unit & 0x7F) != Handset::Gsm_Escape;
        const std::size_t end = m_next + (has_code ? 2 : 1);
        if (end > m_septets.size())
            return false;
        change.from += m_text[m_at];
        Take_Shown(change.to, end);
        ++m_at;
        return true;
    }

    bool Take_Character()
    {
        if (m_next < m_septets.size() && m_shown[m_next] == m_text[m_at].unicode()) { // by far the most
            ++m_next;
            ++m_at;
            return true;
        }
        Changed_Text change{static_cast<int>(m_at), {}, {}};
        const bool is_pair =
            m_text[m_at].isHighSurrogate() && m_at + 1 < m_text.size() && m_text[m_at + 1].isLowSurrogate();
        if (!Take_Unit(change) || (is_pair && !Take_Unit(change)))
            return false;
        if (change.from == change.to)
            return true;
        if (!m_changes.empty() && Was_Escaped_By(m_changes.back(), change)) {
            m_changes.back().from += change.from;
            m_changes.back().to += change.to;
        } else {
            m_changes.push_back(change);
        }
        return true;
    }

    // Whether the change before it shows nothing, for it was an escape, and ends where this one begins.
    static bool Was_Escaped_By(const Changed_Text& before, const Changed_Text& change)
    {
        return before.to.isEmpty() && before.at + before.from.size() == change.at;
    }

    const QString& m_text;
    const Septets& m_septets;
    std::vector<char16_t> m_shown;
    qsizetype m_at = 0;
    std::size_t m_next = 0;
    std::vector<Changed_Text> m_changes;
};

} // namespace

std::optional<std::vector<Changed_Text>> Changes_By_Septets(const QString& text, const QByteArrayList& frames)
{
    const auto septets = Septets_Of(frames);
    return septets ? Septet_Walk(text, *septets).Changes() : std::nullopt;
}
