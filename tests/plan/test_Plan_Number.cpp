#include "plan/Plan_Number.h"

#include <gtest/gtest.h>
#include <random>

namespace {

// What a number is read as that holds nothing but digits and what may stand between them.
std::optional<Packed_Number> Read_One_By_One(QString written)
{
    const bool has_plus = written.startsWith(u'+');
    written.remove(0, has_plus ? 1 : 0);
    written.remove(u'-').remove(u' ');
    return written.isEmpty() ? std::nullopt
                             : Packed_Number::Of((has_plus ? QStringLiteral("00") : QString()) + written);
}

QString Digits_In(const std::optional<Packed_Number>& number)
{
    return number ? number->Digits() : QStringLiteral("none");
}

} // namespace

// As many as sixteen characters are read at once.
TEST(Plan_Number, Plain_Numbers_Of_Every_Length_Are_Read_As_One_By_One)
{
    std::mt19937 chance{20261123}; // NOLINT(cert-msc51-cpp): the same numbers each time
    constexpr QStringView characters = u"01234567890123456789-- ";
    for (int i = 0; i < 20'000; ++i) {
        QString written = chance() % 2 == 0 ? QStringLiteral("+") : QString();
        for (int length = static_cast<int>(chance() % 23); length > 0; --length)
            written += characters[static_cast<qsizetype>(chance() % static_cast<unsigned>(characters.size()))];
        EXPECT_EQ(Digits_In(Plain_Number_In(written.toUtf8())), Digits_In(Read_One_By_One(written)))
            << written.toStdString();
    }
}

TEST(Plan_Number, What_Is_Not_Plain_Is_Left_For_A_Closer_Look)
{
    for (const char* written :
         {"", "+", "-", "----------", "44+7700900100", "++447700900100", "447700900100+", "(0)7700900100",
          "0770090010x", "x7700900100", "07700/900100", "0770\u00A00900", "07700900\t100"})
        EXPECT_FALSE(Plain_Number_In(written).has_value()) << written;
}
