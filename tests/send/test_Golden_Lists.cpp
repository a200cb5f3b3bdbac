#include "send/Inputs.h"
#include "send/Send_Test.h"

#include <QDir>

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
QStringList Words_Of(const std::string& call)
{
    const QString text = QString::fromStdString(call);
    const qsizetype message = text.indexOf(QLatin1String(" --message "));
    QStringList words = text.left(message).split(u' ');
    words.front().prepend(Folder());
    words.prepend(QStringLiteral("--table"));
    return words + QStringList{QStringLiteral("--message"), text.mid(message + 11)};
}

Arguments Arguments_Of(const std::string& call)
{
    const Read_Arguments_Result read = Read_Arguments(QStringList("corvane-send") + Words_Of(call));
    EXPECT_FALSE(read.trouble) << read.trouble.Line().toStdString();
    return read.arguments;
}

class Lists : public testing::TestWithParam<Golden_List>
{
};

class Sent_Lists : public Send_Test, public testing::WithParamInterface<Golden_List>
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

TEST_P(Sent_Lists, End_For_Each_Row_As_It_Must)
{
    const auto run = Run_With_Device(Words_Of(GetParam().call));
    std::vector<std::string> ends;
    std::vector<std::string> must;
    for (const std::string& row : GetParam().rows) {
        const QJsonObject end = run.Outcome(static_cast<int>(must.size()) + 1);
        const QString outcome = end.value("outcome").toString();
        ends.push_back((outcome == u"sent" ? QStringLiteral("send") : end.value("reason").toString()).toStdString());
        EXPECT_FALSE(ends.back().empty()) << row;
        const std::size_t verdict = row.find(' ' + ends.back() + ' ');
        must.push_back(verdict == std::string::npos ? row : ends.back());
    }
    EXPECT_EQ(ends, must) << run.errors;
    EXPECT_EQ(Texts().size(), static_cast<std::size_t>(std::count(ends.begin(), ends.end(), "send")));
}

INSTANTIATE_TEST_SUITE_P(Golden, Sent_Lists, testing::ValuesIn(Golden_Lists()));

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
