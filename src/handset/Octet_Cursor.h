#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace Handset {

/// Reads octets in order and never past their end. The first failure is kept with its reason and every later octet
/// reads as 0, so that a decoder need check only once. Lives on the stack of one decoding.
class Octet_Cursor
{
public:
    explicit Octet_Cursor(std::span<const std::uint8_t> octets) : m_left(octets) {}

    std::uint8_t Octet(const char* field)
    {
        const auto octets = Octets(1, field);
        return octets.empty() ? 0 : octets.front();
    }

    /// Exactly this many octets, or none and a failure "<field>: the frame ends too early".
    std::span<const std::uint8_t> Octets(std::size_t count, const char* field)
    {
        if (Has_Failed())
            return {};
        if (count > m_left.size()) {
            Fail(std::string(field) + ": the frame ends too early");
            return {};
        }
        const auto taken = m_left.first(count);
        m_left = m_left.subspan(count);
        return taken;
    }

    void Fail(std::string reason)
    {
        if (m_reason.empty())
            m_reason = std::move(reason);
    }

    std::size_t Left() const { return m_left.size(); }
    bool Has_Failed() const { return !m_reason.empty(); }
    const std::string& Reason() const { return m_reason; }

private:
    std::span<const std::uint8_t> m_left;
    std::string m_reason;
};

} // namespace Handset
