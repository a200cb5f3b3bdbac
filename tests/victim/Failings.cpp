#include "victim/Failings.h"

#include "victim/Trial.h"

#include <algorithm>
#include <cerrno>
#include <gmock/gmock.h>
#include <set>
#include <sys/stat.h>

using testing::IsEmpty;

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

// What a file holds; a file that is not there is told from an empty one.
QByteArray In(const World::Files& files, const QByteArray& name)
{
    const auto found = files.find(name);
    return found == files.end() ? "(none)" : found->second;
}

// The data files, without what a failed removal may have left until the next start.
World::Files Data_After(const Ending& ending, const QByteArray& step)
{
    World::Files files = ending.Files(step);
    std::erase_if(files, [](const auto& file) { return !file.first.endsWith(".ZOVA"); });
    return files;
}

// How the files came out that a step writes.
struct Outcome
{
    int old = 0;       ///< files that should be new and are as they were before it
    int unchanged = 0; ///< files of which nobody can tell, since the step gives them what they held already
};

// After each step each file is as it should be, or as it was before the step.
Outcome Compare_Step(const Ending& whole, const Ending& ending, qsizetype at, const QByteArrayList& written = {})
{
    const QByteArrayList steps = Steps_In(whole);
    const World::Files before = Data_After(ending, steps.at(std::max<qsizetype>(at - 1, 0)));
    const World::Files wanted = Data_After(whole, steps.at(at));
    const World::Files now = Data_After(ending, steps.at(at));
    std::set<QByteArray> names;
    for (const World::Files& files : {before, wanted, now}) {
        for (const auto& file : files)
            names.insert(file.first);
    }
    Outcome outcome;
    for (const QByteArray& name : names) {
        const bool is_new = In(now, name) == In(wanted, name);
        const bool is_old = In(now, name) == In(before, name);
        EXPECT_TRUE(is_new || is_old) << name.constData() << " after step " << steps.at(at).constData() << ": "
                                      << In(now, name).constData();
        const bool counts = written.contains(name);
        outcome.old += counts && !is_new ? 1 : 0;
        outcome.unchanged += counts && is_new && is_old ? 1 : 0;
    }
    return outcome;
}

// Every step was gone through, whatever failed.
void Expect_A_Life_To_The_End(const Ending& whole, const Ending& ending)
{
    EXPECT_TRUE(ending.lived);
    ASSERT_EQ(Steps_In(ending), Steps_In(whole));
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
    Expect_A_Life_To_The_End(whole, ending);
    const auto steps = Steps_In(whole);
    for (qsizetype at = 0; at < steps.size(); ++at) {
        Compare_Step(whole, ending, at);
        EXPECT_EQ(As_Shown(ending.Boxes(steps.at(at))), As_Shown(whole.Boxes(steps.at(at))))
            << steps.at(at).constData();
    }
}

void Check_Silent(Lane& lane, const Whole& whole, const Ending& ending)
{
    if (!Has_Only_Complained(ending))
        Expect_Silence(whole.ending, ending);
    Expect_A_Good_Start(lane);
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
    Expect_A_Life_To_The_End(whole, ending);
    const auto steps = Steps_In(whole);
    for (qsizetype at = 0; at < steps.size(); ++at) {
        const QByteArray& step = steps.at(at);
        const Outcome outcome = Compare_Step(whole, ending, at, Lists_Written_In(step));
        const auto told = ending.Boxes(step).count(File_Error);
        EXPECT_GE(told, outcome.old) << step.constData();
        EXPECT_LE(told, outcome.old + outcome.unchanged) << step.constData();
        QStringList others = ending.Boxes(step);
        others.removeAll(File_Error);
        // An edit that can not begin does not ask at its end.
        EXPECT_TRUE(others == whole.Boxes(step) || (told > 0 && step == "edit")) << step.constData();
    }
}

// The records are those of the items, each whole or not there. Returns how many are missing.
int Lines_Missing(const QByteArray& now, const QByteArray& before, QByteArray line(int))
{
    EXPECT_TRUE(now.startsWith(before));
    qsizetype at = before.size();
    int missing = 0;
    for (int item = First_Number; item < First_Number + Job_Items; ++item) {
        const QByteArray expected = line(item);
        if (now.mid(at, expected.size()) == expected)
            at += expected.size();
        else
            ++missing;
    }
    EXPECT_EQ(at, now.size()) << "what is neither old nor a whole line: " << now.mid(at).constData();
    return missing;
}

struct Missing
{
    int records = 0;
    int templates = 0;
};

// A job goes on to its end whatever becomes of the records, and says nothing of them.
Missing Check_Job(const Virtual_Phone& phone, const Ending& whole, const Ending& ending)
{
    EXPECT_TRUE(ending.lived);
    const World::Files before = Data_After(whole, "start");
    const World::Files now = Data_After(ending, "job");
    Missing missing;
    missing.records = Lines_Missing(In(now, "SentItem.ZOVA"), In(before, "SentItem.ZOVA"), Record_Of);
    missing.templates = Lines_Missing(In(now, "Templates.ZOVA"), In(before, "Templates.ZOVA"),
                                      [](int item) { return Text_Of(item) + '\n'; });
    const int messages = Messages_In(phone);
    EXPECT_TRUE(!Is_Whole_Job(ending) || messages == Job_Items) << messages;
    return missing;
}

// Each export that could not be written is told of; the stores are left alone, and what is there of an export is right.
void Expect_A_Box_For_Each_Export(const Lane& lane, const Whole& whole, const Ending& ending)
{
    Expect_A_Life_To_The_End(whole.ending, ending);
    const World::Files picked = lane.world.Picked();
    const QByteArrayList steps = Steps_In(ending);
    for (qsizetype at = 0; at < steps.size(); ++at) {
        const QByteArray& step = steps.at(at);
        Compare_Step(whole.ending, ending, at);
        const bool has_failed = std::any_of(ending.made.begin(), ending.made.end(), [&](const QByteArray& call) {
            return call.endsWith(' ' + step + " failed") && !call.startsWith("unlink ");
        });
        // Asked whether the old export may go, the person has agreed.
        const QStringList boxes = whole.ending.Boxes(step) + (has_failed ? QStringList{File_Error} : QStringList());
        EXPECT_EQ(As_Shown(ending.Boxes(step)), As_Shown(boxes)) << step.constData();
        const bool is_export = whole.picked.contains(step);
        EXPECT_TRUE(!is_export || has_failed || In(picked, step) == In(whole.picked, step)) << step.constData();
    }
}

} // namespace

int Fail_First_Starts(int stride)
{
    const auto check = [](Lane& lane, const Whole& whole, const Ending& ending) {
        if (!Has_Only_Complained(ending)) {
            EXPECT_TRUE(ending.lived);
            EXPECT_EQ(As_Shown(ending.All_Boxes()), "");
        }
        Expect_A_Good_Start(lane);
        EXPECT_EQ(lane.world.Data(), Data_After(whole.ending, "start"));
    };
    return Fail({.check = check, .prepare = [](World& world) { world.Empty(); }}, stride);
}

int Fail_Sent_Items(int stride)
{
    return Fail({.errand = {.steps = "sent_items"}, .check = Check_Silent}, stride);
}

int Fail_Templates(int stride)
{
    return Fail({.errand = {.steps = "templates"}, .check = Check_Silent}, stride);
}

int Fail_Exclusion_Lists(int stride)
{
    const auto check = [](Lane& lane, const Whole& whole, const Ending& ending) {
        if (!Has_Only_Complained(ending))
            Expect_A_Box_For_Each_List(whole.ending, ending);
        Expect_A_Good_Start(lane);
    };
    return Fail({.errand = {.steps = "exclusion"}, .check = check}, stride);
}

int Fail_Exports(int stride)
{
    const auto check = [](Lane& lane, const Whole& whole, const Ending& ending) {
        if (!Has_Only_Complained(ending))
            Expect_A_Box_For_Each_Export(lane, whole, ending);
        Expect_A_Good_Start(lane);
    };
    return Fail({.errand = {.steps = "export"}, .check = check}, stride);
}

int Fail_Jobs(int stride)
{
    const auto check = [](Lane& lane, const Whole& whole, const Ending& ending) {
        if (Has_Only_Complained(ending)) {
            Expect_A_Good_Start(lane);
            return;
        }
        const Missing missing = Check_Job(lane.phone, whole.ending, ending);
        const auto writes_failed = [&](const char* file) {
            return std::count_if(ending.made.begin(), ending.made.end(), [&](const QByteArray& call) {
                return call.endsWith(QByteArray(" ") + file + " failed") &&
                       (call.startsWith("write ") || call.startsWith("open ") || call.startsWith("close "));
            });
        };
        if (Is_Whole_Job(ending)) {
            EXPECT_EQ(missing.records, writes_failed("SentItem.ZOVA"));
            EXPECT_EQ(missing.templates, writes_failed("Templates.ZOVA"));
        }
        Expect_A_Good_Start(lane);
    };
    return Fail({.errand = {.steps = "job", .items = Job_Items, .first = First_Number},
                 .check = check,
                 .is_whole = [](const Ending& ending) { return Is_Whole_Job(ending) || !ending.Says("started"); },
                 .needs_phone = true},
                stride);
}

namespace {

// All the work, once on a usual disk and once on one like this, which takes nothing.
void Work_On(char disk)
{
    Lane lane;
    const auto live = [&](Errand errand, char on) {
        lane.world.Furnish();
        lane.Plug_In_Again();
        lane.phone.Forget();
        EXPECT_EQ(chmod(lane.phone.Path().c_str(), 0666), 0); // for nobody, too
        errand.disk = on;
        const Ending ending = lane.Live(errand);
        EXPECT_TRUE(ending.Says("started")) << errand.steps;
        return ending;
    };
    for (const char* steps : {"sent_items", "templates"}) {
        const Ending whole = live({.steps = steps}, 'u');
        const Ending ending = live({.steps = steps}, disk);
        Expect_Silence(whole, ending);
        EXPECT_EQ(Data_After(ending, Steps_In(ending).front()), Data_After(whole, "start"));
        EXPECT_NE(Data_After(ending, Steps_In(ending).at(1)), Data_After(whole, Steps_In(whole).at(1))) << steps;
    }
    const Ending whole_lists = live({.steps = "exclusion"}, 'u');
    const Ending lists = live({.steps = "exclusion"}, disk);
    Expect_A_Box_For_Each_List(whole_lists, lists);
    EXPECT_GT(lists.All_Boxes().count(File_Error), 2);
    lane.needs_phone = true;
    Ending job;
    Missing missing;
    for (int tries = 0; tries < 30 && !Is_Whole_Job(job); ++tries) {
        job = live({.steps = "job", .items = Job_Items, .first = First_Number}, disk);
        missing = Check_Job(lane.phone, whole_lists, job);
    }
    EXPECT_TRUE(Is_Whole_Job(job));
    EXPECT_GT(missing.records, 0);
    EXPECT_GT(missing.templates, 0);
}

} // namespace

void Work_On_A_Full_Disk()
{
    Work_On('f');
}

void Work_In_A_Read_Only_Folder()
{
    Work_On('r');
}
