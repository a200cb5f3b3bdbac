#pragma once

#include "windows/main/Line_Test.h"

// A job during which the cable is pulled at a write, what is said while the phone is gone, and the job when it is back.
class Pulled_Phone : public Line_Test
{
public:
    Pulled_Phone(const Line_Way& way, const Line_Pull& pull) : Line_Test(Moods_For(way), way), m_pull(pull) {}
    void TestBody() override;

    static Phone_Moods Moods_For(const Line_Way& way);

protected:
    /// Whatever arrived whole has its record, and nothing has two.
    void Expect_A_Record_Of_Whatever_Arrived();
    /// There is no such device.
    void Expect_That_Nothing_Opens();

private:
    void Pull_At(const Line_Pull& pull);

    const Line_Pull m_pull;
};

/// Makes a test of each moment around a write of a job that goes out in this way.
bool Register_Pulls(const char* suite, const Line_Way& way);
