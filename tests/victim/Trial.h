#pragma once

#include "phone/Virtual_Phone.h"
#include "victim/Victim.h"
#include "victim/World.h"

#include <vector>

// A victim with a world of its own and a phone.
struct Lane
{
    Ending Live(Order order);
    /// A phone whose program died in the middle of a message takes what comes next for the rest of it.
    void Plug_In_Again();

    Victim victim;
    World world;
    Virtual_Phone phone;
    bool needs_phone = false;
};

// One kind of work: how the world is before it, and what is to be true of it after a life in which something may have
// gone wrong, and after a good start that followed it. The whole is a life in which nothing went wrong.
struct Trial
{
    Order order = {};
    std::function<void(Lane&, const Ending& whole, const Ending& ending)> check = {};
    std::function<void(World&)> prepare = [](World& world) { world.Furnish(); };
    /// Whether the work was done to its end: on a busy computer the phone's answer may come too late for it.
    std::function<bool(const Ending&)> is_whole = [](const Ending&) { return true; };
    bool needs_phone = false;
    std::function<void(Lane&)> look_closer = [](Lane&) {}; ///< is done after some of the lives
};

/// Does the work once whole and then with every fate thought of after that. Returns how many of them came true.
int Try_All(const Trial& trial, const std::function<std::vector<Doom>(const Ending& whole)>& fates);

/// The next start finds nobody else at work, has nothing to say, and leaves nothing about.
void Expect_A_Good_Start(Lane& lane);

/// Each file that is there at any of these times is now as it was before or as it is after a step.
void Expect_Old_Or_New(const World::Files& before, const World::Files& after, const World::Files& now,
                       const QByteArray& step);

// ---- A job: each of its items has a number and a text of its own, from the first number on.

constexpr int First_Number = 100;

QByteArray Text_Of(int item);
QByteArray Record_Of(int item);

/// The items of which there is a line now; it stands behind what was there before, and nothing else does.
struct Kept_Items
{
    std::vector<int> records;
    std::vector<int> templates;
};
Kept_Items Items_Kept(const World::Files& before, const World::Files& now, int first, int items);

/// How many messages the phone has, the first items' each once. Waits for what is on the line still.
int Messages_In(const Virtual_Phone& phone);
/// Whether all of the job was done.
bool Is_Whole_Job(const Ending& ending);
