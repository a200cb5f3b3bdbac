#include "victim/Killings.h"

#include "support/Files.h"
#include "victim/Trial.h"

#include <algorithm>

namespace {

constexpr int Job_Items = 20;

// Each data file is as it was after the last step that was done, or as it is after the next one.
void Check_Old_Or_New(Lane& lane, const Ending& whole, const Ending& killed)
{
    const QByteArrayList steps = whole.Steps();
    const auto done = killed.Steps().size();
    const QByteArray last = steps.at(std::max<qsizetype>(done - 1, 0));
    const QByteArray next = steps.at(std::min(done, steps.size() - 1));
    Expect_Old_Or_New(whole.Files(last), whole.Files(next), lane.world.Data(), last);
}

// The rows of the windows are what is in the files.
void Expect_Windows_To_Show_The_Files(Lane& lane)
{
    const World::Files files = lane.world.Data();
    const Ending look = lane.Live({.steps = "look"});
    EXPECT_TRUE(look.lived);
    QByteArray records;
    for (const QByteArray& row : look.Rows("sent")) {
        const QByteArrayList cells = row.split('\t');
        records += World::Record(cells.at(0).toInt(), cells.at(1), cells.at(2));
    }
    EXPECT_EQ(records, files.at("SentItem.ZOVA"));
    const auto lines = [&](const char* what) {
        QByteArray all;
        for (const QByteArray& row : look.Rows(what))
            all += row + '\n';
        return all;
    };
    EXPECT_EQ(lines("template"), files.at("Templates.ZOVA"));
    EXPECT_EQ(lines("list"), files.at("ExListIndex.ZOVA"));
    EXPECT_EQ(lines("applied"), files.at("AppExclusion.ZOVA"));
    EXPECT_EQ(lane.world.Data(), files) << "closing the windows has changed something";
    EXPECT_EQ(look.All_Boxes(), QStringList());
}

std::vector<Doom> All_Deaths(const Ending& whole, int stride)
{
    std::vector<Doom> deaths;
    for (int call = 1; call <= whole.calls; call += stride) {
        const QByteArray& made = whole.made.at(call - 1);
        deaths.push_back({.way = Doom::Way::Kill_Before, .at = call});
        deaths.push_back({.way = Doom::Way::Kill_After, .at = call});
        if (made.startsWith("write ") && made.contains(".ZOVA"))
            deaths.push_back({.way = Doom::Way::Kill_Within, .at = call});
    }
    return deaths;
}

int Kill(Trial trial, int stride)
{
    trial.look_closer = Expect_Windows_To_Show_The_Files;
    return Try_All(trial, [stride](const Ending& whole) { return All_Deaths(whole, stride); });
}

// How things were before a job.
struct Before
{
    World::Files files;
    int messages = 0; // on the phone
};

// The record of a message whose append was done is there, and no other: of what the phone has, the last message's can
// be missing, when death came between the two. The same holds of its template and its record.
void Check_Job(Lane& lane, const Before& before, const Ending& killed)
{
    const int first = First_Number + before.messages;
    const int messages = Messages_In(lane.phone) - before.messages;
    const World::Files now = lane.world.Data();
    EXPECT_TRUE(World::Are_Records(now.at("SentItem.ZOVA")));
    const Kept_Items kept = Items_Kept(before.files, now, first, Job_Items);
    for (const auto& items : {kept.records, kept.templates})
        EXPECT_TRUE(items.empty() || items.back() + 1 == first + std::ssize(items)) << "there is a gap";
    const auto records = std::ssize(kept.records);
    const auto templates = std::ssize(kept.templates);
    EXPECT_TRUE(messages == records || messages == records + 1) << messages << " sent, " << records << " kept";
    EXPECT_TRUE(records == templates || records == templates + 1) << records << " kept, " << templates << " templates";
    // A write that is cut off at the end of a page is not done.
    const int written = killed.Done("write SentItem.ZOVA ");
    EXPECT_TRUE(records == written || (killed.was_killed && records + 1 == written)) << records << " of " << written;
    EXPECT_TRUE(!Is_Whole_Job(killed) || templates == messages);
}

} // namespace

int Kill_First_Starts(int stride)
{
    const World::Files fresh = {
        {"SentItem.ZOVA", ""}, {"Templates.ZOVA", ""}, {"AppExclusion.ZOVA", ""}, {"ExListIndex.ZOVA", ""}};
    const auto check = [&](Lane& lane, const Ending&, const Ending&) { EXPECT_EQ(lane.world.Data(), fresh); };
    return Kill({.check = check, .prepare = [](World& world) { world.Empty(); }}, stride);
}

int Kill_Sent_Items(int stride)
{
    return Kill({.order = {.steps = "sent_items"}, .check = Check_Old_Or_New}, stride);
}

int Kill_Templates(int stride)
{
    return Kill({.order = {.steps = "templates"}, .check = Check_Old_Or_New}, stride);
}

int Kill_Exclusion_Lists(int stride)
{
    return Kill({.order = {.steps = "exclusion"}, .check = Check_Old_Or_New}, stride);
}

int Kill_Phone_Wizards(int stride)
{
    const auto has_selected = [](const Ending& ending) { return ending.Says("selected"); };
    return Kill(
        {.order = {.steps = "wizard"}, .check = Check_Old_Or_New, .is_whole = has_selected, .needs_phone = true},
        stride);
}

int Kill_Imports(int stride)
{
    const auto check = [](Lane& lane, const Ending& whole, const Ending& killed) {
        Check_Old_Or_New(lane, whole, killed);
        EXPECT_EQ(lane.world.Picked(), whole.picked);
    };
    return Kill({.order = {.steps = "import", .doom = {.counts_reads = true}}, .check = check}, stride);
}

int Kill_Exports(int stride)
{
    World before;
    before.Furnish();
    const World::Files old = before.Picked();
    const auto check = [&](Lane& lane, const Ending& whole, const Ending& killed) {
        Check_Old_Or_New(lane, whole, killed);
        for (const auto& [name, content] : lane.world.Picked())
            EXPECT_TRUE(content == old.at(name) || whole.picked.at(name).startsWith(content)) << name.constData();
    };
    return Kill({.order = {.steps = "export"}, .check = check}, stride);
}

int Kill_Jobs(int stride)
{
    World furnished;
    furnished.Furnish();
    const Before before = {furnished.Data()};
    const auto check = [&](Lane& lane, const Ending& whole, const Ending& killed) {
        Check_Job(lane, before, killed);
        EXPECT_EQ(whole.Done("create SentItem.ZOVA.appending "), 1) << "no page of the file was filled";
    };
    return Kill({.order = {.steps = "job", .items = Job_Items, .first = First_Number},
                 .check = check,
                 .is_whole = Is_Whole_Job,
                 .needs_phone = true},
                stride);
}

// What a death can leave at the worst: replacements, one of them of a file's kept bytes, and an append that was cut off
// at the end of a page, with its note.
int Kill_Later_Starts(int stride)
{
    World furnished;
    furnished.Furnish();
    const World::Files whole = furnished.Data();
    const auto prepare = [](World& world) {
        world.Furnish();
        const QString data = world.Data_Folder();
        for (const char* left : {"SentItem.ZOVA.new", "Templates.ZOVA.new", "Templates.ZOVA.unreadable.new",
                                 "Exclusion/Old.ZOVA.new", "Exclusion/Fresh.ZOVA.new"})
            world.Put(data + u'/' + QLatin1String(left), "half of some");
        const QString sent = data + u"/SentItem.ZOVA"_qs;
        const QByteArray old = Bytes_Of(sent);
        const QByteArray record = Record_Of(First_Number);
        world.Put(sent + u".appending"_qs, QByteArray::number(old.size()) + '\n' + record);
        world.Put(sent, old + record.left(17));
    };
    const auto check = [&](Lane& lane, const Ending&, const Ending&) { EXPECT_EQ(lane.world.Data(), whole); };
    return Kill({.check = check, .prepare = prepare}, stride);
}

int Kill_One_Job_Again_And_Again(int deaths)
{
    Lane lane;
    lane.needs_phone = true;
    lane.world.Furnish();
    int kills = 0;
    for (int life = 0; kills < deaths && life < 10 * deaths && !testing::Test::HasFailure(); ++life) {
        lane.Plug_In_Again();
        const Before before = {lane.world.Data(), Messages_In(lane.phone)};
        // From the first calls of the preparation to some messages later.
        const Doom doom = {.way = life % 2 == 0 ? Doom::Way::Kill_Before : Doom::Way::Kill_Within,
                           .at = 8 + life * 7 % 50};
        SCOPED_TRACE("life " + std::to_string(life) + ", killed at call " + std::to_string(doom.at));
        const Ending ending =
            lane.Live({.steps = "job", .items = 8, .first = First_Number + before.messages, .doom = doom});
        kills += ending.was_killed ? 1 : 0;
        Expect_A_Good_Start(lane);
        Check_Job(lane, before, ending);
    }
    EXPECT_GT(Messages_In(lane.phone), deaths);
    return kills;
}
