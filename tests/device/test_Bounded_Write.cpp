#include "device/Bounded_Write.h"
#include "platform/Pace.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace {

// A line that has room for more only after a while, which it is given how long for.
class Slow_Line : public Serial_Calls
{
public:
    Line_Event Wait(int, short, double seconds, int) override
    {
        m_given.push_back(seconds);
        Wait_Seconds(0.1);
        return Line_Event::Ready;
    }

    std::vector<double> m_given;
};

} // namespace

TEST(Bounded_Write, A_Device_That_Takes_A_Byte_At_A_Time_Gets_Its_Whole_Time_Anew_For_Each)
{
    Set_Pace(1);
    Slow_Line line;
    const std::string bytes(1000, 'x');
    const auto takes = [&](const char*, size_t size) {
        return line.m_given.size() <= 6 ? ssize_t{1} : static_cast<ssize_t>(size);
    };
    const Write_Outcome outcome = Write_With_An_End(line, -1, bytes.data(), 1000, -1, takes);
    EXPECT_EQ(outcome.m_bytes_written, 1000);
    ASSERT_EQ(line.m_given.size(), 7U);
    EXPECT_GT(*std::max_element(line.m_given.begin() + 3, line.m_given.end()), 9.8);
}
