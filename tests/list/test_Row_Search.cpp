#include "list/Row_Search.h"
#include "list/Row_Text.h"

#include <QStringList>
#include <algorithm>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::Optional;

namespace {

Row_Source Source_Of(const QList<QStringList>& rows)
{
    return {static_cast<int>(rows.size()), 2, [rows](int column, int row) { return rows.at(row).at(column); }};
}

bool Goes_On()
{
    return false;
}

const Row_Source People = Source_Of({{"0044770", "Dear Bob"},
                                     {"0049170", "dear anna"},
                                     {"0044771", "Dear Anna"},
                                     {"1", ""},
                                     {"0044770", "DEAR ÄRZTE"}});

} // namespace

struct Wish_And_Rows
{
    const char* words;
    int column;
    Qt::SortOrder order;
    std::vector<int> rows;
};

class Row_Wishes : public testing::TestWithParam<Wish_And_Rows>
{
};

TEST_P(Row_Wishes, Are_Fulfilled)
{
    const auto& [words, column, order, rows] = GetParam();
    EXPECT_EQ(Rows_Found(People, {words, column, order}, Goes_On), rows);
}

INSTANTIATE_TEST_SUITE_P(
    Row, Row_Wishes,
    testing::Values(Wish_And_Rows{"", -1, Qt::AscendingOrder, {0, 1, 2, 3, 4}},
                    Wish_And_Rows{"  ", -1, Qt::AscendingOrder, {0, 1, 2, 3, 4}},
                    Wish_And_Rows{"anna", -1, Qt::AscendingOrder, {1, 2}},
                    Wish_And_Rows{"ÄRZTE", -1, Qt::AscendingOrder, {4}},
                    Wish_And_Rows{"ärzte", -1, Qt::AscendingOrder, {4}},
                    Wish_And_Rows{"0044 anna", -1, Qt::AscendingOrder, {2}}, // each in a cell of its own
                    Wish_And_Rows{"+44 77", -1, Qt::AscendingOrder, {0, 2, 4}},
                    Wish_And_Rows{"+", -1, Qt::AscendingOrder, {}}, Wish_And_Rows{"eve", 0, Qt::AscendingOrder, {}},
                    Wish_And_Rows{"", 0, Qt::AscendingOrder, {0, 4, 2, 1, 3}},
                    Wish_And_Rows{"", 0, Qt::DescendingOrder, {3, 1, 2, 0, 4}},
                    Wish_And_Rows{"", 1, Qt::AscendingOrder, {3, 1, 2, 0, 4}},
                    Wish_And_Rows{"dear", 1, Qt::DescendingOrder, {4, 0, 1, 2}},
                    Wish_And_Rows{"", 7, Qt::AscendingOrder, {0, 1, 2, 3, 4}}));

TEST(Row_Search, Cells_Are_Sorted_By_Their_Keys_And_Found_By_Their_Texts)
{
    Row_Source dates = Source_Of({{"02/01/2024", ""}, {"01/12/2023", ""}, {"03/01/2024", ""}});
    dates.key = [cell = dates.cell](int column, int row) {
        const QString date = cell(column, row);
        return date.mid(6) + date.mid(3, 2) + date.left(2);
    };
    EXPECT_THAT(Rows_Found(dates, {{}, 0}, Goes_On), Optional(ElementsAre(1, 0, 2)));
    EXPECT_THAT(Rows_Found(dates, {"/2024", 0, Qt::DescendingOrder}, Goes_On), Optional(ElementsAre(2, 0)));
}

TEST(Row_Search, Is_Left_Soon_When_It_Is_To_Stop)
{
    int read = 0;
    const Row_Source many{1'000'000, 1, [&](int, int row) {
                              ++read;
                              return QString::number(row * 7919LL % 1'000'003);
                          }};
    EXPECT_EQ(Rows_Found(many, {"7", -1}, [&] { return read > 5000; }), std::nullopt);
    EXPECT_LT(read, 10'000);
    read = 0;
    EXPECT_EQ(Rows_Found(many, {{}, 0}, [&] { return read > 5000; }), std::nullopt);
    EXPECT_LT(read, 10'000);
    int looks = 0;
    EXPECT_EQ(Rows_Found(many, {{}, 0}, [&] { return read >= 1'000'000 && ++looks > 10; }), std::nullopt)
        << "while it sorts, too";
}

TEST(Row_Search, A_Wish_Is_For_Words_Or_An_Order)
{
    EXPECT_FALSE(Is_A_Wish({}));
    EXPECT_FALSE(Is_A_Wish({" \t", -1}));
    EXPECT_TRUE(Is_A_Wish({"a", -1}));
    EXPECT_TRUE(Is_A_Wish({{}, 0}));
}

TEST(Row_Text, Is_A_Table_For_Other_Programs)
{
    const Row_Source rows =
        Source_Of({{"1", "one"}, {"2", "two\nlines"}, {"3", "a \"word\""}, {"4", "a\ttab"}, {"5", ""}});
    EXPECT_EQ(Rows_As_Text(rows, {0}), "1\tone\n");
    EXPECT_EQ(Rows_As_Text(rows, {4, 1, 2, 3}), "5\t\n2\t\"two\nlines\"\n3\t\"a \"\"word\"\"\"\n4\t\"a\ttab\"\n");
    EXPECT_EQ(Rows_As_Text(rows, {}), "");
}
