#include "platform/Text_Files.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "records/Samples.h"
#include "records/Sent_Item_Store.h"
#include "records/Store_Files.h"
#include "records/Template_Store.h"

#include <QFileInfo>
#include <thread>

namespace {

class Stores : public testing::Test
{
protected:
    static QByteArray Templates_File() { return Bytes_Of(Templates_Path); }

    static QStringList Loaded_Templates()
    {
        QStringList texts;
        Template_Store().Load([&](const Template_Item& item) { texts.append(item.Message); });
        return texts;
    }

    Data_Folder m_folder;
};

} // namespace

TEST_F(Stores, What_Is_Appended_One_By_One_Makes_The_File_And_A_Rewrite_The_Same_File)
{
    for (const auto& item : Sample_Sent_Items())
        EXPECT_TRUE(Sent_Item_Store::Append(item));
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Golden("SentItem.ZOVA"));
    Sent_Item_Store store;
    const Sent_Item_List items = store.Load_List();
    EXPECT_EQ(All_Of(items), Sample_Sent_Items());
    EXPECT_TRUE(store.Rewrite(items));
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Golden("SentItem.ZOVA"));
    for (const auto& item : Sample_Templates())
        EXPECT_TRUE(Template_Store::Append(item.Message));
    EXPECT_EQ(Templates_File(), Golden("Templates.ZOVA"));
}

TEST_F(Stores, A_Template_Is_Stored_Once_As_It_Is_And_A_Blank_Text_Is_None)
{
    EXPECT_TRUE(Template_Store::Append("a\nb"));
    EXPECT_FALSE(Template_Store::Append("a\nb"));
    EXPECT_TRUE(Template_Store::Append(" a "));
    EXPECT_TRUE(Template_Store::Append("a"));
    EXPECT_FALSE(Template_Store::Append(QString()));
    EXPECT_FALSE(Template_Store::Append(" \n\t"));
    EXPECT_EQ(Templates_File(), "a|AP*|DX/b\n a \na\n");
    EXPECT_FALSE(Template_Store::Contains("a "));
    EXPECT_TRUE(Template_Store::Contains(" a "));
    Write_Bytes(Templates_Path, "\n\n");
    EXPECT_FALSE(Template_Store::Contains(QString()));
}

TEST_F(Stores, A_Text_Cut_In_The_Middle_Of_A_Pair_Is_Stored_Once)
{
    const QString cut = QString("x\U0001F600").left(2);
    EXPECT_TRUE(Template_Store::Append(cut));
    EXPECT_FALSE(Template_Store::Append(cut));
    EXPECT_TRUE(Template_Store::Contains(cut));
    EXPECT_EQ(Templates_File(), "x\xef\xbf\xbd\n");
    Write_Bytes(Templates_Path, Templates_File()); // another stamp: it is read from the file
    EXPECT_FALSE(Template_Store::Append(cut));
}

TEST_F(Stores, A_Change_Of_The_File_By_Anybody_Is_Seen)
{
    EXPECT_TRUE(Template_Store::Append("one"));
    Write_Bytes(Templates_Path, "two\n");
    EXPECT_TRUE(Template_Store::Contains("two"));
    EXPECT_FALSE(Template_Store::Contains("one"));
    EXPECT_TRUE(Template_Store::Append("one"));
    ASSERT_TRUE(Append_To_File(Templates_Path, "three\n"));
    EXPECT_FALSE(Template_Store::Append("three"));
    ASSERT_TRUE(QFile::remove(Templates_Path));
    EXPECT_FALSE(Template_Store::Contains("one"));
    EXPECT_TRUE(Template_Store::Append("one"));
    EXPECT_EQ(Templates_File(), "one\n");
    Template_Store store;
    store.Load([](const Template_Item&) {});
    EXPECT_TRUE(store.Rewrite({{"two"}})); // as the window does
    EXPECT_FALSE(Template_Store::Contains("one"));
    EXPECT_TRUE(Template_Store::Contains("two"));
}

TEST_F(Stores, A_Template_Appended_To_A_Last_Line_Without_An_End_Becomes_Part_Of_It)
{
    Write_Bytes(Templates_Path, "one");
    EXPECT_TRUE(Template_Store::Append("two"));
    EXPECT_EQ(Templates_File(), "onetwo\n");
    EXPECT_FALSE(Template_Store::Contains("two"));
    EXPECT_TRUE(Template_Store::Contains("onetwo"));
}

TEST_F(Stores, Nothing_Is_Found_In_A_File_That_Is_No_Utf_8)
{
    Write_Bytes(Templates_Path, "one\n\xff\n");
    EXPECT_FALSE(Template_Store::Contains("one"));
    EXPECT_TRUE(Template_Store::Append("one"));
    EXPECT_FALSE(Template_Store::Contains("one"));
    EXPECT_EQ(Templates_File(), "one\n\xff\none\n");
    EXPECT_TRUE(Loaded_Templates().isEmpty());
}

TEST_F(Stores, Nothing_Is_Stored_Where_Nothing_Can_Be_Written_And_Another_Data_Folder_Has_Other_Templates)
{
    m_folder.Take_Away();
    EXPECT_FALSE(Sent_Item_Store::Append(Sample_Sent_Items().first()));
    EXPECT_FALSE(Template_Store::Append("one"));
    EXPECT_FALSE(Template_Store::Contains("one"));
    m_folder.Bring_Back();
    EXPECT_TRUE(Template_Store::Append("one"));
    const Data_Folder other;
    EXPECT_FALSE(Template_Store::Contains("one"));
    EXPECT_TRUE(Template_Store::Append("one"));
}

TEST_F(Stores, Many_Templates_Are_Not_Read_Anew_For_Each_Message)
{
    QByteArray lines;
    for (int line = 0; line < 100'000; ++line)
        lines += "a template like many others, number " + QByteArray::number(line) + '\n';
    Write_Bytes(Templates_Path, lines);
    const double begin = Now_Seconds();
    for (const bool is_new : {true, false}) {
        for (int message = 0; message < 500; ++message)
            EXPECT_EQ(Template_Store::Append(QString("message %1").arg(message)), is_new);
    }
    EXPECT_LT(Now_Seconds() - begin, 20); // read each time it takes more than a minute
    EXPECT_EQ(Loaded_Templates().size(), 100'500);
}

TEST_F(Stores, Templates_Appended_From_Many_Threads_Are_Each_Stored_Once)
{
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 4; ++thread)
            threads.emplace_back([] {
                for (int text = 0; text < 100; ++text)
                    Template_Store::Append(QString("text %1").arg(text));
            });
    }
    EXPECT_EQ(Templates_File().count('\n'), 100);
}
