#pragma once

#include <string>

namespace Handset {

/// A symbolic link that gives the phone's line a fixed name; removed with this object.
class Path_Link
{
public:
    Path_Link() = default;
    ~Path_Link();
    Path_Link(const Path_Link&) = delete;
    Path_Link& operator=(const Path_Link&) = delete;

    /// Returns what is wrong, or nothing. Replaces a link left by an earlier phone, and nothing else.
    std::string Make(const std::string& link, const std::string& target);

private:
    std::string m_link;
    std::string m_target;
};

} // namespace Handset
