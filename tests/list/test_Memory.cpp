// A sanitizer's own allocator would be measured instead of the list.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

#include "list/Number_Rules.h"
#include "list/Recipient_List.h"

#include <gtest/gtest.h>
#include <malloc.h>

namespace {

double Bytes_In_Use()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

} // namespace

TEST(Memory, A_Recipient_With_A_Shared_Message_Takes_No_More_Than_200_Bytes)
{
    constexpr int Size = 1'000'000;
    const QString message(1600, u'x');
    const double before = Bytes_In_Use();
    Recipient_List list;
    for (int i = 0; i < Size; ++i)
        list.Append(Number_Rules::Normalised_Number(QStringLiteral("+44-7700-") + QString::number(1'000'000 + i)),
                    message);
    const double bytes_each = (Bytes_In_Use() - before) / Size;
    RecordProperty("bytes_each", std::to_string(bytes_each));
    EXPECT_GT(bytes_each, 48) << "nothing was measured";
    EXPECT_LE(bytes_each, 200);
    EXPECT_EQ(list.Count(), Size);
}

#endif
