#include "phone/Virtual_Phone.h"

#include <filesystem>
#include <gtest/gtest.h>

TEST(Gone_Line, Gives_Its_Number_To_No_Other_While_Its_Phone_Lives)
{
    Virtual_Phone gone;
    const std::string path = gone.Path();
    gone.Hang_Up();
    const Virtual_Phone other;
    EXPECT_NE(other.Path(), path);
    EXPECT_FALSE(std::filesystem::exists(path));
}
