#include "phone/Path_Link.h"

#include <filesystem>
#include <system_error>

namespace Handset {

namespace fs = std::filesystem;

std::string Path_Link::Make(const std::string& link, const std::string& target)
{
    std::error_code error;
    const auto status = fs::symlink_status(link, error);
    if (fs::exists(status)) {
        const bool is_left_over =
            fs::is_symlink(status) && fs::read_symlink(link, error).string().starts_with("/dev/pts/");
        if (!is_left_over)
            return link + ": something else is there already";
        fs::remove(link, error);
    }
    fs::create_symlink(target, link, error);
    if (error)
        return link + ": " + error.message();
    m_link = link;
    m_target = target;
    return {};
}

Path_Link::~Path_Link()
{
    std::error_code error;
    if (!m_link.empty() && fs::read_symlink(m_link, error) == m_target)
        fs::remove(m_link, error);
}

} // namespace Handset
