#include "engine/Killed_Job.h"
#include "support/Lanes.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>
#include <sys/mman.h>

// A whole confirmed job that is killed at every call that changes files and at every byte on the line, and whose
// power fails there. By default an evenly spread part of all these; all of them where CORVANE_DEATHS is "all".

namespace {

constexpr std::size_t Usual_Deaths = 200;
constexpr int Usual_Chains = 24;
constexpr int All_Chains = 600;

using Kind = Message_Manner::Kind;

const Killed_List Plain{{
    {"0700900100", "One"},
    {"0700900101", QStringLiteral("A message of three parts. ").repeated(13), 3},
    {"0700900102", "Refused", 1, Row_State::Refused},
}};
const Killed_List Doubtful{{
    {"0700900100", "One"},
    {"0700900101", "No word about it", 1, Row_State::May_Have_Been_Sent},
    {"0700900102", "Three"},
}};
// Two tries that wait, a result that comes no sooner than the device is asked whether it still answers, a hold for a
// network that is there and one for a network that is gone, and reports. Messages are counted as they are begun in a
// life that nothing cuts off.
const Killed_List Waiting{
    {{"0700900100", "Tried again", 1, Row_State::Sent, {{Kind::Refused, 1, 2, {}, "+CMS ERROR: 41"}}},
     {"0700900101", "Late", 1, Row_State::Sent, {{Kind::At_The_Next_Command, 1, INT_MAX, {}, "AT"}}},
     {"0700900102",
      QStringLiteral("Held in front of its second part. ").repeated(7),
      2,
      Row_State::Sent,
      {{Kind::Refused, 6, 6, {}, "+CMS ERROR: 331"}}}},
    true,
    7};

struct Fate
{
    const Killed_List* list;
    Job_Death death;
    Disk_After disk;
    bool sends_unknown;
};

bool Are_All_Wanted()
{
    return qEnvironmentVariable("CORVANE_DEATHS") == QLatin1String("all");
}

// Every place in the life of a job.
std::vector<Job_Death> Deaths_In(const Killed_List& list)
{
    using At = Job_Death::At;
    Killed_Job job(list);
    const Job_Life whole = job.Live_Until({});
    EXPECT_FALSE(whole.was_killed);
    std::vector<Job_Death> deaths;
    for (const auto& [at, count] :
         {std::pair(At::Before_Call, whole.calls), std::pair(At::After_Call, whole.calls),
          std::pair(At::Byte_Written, whole.bytes_written), std::pair(At::Byte_Read, whole.bytes_read),
          std::pair(At::Text_Shown, whole.texts_shown)})
        for (int i = 1; i <= count; ++i)
            deaths.push_back({at, i});
    return deaths;
}

std::vector<Fate> All_Fates()
{
    std::vector<Fate> fates;
    for (const auto* list : {&Plain, &Doubtful, &Waiting})
        for (const Job_Death& death : Deaths_In(*list))
            for (const Disk_After disk : {Disk_After::As_Written, Disk_After::As_Synced, Disk_After::Half_Way})
                for (const bool sends_unknown : {false, true})
                    if (disk != Disk_After::Half_Way || death.at == Job_Death::At::After_Call)
                        fates.push_back({list, death, disk, sends_unknown});
    return fates;
}

std::vector<Fate> Spread(const std::vector<Fate>& fates, std::size_t count)
{
    std::vector<Fate> chosen;
    for (std::size_t i = 0; i < count; ++i)
        chosen.push_back(fates[i * fates.size() / count]);
    return chosen;
}

// A number that all lanes see.
std::atomic<int>& Came_True()
{
    static void* const place =
        mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return *static_cast<std::atomic<int>*>(place);
}

std::string Name_Of(const Fate& fate)
{
    constexpr const char* places[] = {"never",           "before call",  "after call",
                                      "at byte written", "at byte read", "at text"};
    constexpr const char* disks[] = {"as written", "as synced", "half way"};
    const char* const list = fate.list == &Plain ? "plain" : fate.list == &Doubtful ? "doubtful" : "waiting";
    return std::string(list) + " job, killed " + places[static_cast<int>(fate.death.at)] + ' ' +
           std::to_string(fate.death.count) + ", disk " + disks[static_cast<int>(fate.disk)] +
           (fate.sends_unknown ? ", unknown rows again" : "");
}

} // namespace

TEST(Killed_Jobs, Send_Nothing_Twice_And_Name_Every_Doubt_Wherever_They_Died)
{
    const std::vector<Fate> all = All_Fates();
    EXPECT_GT(all.size(), 2000U);
    const std::vector<Fate> fates = Are_All_Wanted() ? all : Spread(all, Usual_Deaths);
    Came_True() = 0;
    EXPECT_TRUE(Do_In_Lanes(static_cast<int>(fates.size()), [&](int piece) {
        const Fate& fate = fates[static_cast<std::size_t>(piece)];
        SCOPED_TRACE(Name_Of(fate));
        Killed_Job job(*fate.list);
        Came_True() += job.Live_Until(fate.death, fate.disk).was_killed ? 1 : 0;
        job.Live_To_The_End(fate.sends_unknown);
    }));
    EXPECT_GE(Came_True(), static_cast<int>(fates.size()) * 99 / 100);
    printf("%d of %zu deaths\n", Came_True().load(), all.size());
}

// Each life goes on where the one before it died.
TEST(Killed_Jobs, Send_Nothing_Twice_However_Often_They_Died)
{
    constexpr int most_deaths = 5;
    const std::vector<std::pair<const Killed_List*, std::vector<Job_Death>>> jobs{{&Plain, Deaths_In(Plain)},
                                                                                  {&Waiting, Deaths_In(Waiting)}};
    Came_True() = 0;
    const int chains = Are_All_Wanted() ? All_Chains : Usual_Chains;
    EXPECT_TRUE(Do_In_Lanes(chains, [&](int piece) {
        QRandomGenerator dice(static_cast<quint32>(piece));
        SCOPED_TRACE("chain " + std::to_string(piece));
        const auto& [list, deaths] = jobs[static_cast<std::size_t>(piece / 2 % 2)];
        Killed_Job job(*list);
        const bool sends_unknown = piece % 2 == 1;
        bool was_killed = true;
        for (int i = 0; i < most_deaths && was_killed; ++i) {
            const Job_Death death = deaths[dice.bounded(static_cast<quint32>(deaths.size()))];
            was_killed = job.Live_Until(death, static_cast<Disk_After>(dice.bounded(3)), sends_unknown).was_killed;
            Came_True() += was_killed ? 1 : 0;
        }
        job.Live_To_The_End(sends_unknown);
    }));
    EXPECT_GT(Came_True(), 2 * chains);
}
