#include "phone/Virtual_Phone.h"

#include "phone/Phone_Works.h"

#include <utility>

Virtual_Phone::Virtual_Phone(Phone_Moods moods) : m_works(std::make_unique<Handset::Phone_Works>(moods)) {}

Virtual_Phone::~Virtual_Phone() = default;

std::string Virtual_Phone::Path() const
{
    const std::lock_guard guard(m_works->m_lock);
    return m_works->m_line.Path();
}

void Virtual_Phone::Will_Answer(std::string command, std::string answer)
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->m_mind.Will_Answer(command, std::move(answer));
}

void Virtual_Phone::Says(std::string bytes)
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Say({std::move(bytes), 0});
    m_works->Serve();
}

// Whoever asks what came sees all that was written before the question: the line is read first.
std::vector<std::string> Virtual_Phone::Heard() const
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Serve();
    m_works->m_heard_something = false;
    return {m_works->m_lines.begin(), m_works->m_lines.end()};
}

std::string Virtual_Phone::Heard_Bytes() const
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Serve();
    m_works->m_heard_something = false;
    return m_works->m_bytes;
}

bool Virtual_Phone::Is_Silent(int milliseconds) const
{
    std::unique_lock guard(m_works->m_lock);
    m_works->Serve();
    return !m_works->m_changed.wait_for(guard, std::chrono::milliseconds(milliseconds),
                                        [&] { return m_works->m_heard_something; });
}

std::uint64_t Virtual_Phone::Said(std::chrono::milliseconds within) const
{
    const auto end = std::chrono::steady_clock::now() + within;
    std::unique_lock guard(m_works->m_lock);
    m_works->Serve();
    m_works->m_changed.wait_until(guard, end, [&] { return !m_works->Says_Something_Before(end); });
    return m_works->m_said;
}

bool Virtual_Phone::Somebody_Is_There() const
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Serve();
    return m_works->Somebody_Is_There();
}

void Virtual_Phone::Forget()
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Serve();
    m_works->Forget();
}

std::vector<Handset_Part> Virtual_Phone::Parts() const
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Serve();
    return {m_works->m_parts.begin(), m_works->m_parts.end()};
}

std::vector<Handset_Message> Virtual_Phone::Inbox() const
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Serve();
    return {m_works->m_inbox.begin(), m_works->m_inbox.end()};
}

bool Virtual_Phone::Wait_For_Messages(std::size_t n, std::chrono::milliseconds time) const
{
    std::unique_lock guard(m_works->m_lock);
    m_works->Serve();
    return m_works->m_changed.wait_for(guard, time, [&] { return m_works->m_inbox.size() >= n; });
}

void Virtual_Phone::Hang_Up()
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Serve();
    m_works->Close_Line();
}

bool Virtual_Phone::Is_Hung_Up() const
{
    const std::lock_guard guard(m_works->m_lock);
    return !m_works->m_line.Is_Open();
}

std::string Virtual_Phone::Plug_In_Again()
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->Plug_In();
    m_works->Serve();
    return m_works->m_line.Path();
}

void Virtual_Phone::Set_Moods(Phone_Moods moods)
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->m_mind.Set_Moods(moods);
    m_works->Serve();
}

Phone_Moods Virtual_Phone::Moods() const
{
    const std::lock_guard guard(m_works->m_lock);
    return m_works->m_mind.Moods();
}

void Virtual_Phone::Set_Listeners(Listeners listeners)
{
    const std::lock_guard guard(m_works->m_lock);
    m_works->m_listeners = std::move(listeners);
}
