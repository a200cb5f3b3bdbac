#include "list/Number_Column.h"
#include "list/Table_File.h"

#include <gtest/gtest.h>

namespace {

struct Columns_Of_Numbers
{
    const char* text;
    std::vector<int> columns;
};

class Number_Columns_Of : public testing::TestWithParam<Columns_Of_Numbers>
{
};

} // namespace

TEST_P(Number_Columns_Of, A_Table_Are_Found)
{
    EXPECT_EQ(Number_Columns(Table_Of_Bytes(GetParam().text, {}, {}).table), GetParam().columns);
}

INSTANTIATE_TEST_SUITE_P(
    Tables, Number_Columns_Of,
    testing::Values(
        Columns_Of_Numbers{"Name,Phone\nAnn,07700900100\nBob,07700900101\n", {1}},
        Columns_Of_Numbers{"Name,Home,Mobile\nAnn,02079460000,07700900100\n", {1, 2}},
        Columns_Of_Numbers{"Name,Home,Mobile\nAnn,,07700900100\n", {2}},
        Columns_Of_Numbers{"Name,Phone\nAnn,07700900100\nBob,\nCy,\nDee,none\nEve,1.7E+10\n", {1}},
        Columns_Of_Numbers{"Born,Joined,Left,Fee,Zip,Age,To call\n2001-12-24,24.12.2001,1/2/03,1234567.89,12345,7,"
                           "+44 7700 900100\n",
                           {6}},
        Columns_Of_Numbers{"Name,Number\nAnn,441\nBob,0170\n", {1}},
        Columns_Of_Numbers{"Name,Zip\nAnn,44100\nBob,01700\n", {}},
        Columns_Of_Numbers{"Name,Phone,Age\nAnn,unknown,44\n", {}}, Columns_Of_Numbers{"Who\nAnn\n", {0}},
        Columns_Of_Numbers{"Name,Phone\n", {}}, Columns_Of_Numbers{"Name,Phone\nAnn,tel:+447700900100\n", {1}},
        Columns_Of_Numbers{"Name,Phone\nAnn,\xD9\xA0\xD9\xA1\xD9\xA0\xD9\xA1\xD9\xA2\xD9\xA3\xD9\xA4\xD9\xA5\n", {1}}));
