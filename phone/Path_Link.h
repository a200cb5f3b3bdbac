// A symbolic link to the phone's line under a name that does not change; gone when this object goes.
#pragma once

#include <string>

namespace Handset {

class Path_Link
{
public:
    Path_Link() = default;
    ~Path_Link();
    Path_Link(const Path_Link&) = delete;
    Path_Link& operator=(const Path_Link&) = delete;

    // Returns what is wrong, or nothing. A link left over from an earlier phone is replaced, anything else at the path
    // is not.
    std::string Make(const std::string& link, const std::string& target);

private:
    std::string m_link;
    std::string m_target;
};

} // namespace Handset
