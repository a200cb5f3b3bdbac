#include "phone/Path_Link.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

using namespace Handset;
namespace fs = std::filesystem;

namespace {

// A folder of its own, gone with the test.
class Path_Link_Test : public testing::Test
{
protected:
    Path_Link_Test()
    {
        std::string pattern = (fs::temp_directory_path() / "phone-XXXXXX").string();
        m_folder = ::mkdtemp(pattern.data());
        m_link = (m_folder / "link").string();
    }
    ~Path_Link_Test() override { fs::remove_all(m_folder); }

    fs::path m_folder;
    std::string m_link;
};

} // namespace

TEST_F(Path_Link_Test, A_Link_Replaces_That_Of_An_Earlier_Phone_And_Stands_As_Long_As_Its_Object)
{
    fs::create_symlink("/dev/pts/3", m_link);
    {
        Path_Link link;
        EXPECT_EQ(link.Make(m_link, "/dev/pts/7"), "");
        EXPECT_EQ(fs::read_symlink(m_link), "/dev/pts/7");
    }
    EXPECT_FALSE(fs::exists(fs::symlink_status(m_link)));
}

TEST_F(Path_Link_Test, Anything_Else_At_The_Path_Stays)
{
    std::ofstream(m_link) << "mine";
    EXPECT_EQ(Path_Link().Make(m_link, "/dev/pts/7"), m_link + ": something else is there already");
    EXPECT_TRUE(fs::is_regular_file(m_link));
    fs::remove(m_link);
    fs::create_symlink("/etc/passwd", m_link);
    EXPECT_NE(Path_Link().Make(m_link, "/dev/pts/7"), "");
    EXPECT_EQ(fs::read_symlink(m_link), "/etc/passwd");
}

TEST_F(Path_Link_Test, A_Link_That_A_Later_Phone_Took_Over_Stays)
{
    {
        Path_Link link;
        EXPECT_EQ(link.Make(m_link, "/dev/pts/7"), "");
        fs::remove(m_link);
        fs::create_symlink("/dev/pts/8", m_link);
    }
    EXPECT_EQ(fs::read_symlink(m_link), "/dev/pts/8");
}

TEST_F(Path_Link_Test, A_Folder_That_Is_Not_There_Is_An_Error)
{
    const std::string path = (m_folder / "none" / "link").string();
    EXPECT_EQ(Path_Link().Make(path, "/dev/pts/7"), path + ": No such file or directory");
}
