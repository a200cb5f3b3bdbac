#include "victim/Failings.h"

#include "victim/Trial.h"

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

constexpr int Job_Items = 4; // the last one fills a page of the files

const QString File_Error = QStringLiteral("\nError in file accessing.");

std::vector<Doom> All_Failures(const Ending& whole, int stride)
{
    std::vector<Doom> failures;
    for (int call = 1; call <= whole.calls; call += stride) {
        if (whole.made.at(call - 1).startsWith("write the line"))
            continue;
        for (const int error : {ENOSPC, EROFS, EIO}) {
            failures.push_back({.way = Doom::Way::Fail_One, .at = call, .error = error});
            failures.push_back({.way = Doom::Way::Fail_From, .at = call, .error = error});
        }
        failures.push_back({.way = Doom::Way::Fail_One, .at = call, .error = call % 2 == 0 ? EDQUOT : EACCES});
        if (whole.made.at(call - 1).startsWith("write "))
            failures.push_back({.way = Doom::Way::Fill_Up, .at = call, .error = ENOSPC});
    }
    return failures;
}

int Fail(const Trial& trial, int stride)
{
    return Try_All(trial, [stride](const Ending& whole) { return All_Failures(whole, stride); });
}

std::string As_Shown(const QStringList& boxes)
{
    return boxes.join(u'|').toStdString();
}

// The data files, without what a failed removal may have left until the next start.
World::Files Data_After(const Ending& ending, const QByteArray& step)
{
    World::Files files = ending.Files(step);
    std::erase_if(files, [](const auto& file) { return !file.first.endsWith(".ZOVA"); });
    return files;
}

// Goes through every step, whatever failed, after which each file is as it should be or as it was before the step.
void For_Each_Step(const Ending& whole, const Ending& ending,
                   const std::function<void(const QByteArray& step, const World::Files& before)>& check)
{
    EXPECT_TRUE(ending.lived);
    ASSERT_EQ(ending.Steps(), whole.Steps());
    World::Files before = Data_After(ending, ending.Steps().at(0));
    for (const QByteArray& step : ending.Steps()) {
        const World::Files now = Data_After(ending, step);
        Expect_Old_Or_New(before, Data_After(whole, step), now, step);
        check(step, before);
        before = now;
    }
}

// A start that finds the data out of reach says so and ends.
bool Has_Only_Complained(const Ending& ending)
{
    if (ending.Says("started"))
        return false;
    EXPECT_TRUE(ending.lived);
    EXPECT_EQ(As_Shown(ending.All_Boxes()), As_Shown({QStringLiteral("\nCan not access Corvane Data file.")}));
    return true;
}

// Failures of the stores are passed over in silence.
void Expect_Silence(const Ending& whole, const Ending& ending)
{
    For_Each_Step(whole, ending, [&](const QByteArray& step, const World::Files&) {
        EXPECT_EQ(As_Shown(ending.Boxes(step)), As_Shown(whole.Boxes(step))) << step.constData();
    });
}

void Check_Silent(Lane&, const Ending& whole, const Ending& ending)
{
    if (!Has_Only_Complained(ending))
        Expect_Silence(whole, ending);
}

QByteArrayList Lists_Written_In(const QByteArray& step)
{
    if (step == "create")
        return {"ExListIndex.ZOVA", "Fresh.ZOVA"};
    if (step == "apply")
        return {"AppExclusion.ZOVA"};
    if (step == "edit")
        return {"Old.ZOVA"};
    if (step == "delete")
        return {"ExListIndex.ZOVA", "AppExclusion.ZOVA"}; // a list that can not be deleted is passed over in silence
    return {};
}

// Each file of exclusion lists that could not be written is told of.
void Expect_A_Box_For_Each_List(const Ending& whole, const Ending& ending)
{
    For_Each_Step(whole, ending, [&](const QByteArray& step, const World::Files& before) {
        int old = 0;       // files that should be new and are as they were before it
        int unchanged = 0; // files of which nobody can tell, since the step gives them what they held already
        for (const QByteArray& name : Lists_Written_In(step)) {
            const QByteArray now = Content_In(Data_After(ending, step), name);
            const bool is_new = now == Content_In(Data_After(whole, step), name);
            old += is_new ? 0 : 1;
            unchanged += is_new && now == Content_In(before, name) ? 1 : 0;
        }
        const auto told = ending.Boxes(step).count(File_Error);
        EXPECT_GE(told, old) << step.constData();
        EXPECT_LE(told, old + unchanged) << step.constData();
        QStringList others = ending.Boxes(step);
        others.removeAll(File_Error);
        // An edit that can not begin does not ask at its end.
        EXPECT_TRUE(others == whole.Boxes(step) || (told > 0 && step == "edit")) << step.constData();
    });
}

// A job goes on to its end whatever becomes of the records, and says nothing of them.
Kept_Items Check_Job(const Virtual_Phone& phone, const Ending& whole, const Ending& ending)
{
    EXPECT_TRUE(ending.lived);
    const int messages = Messages_In(phone);
    EXPECT_TRUE(!Is_Whole_Job(ending) || messages == Job_Items) << messages;
    return Items_Kept(Data_After(whole, "start"), Data_After(ending, "job"), First_Number, Job_Items);
}

// Each export that could not be written is told of; the stores are left alone, and what is there of an export is right.
void Check_Exports(Lane&, const Ending& whole, const Ending& ending)
{
    if (Has_Only_Complained(ending))
        return;
    For_Each_Step(whole, ending, [&](const QByteArray& step, const World::Files&) {
        const bool has_failed = std::any_of(ending.made.begin(), ending.made.end(), [&](const QByteArray& call) {
            return call.endsWith(' ' + step + " failed") && !call.startsWith("unlink ");
        });
        // Asked whether the old export may go, the person has agreed.
        const QStringList boxes = whole.Boxes(step) + (has_failed ? QStringList{File_Error} : QStringList());
        EXPECT_EQ(As_Shown(ending.Boxes(step)), As_Shown(boxes)) << step.constData();
        EXPECT_TRUE(has_failed || Content_In(ending.picked, step) == Content_In(whole.picked, step))
            << step.constData();
    });
}

void Check_Jobs(Lane& lane, const Ending& whole, const Ending& ending)
{
    if (Has_Only_Complained(ending))
        return;
    const Kept_Items kept = Check_Job(lane.phone, whole, ending);
    const auto writes_failed = [&](const char* file) {
        return std::count_if(ending.made.begin(), ending.made.end(), [&](const QByteArray& call) {
            return call.endsWith(QByteArray(" ") + file + " failed") &&
                   (call.startsWith("write ") || call.startsWith("open ") || call.startsWith("close "));
        });
    };
    if (Is_Whole_Job(ending)) {
        EXPECT_EQ(Job_Items - std::ssize(kept.records), writes_failed("SentItem.ZOVA"));
        EXPECT_EQ(Job_Items - std::ssize(kept.templates), writes_failed("Templates.ZOVA"));
    }
}

void Check_First_Start(Lane& lane, const Ending& whole, const Ending& ending)
{
    if (!Has_Only_Complained(ending)) {
        EXPECT_TRUE(ending.lived);
        EXPECT_EQ(As_Shown(ending.All_Boxes()), "");
    }
    EXPECT_EQ(lane.world.Data(), Data_After(whole, "start"));
}

// All the work, once on a usual disk and once on one like this, which takes nothing.
void Work_On(Disk disk)
{
    Lane lane;
    const auto live = [&](Order order, Disk on) {
        lane.world.Furnish();
        lane.Plug_In_Again();
        lane.phone.Forget();
        EXPECT_EQ(chmod(lane.phone.Path().c_str(), 0666), 0); // for nobody, too
        order.disk = on;
        const Ending ending = lane.Live(order);
        EXPECT_TRUE(ending.Says("started")) << order.steps;
        return ending;
    };
    for (const char* steps : {"sent_items", "templates"}) {
        const Ending whole = live({.steps = steps}, Disk::Usual);
        const Ending ending = live({.steps = steps}, disk);
        Expect_Silence(whole, ending);
        EXPECT_EQ(Data_After(ending, "start"), Data_After(whole, "start"));
        EXPECT_NE(Data_After(ending, ending.Steps().at(1)), Data_After(whole, whole.Steps().at(1))) << steps;
    }
    const Ending whole_lists = live({.steps = "exclusion"}, Disk::Usual);
    const Ending lists = live({.steps = "exclusion"}, disk);
    Expect_A_Box_For_Each_List(whole_lists, lists);
    EXPECT_GT(lists.All_Boxes().count(File_Error), 2);
    lane.needs_phone = true;
    Ending job;
    Kept_Items kept;
    for (int tries = 0; tries < 30 && !Is_Whole_Job(job); ++tries) {
        job = live({.steps = "job", .items = Job_Items, .first = First_Number}, disk);
        kept = Check_Job(lane.phone, whole_lists, job);
    }
    EXPECT_TRUE(Is_Whole_Job(job));
    EXPECT_LT(std::ssize(kept.records), Job_Items);
    EXPECT_LT(std::ssize(kept.templates), Job_Items);
}

} // namespace

int Fail_First_Starts(int stride)
{
    return Fail({.check = Check_First_Start, .prepare = [](World& world) { world.Empty(); }}, stride);
}

int Fail_Sent_Items(int stride)
{
    return Fail({.order = {.steps = "sent_items"}, .check = Check_Silent}, stride);
}

int Fail_Templates(int stride)
{
    return Fail({.order = {.steps = "templates"}, .check = Check_Silent}, stride);
}

int Fail_Exclusion_Lists(int stride)
{
    const auto check = [](Lane&, const Ending& whole, const Ending& ending) {
        if (!Has_Only_Complained(ending))
            Expect_A_Box_For_Each_List(whole, ending);
    };
    return Fail({.order = {.steps = "exclusion"}, .check = check}, stride);
}

int Fail_Exports(int stride)
{
    return Fail({.order = {.steps = "export"}, .check = Check_Exports}, stride);
}

int Fail_Jobs(int stride)
{
    return Fail({.order = {.steps = "job", .items = Job_Items, .first = First_Number},
                 .check = Check_Jobs,
                 .is_whole = [](const Ending& ending) { return Is_Whole_Job(ending) || !ending.Says("started"); },
                 .needs_phone = true},
                stride);
}

void Work_On_A_Full_Disk()
{
    Work_On(Disk::Full);
}

void Work_In_A_Read_Only_Folder()
{
    Work_On(Disk::Read_Only);
}
