#include "victim/Trial.h"

#include <QDate>
#include <gtest/gtest.h>
#include <thread>

namespace {

constexpr int Lanes = 4; // the lives mostly wait
constexpr int Tries = 30;
constexpr int Lives_Between_Looks = 10;

// The lives of one trial.
class Lives
{
public:
    explicit Lives(const Trial& trial) : m_trial(trial) {}

    int Try_All(const std::function<std::vector<Doom>(const Ending& whole)>& fates)
    {
        Live_The_Whole();
        m_fates = fates(m_whole);
        std::vector<std::jthread> threads;
        for (int i = 0; i < Lanes; ++i)
            threads.emplace_back([this] { Live_In_A_Lane(); });
        threads.clear();
        return m_came_true;
    }

private:
    void Live_The_Whole()
    {
        Lane lane;
        lane.needs_phone = m_trial.needs_phone;
        bool is_whole = false;
        for (int tries = 0; tries < Tries && !is_whole; ++tries) {
            m_whole = Live(lane, {});
            is_whole = m_whole.lived && m_trial.is_whole(m_whole);
        }
        EXPECT_TRUE(is_whole);
        Check(lane, m_whole);
    }

    void Live_In_A_Lane()
    {
        Lane lane;
        lane.needs_phone = m_trial.needs_phone;
        for (int life = 1;; ++life) {
            const std::size_t next = m_next++;
            if (next >= m_fates.size() || testing::Test::HasFailure())
                return;
            bool comes_true = false;
            for (int tries = 0; tries < Tries && !comes_true; ++tries)
                comes_true = Comes_True(lane, m_fates.at(next));
            m_came_true += comes_true ? 1 : 0;
            if (life % Lives_Between_Looks == 0)
                m_trial.look_closer(lane);
        }
    }

    bool Comes_True(Lane& lane, const Doom& doom)
    {
        const Ending ending = Live(lane, doom);
        const std::string last = ending.made.value(doom.at - 1).toStdString();
        SCOPED_TRACE(m_trial.order.steps + ": " + static_cast<char>(doom.way) + " at call " + std::to_string(doom.at) +
                     " for " + std::to_string(doom.error) + ": " + last);
        Check(lane, ending);
        const bool is_death = doom.error == 0; // what fails has a reason
        return is_death ? ending.was_killed : m_trial.is_whole(ending);
    }

    void Check(Lane& lane, const Ending& ending)
    {
        Expect_A_Good_Start(lane);
        m_trial.check(lane, m_whole, ending);
    }

    Ending Live(Lane& lane, const Doom& doom)
    {
        m_trial.prepare(lane.world);
        lane.Plug_In_Again();
        lane.phone.Forget();
        Order order = m_trial.order;
        order.doom = doom;
        order.doom.counts_reads = m_trial.order.doom.counts_reads;
        return lane.Live(order);
    }

    const Trial& m_trial;
    Ending m_whole;
    std::vector<Doom> m_fates;
    std::atomic<std::size_t> m_next = 0;
    std::atomic<int> m_came_true = 0;
};

} // namespace

Ending Lane::Live(Order order)
{
    order.world = world.Path().toStdString();
    if (needs_phone)
        order.phone = phone.Path();
    Ending ending = victim.Live(order);
    ending.picked = world.Picked();
    return ending;
}

void Lane::Plug_In_Again()
{
    if (needs_phone)
        phone.Plug_In_Again();
}

int Try_All(const Trial& trial, const std::function<std::vector<Doom>(const Ending& whole)>& fates)
{
    return Lives(trial).Try_All(fates);
}

void Expect_A_Good_Start(Lane& lane)
{
    const Ending start = lane.Live({});
    EXPECT_TRUE(start.lived);
    EXPECT_TRUE(start.Says("outcome first")) << "a lock of the dead is taken for one of the living";
    EXPECT_TRUE(start.Says("started"));
    EXPECT_EQ(start.All_Boxes().join(u'|').toStdString(), "");
    EXPECT_EQ(lane.world.Strangers(), "");
}

void Expect_Old_Or_New(const World::Files& before, const World::Files& after, const World::Files& now,
                       const QByteArray& step)
{
    for (const World::Files& files : {before, after, now}) {
        for (const auto& [name, content] : files) {
            const QByteArray found = Content_In(now, name);
            EXPECT_TRUE(found == Content_In(before, name) || found == Content_In(after, name))
                << name.constData() << " after step " << step.constData() << " holds " << found.constData();
        }
    }
}

QByteArray Text_Of(int item)
{
    return "message " + QByteArray::number(item) + ' ' + QByteArray(item % 4 == 3 ? 150 : 20, 'x');
}

QByteArray Record_Of(int item)
{
    static const QByteArray today = QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy")).toUtf8();
    return World::Record(item, Text_Of(item), today);
}

Kept_Items Items_Kept(const World::Files& before, const World::Files& now, int first, int items)
{
    const auto lines = [&](const char* name, const std::function<QByteArray(int)>& line) {
        const QByteArray file = Content_In(now, name);
        EXPECT_TRUE(file.startsWith(Content_In(before, name))) << name;
        auto at = Content_In(before, name).size();
        std::vector<int> kept;
        for (int item = first; item < first + items; ++item) {
            if (file.mid(at).startsWith(line(item))) {
                kept.push_back(item);
                at += line(item).size();
            }
        }
        EXPECT_EQ(at, file.size()) << "what is neither old nor a whole line: " << file.mid(at).constData();
        return kept;
    };
    return {lines("SentItem.ZOVA", Record_Of), lines("Templates.ZOVA", [](int item) { return Text_Of(item) + '\n'; })};
}

int Messages_In(const Virtual_Phone& phone)
{
    do
        phone.Heard();
    while (!phone.Is_Silent(15));
    const auto inbox = phone.Inbox();
    for (std::size_t item = 0; item < inbox.size(); ++item) {
        const int number = First_Number + static_cast<int>(item);
        EXPECT_EQ(inbox.at(item).m_number, std::to_string(number));
        EXPECT_EQ(inbox.at(item).m_text, Text_Of(number).toStdString());
    }
    return static_cast<int>(inbox.size());
}

bool Is_Whole_Job(const Ending& ending)
{
    return ending.All_Boxes() == QStringList{QStringLiteral("\nMessage Sending Process Completed.")};
}
