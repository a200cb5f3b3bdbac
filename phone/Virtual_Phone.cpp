#include "phone/Virtual_Phone.h"

#include "phone/Phone_Works.h"

#include <algorithm>
#include <mutex>
#include <utility>

using Handset::Phone_Works;

namespace {

// The phones of this process.
struct Phone_Register
{
    std::mutex lock;
    std::vector<std::shared_ptr<Phone_Works>> phones;
};

Phone_Register& The_Register()
{
    static Phone_Register phones;
    return phones;
}

std::shared_ptr<Phone_Works> Phone_On(const std::string& path)
{
    auto& phones = The_Register();
    const std::lock_guard guard(phones.lock);
    const auto is_its_line = [&path](const std::shared_ptr<Phone_Works>& phone) {
        const std::lock_guard works_guard(phone->m_lock);
        return phone->m_line.Is_Open() && phone->m_line.Path() == path;
    };
    const auto found = std::find_if(phones.phones.begin(), phones.phones.end(), is_its_line);
    return found == phones.phones.end() ? nullptr : *found;
}

std::uint64_t Said_By(Phone_Works& works, std::chrono::milliseconds within)
{
    const auto end = std::chrono::steady_clock::now() + within;
    std::unique_lock guard(works.m_lock);
    works.Serve();
    works.m_changed.wait_until(guard, end, [&] { return !works.Says_Something_Before(end); });
    works.Serve(); // what fell due while the phone's own thread was not scheduled
    return works.m_said;
}

} // namespace

Virtual_Phone::Virtual_Phone(Phone_Moods moods) : m_works(std::make_shared<Phone_Works>(moods))
{
    auto& phones = The_Register();
    const std::lock_guard guard(phones.lock);
    phones.phones.push_back(m_works);
}

Virtual_Phone::~Virtual_Phone()
{
    auto& phones = The_Register();
    const std::lock_guard guard(phones.lock);
    std::erase(phones.phones, m_works);
}

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

// The line is read first, so that the caller sees all that was written before the call.
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
    return Said_By(*m_works, within);
}

std::optional<std::uint64_t> Virtual_Phone::Said_On(const std::string& path, std::chrono::milliseconds within)
{
    const auto works = Phone_On(path);
    return works ? std::optional(Said_By(*works, within)) : std::nullopt;
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
