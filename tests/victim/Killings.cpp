#include "victim/Killings.h"

#include "victim/Trial.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

namespace {

constexpr int Job_Items = 20;

// Each data file is as it was after the last step that was done, or as it is after the next one.
void Expect_Old_Or_New(Lane& lane, const Ending& whole, const Ending& killed)
{
    const QByteArrayList steps = Steps_In(whole);
    const auto done = Steps_In(killed).size();
    const World::Files before = whole.Files(steps.at(std::max<qsizetype>(done - 1, 0)));
    const World::Files after = whole.Files(steps.at(std::min(done, steps.size() - 1)));
    const World::Files now = lane.world.Data();
    const auto in = [](const World::Files& files, const QByteArray& name) {
        const auto found = files.find(name);
        return found == files.end() ? std::nullopt : std::optional(found->second);
    };
    for (const World::Files& files : {before, after, now}) {
        for (const auto& [name, content] : files)
            EXPECT_TRUE(in(now, name) == in(before, name) || in(now, name) == in(after, name))
                << name.constData() << " after step " << done << " holds "
                << in(now, name).value_or("(none)").constData();
    }
}

// The rows of the windows are what is in the files.
void Expect_Windows_To_Show_The_Files(Lane& lane)
{
    const World::Files files = lane.world.Data();
    const Ending look = lane.Live({.steps = "look"});
    EXPECT_TRUE(look.lived);
    QByteArray records;
    for (const QString& row : look.Rows("sent")) {
        const QStringList cells = row.split(u'\t');
        records += World::Record(cells.at(0).toInt(), cells.at(1).toUtf8(), cells.at(2).toUtf8());
    }
    EXPECT_EQ(records, files.at("SentItem.ZOVA"));
    const auto lines = [&](const char* what) {
        QByteArray all;
        for (const QString& row : look.Rows(what))
            all += row.toUtf8() + '\n';
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

void Check_Old_Or_New(Lane& lane, const Whole& whole, const Ending& killed)
{
    Expect_A_Good_Start(lane);
    Expect_Old_Or_New(lane, whole.ending, killed);
}

// How many lines have come to the file's end, behind what was there before; they are to be those of the items from the
// first one on.
int Lines_Added(const QByteArray& now, const QByteArray& before, int first, QByteArray line(int))
{
    EXPECT_TRUE(now.startsWith(before));
    int count = 0;
    for (auto at = before.size(); at < now.size(); ++count) {
        const QByteArray expected = line(first + count);
        EXPECT_EQ(now.mid(at, expected.size()), expected) << "line " << count;
        at += expected.size();
    }
    return count;
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
    Expect_A_Good_Start(lane);
    World::Files now = lane.world.Data();
    World::Files old = before.files;
    EXPECT_TRUE(World::Are_Records(now["SentItem.ZOVA"]));
    const int records = Lines_Added(now["SentItem.ZOVA"], old["SentItem.ZOVA"], first, Record_Of);
    const int templates =
        Lines_Added(now["Templates.ZOVA"], old["Templates.ZOVA"], first, [](int item) { return Text_Of(item) + '\n'; });
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
    const auto check = [&](Lane& lane, const Whole&, const Ending&) {
        Expect_A_Good_Start(lane);
        EXPECT_EQ(lane.world.Data(), fresh);
    };
    return Kill({.check = check, .prepare = [](World& world) { world.Empty(); }}, stride);
}

int Kill_Sent_Items(int stride)
{
    return Kill({.errand = {.steps = "sent_items"}, .check = Check_Old_Or_New}, stride);
}

int Kill_Templates(int stride)
{
    return Kill({.errand = {.steps = "templates"}, .check = Check_Old_Or_New}, stride);
}

int Kill_Exclusion_Lists(int stride)
{
    return Kill({.errand = {.steps = "exclusion"}, .check = Check_Old_Or_New}, stride);
}

int Kill_Phone_Wizards(int stride)
{
    const auto has_selected = [](const Ending& ending) { return ending.Says("selected"); };
    return Kill(
        {.errand = {.steps = "wizard"}, .check = Check_Old_Or_New, .is_whole = has_selected, .needs_phone = true},
        stride);
}

int Kill_Imports(int stride)
{
    const auto check = [](Lane& lane, const Whole& whole, const Ending& killed) {
        Check_Old_Or_New(lane, whole, killed);
        EXPECT_EQ(lane.world.Picked(), whole.picked);
    };
    return Kill({.errand = {.steps = "import", .doom = {.counts_reads = true}}, .check = check}, stride);
}

int Kill_Exports(int stride)
{
    World before;
    before.Furnish();
    const World::Files old = before.Picked();
    const auto check = [&](Lane& lane, const Whole& whole, const Ending& killed) {
        Check_Old_Or_New(lane, whole, killed);
        for (const auto& [name, content] : lane.world.Picked())
            EXPECT_TRUE(content == old.at(name) || whole.picked.at(name).startsWith(content)) << name.constData();
    };
    return Kill({.errand = {.steps = "export"}, .check = check}, stride);
}

int Kill_Jobs(int stride)
{
    World furnished;
    furnished.Furnish();
    const Before before = {furnished.Data()};
    const auto check = [&](Lane& lane, const Whole& whole, const Ending& killed) {
        Check_Job(lane, before, killed);
        EXPECT_EQ(whole.ending.Done("create SentItem.ZOVA.appending "), 1) << "no page of the file was filled";
    };
    return Kill({.errand = {.steps = "job", .items = Job_Items, .first = First_Number},
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
        const QByteArray old = Bytes_In(sent);
        const QByteArray record = Record_Of(First_Number);
        world.Put(sent + u".appending"_qs, QByteArray::number(old.size()) + '\n' + record);
        world.Put(sent, old + record.left(17));
    };
    const auto check = [&](Lane& lane, const Whole&, const Ending&) {
        Expect_A_Good_Start(lane);
        EXPECT_EQ(lane.world.Data(), whole);
    };
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
        Check_Job(lane, before, ending);
    }
    EXPECT_GT(Messages_In(lane.phone), deaths);
    return kills;
}
