#include "list/Number_File.h"
#include "list/Number_Rules.h"
#include "support/Files.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <algorithm>
#include <sys/stat.h>

namespace {

class Number_File_Test : public testing::Test
{
protected:
    QString Text_Of(const char* name, const QByteArray& bytes) const
    {
        Write_Bytes(m_folder.filePath(name), bytes);
        return Text_Of_Number_File(m_folder.filePath(name));
    }

    QTemporaryDir m_folder;
};

TEST_F(Number_File_Test, Plain_Text_Is_Taken_As_Strict_Utf_8_Without_A_Mark_At_The_Front)
{
    EXPECT_EQ(Text_Of("a.txt", "1\r\n2\n"), "1\r\n2\n");
    EXPECT_EQ(Text_Of("a", "\xC3\xA4"), QString::fromUtf8("\xC3\xA4"));
    EXPECT_EQ(Text_Of("a.txt", "\xEF\xBB\xBF \n1"), " \n1");
    EXPECT_EQ(Text_Of("a.txt", "1\n2\n\xFF\n3\n"), "");
    EXPECT_EQ(Text_Of("a.txt", QByteArray("\xFF\xFE\x31\x00\x0A\x00", 6)), "") << "UTF-16";
}

TEST_F(Number_File_Test, Rich_Text_Goes_By_Its_Extension)
{
    const QByteArray rich = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 +44-7700\\par 1234\\par}";
    for (const char* name : {"a.rtf", "a.RTF"})
        EXPECT_EQ(Text_Of(name, rich).split('\n', Qt::SkipEmptyParts), QStringList({"+44-7700", "1234"})) << name;
    EXPECT_EQ(Text_Of("a.txt", rich), QString(rich));
}

TEST_F(Number_File_Test, What_Is_No_List_Of_Numbers_Or_Too_Large_Is_Empty_And_Not_Read)
{
    Write_Bytes(m_folder.filePath("a.txt"), "1\n22\n");
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("a.txt"), 5), "1\n22\n");
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("a.txt"), 4), "");
    ASSERT_TRUE(QDir().mkpath(m_folder.filePath("folder.txt")));
    ASSERT_EQ(mkfifo(m_folder.filePath("pipe.txt").toLocal8Bit().constData(), 0600), 0);
    Write_Bytes(m_folder.filePath("huge.txt"), "1\n");
    ASSERT_TRUE(QFile::resize(m_folder.filePath("huge.txt"), Largest_Number_File + 1));
    for (const char* name : {"folder.txt", "pipe.txt", "huge.txt"}) {
        EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath(name)), "") << name;
        EXPECT_EQ(Text_Of_Number_File(m_folder.filePath(name)), "") << name;
    }
    EXPECT_EQ(Bytes_Of_Number_File(m_folder.filePath("missing.txt")), std::nullopt);
    for (const char* name : {"missing.txt", "missing.rtf"})
        EXPECT_EQ(Text_Of_Number_File(m_folder.filePath(name)), "") << name;
}

QString Number_On(const QString& line)
{
    return Number_Texts().Text_Of(Number_In_Line(line));
}

TEST(Number_In_Line, A_Line_Of_A_File_Loses_Braces_Backslashes_And_Dashes)
{
    const std::pair<QString, QString> lines_and_numbers[]{
        {"+44-7700-900123", "00447700900123"},
        {"{\\123}\r", "123"},
        {"-{+}-49-12", "004912"},
        {"1{ }2", ""},
        {"1-2-3-4-5-6-7-8-9-0-1-2-3-4-5-6-7-8-9-0-", "12345678901234567890"},
        {"123456789012345678901", ""},
        {"name", ""},
        {QString(1000, u' ') + "123" + QString(1000, u'\t') + "}", "123"},
        {"123" + QString(1000, u' ') + "4", ""},
        {QString(100000, u'-') + "5", "5"},
    };
    for (const auto& [line, number] : lines_and_numbers)
        EXPECT_EQ(Number_On(line), number) << line.left(60).toStdString();
}

TEST(Number_In_Line, Every_Short_Line_Gives_What_The_Steps_Done_One_By_One_Give)
{
    const QString characters = "1+- {a\r";
    const auto step_by_step = [](QString line) {
        for (const char character : {'\\', '{', '}', '-'})
            line.remove(QLatin1Char(character));
        line = line.trimmed();
        if (line.startsWith('+'))
            line.replace(0, 1, "00");
        const bool is_number = std::all_of(line.begin(), line.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
        return is_number && line.size() <= 20 ? line : QString();
    };
    for (int code = 0; code < 7 * 7 * 7 * 7 * 7; ++code) {
        QString line;
        for (int left = code, place = 0; place < 5; ++place, left /= 7)
            line += characters.at(left % 7);
        ASSERT_EQ(Number_On(line), step_by_step(line)) << line.toStdString();
        const QString long_line = line + "123456789012345" + line;
        ASSERT_EQ(Number_On(long_line), step_by_step(long_line)) << long_line.toStdString();
    }
}

TEST(Number_In_Line, The_Quick_Look_At_A_Line_Is_Of_One_Mind_With_The_Rules)
{
    const QString characters = QString("0123456789+-\r \\{},a\t") + QChar(0x0661) + QChar(QChar::Nbsp);
    QRandomGenerator random(31);
    int numbers = 0;
    const auto expect_one_mind = [&](const QString& line) {
        QString cleaned = line;
        for (const QChar passed_over : {u'\\', u'{', u'}'})
            cleaned.remove(passed_over);
        const QString number = Number_Rules::Normalised_Number(cleaned);
        ASSERT_EQ(Number_On(line), number) << line.toStdString();
        numbers += number.isEmpty() ? 0 : 1;
    };
    for (int round = 0; round < 200'000; ++round) {
        QString line;
        const int length = random.bounded(25);
        const int variety = random.bounded(3) == 0 ? static_cast<int>(characters.size()) : 12 + random.bounded(2);
        for (int i = 0; i < length; ++i)
            line.append(characters[random.bounded(4) == 0 ? random.bounded(variety) : random.bounded(10)]);
        expect_one_mind(line);
        expect_one_mind("+" + line);
        expect_one_mind(line + "\r");
        ASSERT_FALSE(testing::Test::HasFatalFailure());
    }
    EXPECT_GT(numbers, 50'000);
}

} // namespace
