#pragma once

#include "phone/Path_Link.h"
#include "support/Log_Lines.h"
#include "windows/main/Line_Moods.h"
#include "windows/main/Sending_Test.h"

// A phone under a name that stays when it is plugged in again, a list of two recipients with records and templates
// kept, and a look at everything that a job leaves: boxes, wire, phone, files, list, log, descriptors.
class Line_Test : public Sending_Test
{
public:
    Line_Test(const Phone_Moods& moods, const Line_Way& way);
    ~Line_Test() override;

protected:
    /// Sends the list, and expects exactly this outcome.
    void Send_And_Expect(const Line_Outcome& outcome);
    /// Sends the list and answers the one box that comes.
    void Send_With_One_Box();
    static QString Text_Of(Line_Box box);

    void Expect_On_The_Wire(const Line_Outcome& outcome);
    void Expect_Records(int items);
    void Expect_The_List_As_It_Was();
    void Expect_The_Line_Free();

    /// The cable is pulled: the name of the device goes as well.
    void Pull();
    /// The phone is back, well-mannered, under its old name, and remembers nothing.
    void Plug_In_Again();
    /// The phone is back on the cable under its old name, as it is.
    void Link_To_New_Line();
    /// Well-mannered from now on.
    void Lift_Moods();
    /// The same runner sends to the same phone.
    void Expect_The_Next_Job_To_Work();

    QString Device() const { return m_folder.filePath("phone"); }

    const Line_Way m_way;
    const std::vector<Line_Item> m_items;
    Log_Lines m_log;

private:
    void Bear_With_A_Talker();
    void Link();
    QStringList Session_Log() const;

    QTemporaryDir m_folder;
    std::unique_ptr<Handset::Path_Link> m_link;
    QByteArray m_records; // written so far
};

/// Two recipients, each with a text of its own.
std::vector<Line_Item> Line_Items(const Line_Way& way);

// One combination: the job in it, and the next job without it.
class Line_In_Moods : public Line_Test
{
public:
    explicit Line_In_Moods(const Line_Combination& combination)
        : Line_Test(combination.Moods(), combination.way), m_moods(combination.Moods())
    {
    }
    void TestBody() override;

private:
    const Phone_Moods m_moods;
};

/// Makes a test of each combination, under its name.
bool Register_Combinations(const char* suite, const std::vector<Line_Combination>& combinations);
