// Every second mood in one of the ways to send; the long tests have all of them in all ways, and in pairs.
#include "windows/main/Line_Test.h"

static bool Register_Every_Second()
{
    std::vector<Line_Combination> chosen;
    const auto all = Single_Moods_In_One_Way();
    for (std::size_t place = 0; place < all.size(); place += 2)
        chosen.push_back(all.at(place));
    return Register_Combinations("Line_Moods", chosen);
}

static const bool Moods_Registered = Register_Every_Second();
