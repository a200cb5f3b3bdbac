#pragma once

#include "phone/Virtual_Phone.h"
#include "victim/Victim.h"
#include "victim/World.h"

#include <functional>
#include <vector>

// A victim with a world of its own and a phone.
struct Lane
{
    Ending Live(Errand errand);
    /// A phone whose program died in the middle of a message takes what comes next for the rest of it.
    void Plug_In_Again();

    Victim victim;
    World world;
    Virtual_Phone phone;
    bool needs_phone = false;
};

/// A life in which nothing went wrong.
struct Whole
{
    Ending ending;
    World::Files picked; ///< see World::Picked
};

// One kind of work: how the world is before it, and what is to be true of it after a life in which something may have
// gone wrong.
struct Trial
{
    Errand errand = {};
    std::function<void(Lane&, const Whole& whole, const Ending& ending)> check = {};
    std::function<void(World&)> prepare = [](World& world) { world.Furnish(); };
    /// Whether the work was done to its end: on a busy computer the phone's answer may come too late for it.
    std::function<bool(const Ending&)> is_whole = [](const Ending&) { return true; };
    bool needs_phone = false;
    std::function<void(Lane&)> look_closer = [](Lane&) {}; ///< is done after some of the lives
};

/// Lets the work be done once with nothing wrong, and then with every fate that is thought of after that, in several
/// lanes at a time. Returns how many of them came true.
int Try_All(const Trial& trial, const std::function<std::vector<Doom>(const Ending& whole)>& fates);

/// The names of the steps that were done, in order.
QByteArrayList Steps_In(const Ending& ending);

/// The next start finds nobody else at work, has nothing to say, and leaves nothing about.
void Expect_A_Good_Start(Lane& lane);

// ---- A job: each of its items has a number and a text of its own, from the first number on.

constexpr int First_Number = 100;

QByteArray Text_Of(int item);
QByteArray Record_Of(int item);

/// How many messages the phone has, the first items' each once. Waits for what is on the line still.
int Messages_In(const Virtual_Phone& phone);
/// Whether all of the job was done.
bool Is_Whole_Job(const Ending& ending);
