#include "send/Inputs.h"
#include "support/Files.h"

#include <QDir>
#include <gtest/gtest.h>

namespace {

// A list of tests/data/tables, and what must become of its rows.
struct Golden_List
{
    std::string call; ///< its file and arguments
    std::vector<std::string> rows;
};

void PrintTo(const Golden_List& list, std::ostream* out)
{
    *out << list.call;
}

QString Folder()
{
    return QStringLiteral(CORVANE_TEST_DATA "/tables/");
}

std::vector<Golden_List> Golden_Lists()
{
    std::vector<Golden_List> lists;
    for (const QByteArray& line : Bytes_Of(Folder() + QStringLiteral("golden_lists.txt")).split('\n')) {
        if (line.startsWith("= "))
            lists.push_back({line.mid(2).toStdString(), {}});
        else if (!line.isEmpty() && !line.startsWith("# ") && !lists.empty())
            lists.back().rows.push_back(line.toStdString());
    }
    return lists;
}

// A message may hold blanks in the names of columns: it is the last argument.
Arguments Arguments_Of(const std::string& call)
{
    const QString text = QString::fromStdString(call);
    const qsizetype message = text.indexOf(QLatin1String(" --message "));
    QStringList words = text.left(message).split(u' ');
    words.front().prepend(Folder());
    words.prepend(QStringLiteral("--table"));
    words.prepend(QStringLiteral("corvane-send"));
    words += {QStringLiteral("--message"), text.mid(message + 11)};
    const Read_Arguments_Result read = Read_Arguments(words);
    EXPECT_FALSE(read.trouble) << read.trouble.Line().toStdString();
    return read.arguments;
}

class Lists : public testing::TestWithParam<Golden_List>
{
};

} // namespace

TEST_P(Lists, Come_Out_As_They_Must)
{
    const Inputs inputs = Read_Inputs(Arguments_Of(GetParam().call));
    ASSERT_FALSE(inputs.trouble) << inputs.trouble.Line().toStdString();
    std::vector<std::string> rows;
    for (const Planned_Row& row : inputs.rows) {
        QString text = row.text;
        const QString verdict = row.Is_To_Be_Sent() ? QStringLiteral("send") : row.skipped;
        text.replace(QLatin1String("\r\n"), QLatin1String("\\n")).replace(u'\n', QLatin1String("\\n"));
        rows.push_back((row.number + u' ' + verdict + u' ' + text).toStdString());
    }
    EXPECT_EQ(rows, GetParam().rows);
}

INSTANTIATE_TEST_SUITE_P(Golden, Lists, testing::ValuesIn(Golden_Lists()));

TEST(Golden_Lists_File, Was_Read)
{
    EXPECT_EQ(Golden_Lists().size(), 18U);
}

TEST(Golden_Lists_File, Knows_Every_List_Of_The_Folder)
{
    QStringList missing = QDir(Folder()).entryList(QDir::Files);
    missing.removeAll(QStringLiteral("golden_lists.txt"));
    missing.removeAll(QStringLiteral("make_lists.py"));
    EXPECT_GE(missing.size(), 15);
    for (const Golden_List& list : Golden_Lists())
        missing.removeAll(QString::fromStdString(list.call).section(u' ', 0, 0));
    EXPECT_EQ(missing, QStringList());
}
