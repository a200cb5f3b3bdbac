#include "device/Device_Test.h"

#include "device/Device_Paths.h"
#include "device/KVSerialPortList.h"

namespace {

// A search that finds what the test says.
class Given_Ports : public Port_Finder
{
public:
    bool Can_Ask() const override { return m_can_ask; }
    int Find_Ports(Modem_Iterator& iterator) const override
    {
        iterator = Modem_Iterator(m_entries);
        return m_status;
    }

    void Set_Paths(const std::vector<std::string>& paths)
    {
        m_entries.clear();
        for (const auto& path : paths)
            m_entries.append({QByteArray::fromStdString(path)});
    }

    bool m_can_ask = true;
    int m_status = 0;
    QList<Modem_Entry> m_entries;
};

class Found_Ports : public Found_Port_List
{
public:
    void Insert_port_in_List(const QString& path) override { m_paths.push_back(path.toStdString()); }
    std::vector<std::string> m_paths;
};

class Discovery : public Device_Test
{
protected:
    int Search(int room = 1024)
    {
        Modem_Iterator iterator;
        EXPECT_EQ(m_session.FindModems(iterator), 0);
        return m_session.GetModemPath(iterator, m_path, room, m_found);
    }

    Given_Ports m_finder;
    Found_Ports m_found;
    QString m_path;
    MFCSMS m_session{Real_Serial_Calls(), m_finder};
};

} // namespace

TEST_F(Discovery, Ports_That_Open_Are_Found_And_Others_Are_Passed_Over)
{
    Virtual_Phone first;
    Virtual_Phone second(Mood(&Phone_Moods::m_silent)); // opens all the same
    m_finder.Set_Paths({first.Path(), "/nowhere", second.Path(), "/dev/null"});
    m_finder.m_entries.prepend(Modem_Entry{std::nullopt}); // an entry without a path
    EXPECT_EQ(Search(), 0);
    EXPECT_EQ(m_found.m_paths, Lines(first.Path(), second.Path()));
    EXPECT_EQ(m_path, "/dev/null"); // the last one examined
    EXPECT_EQ(m_log.Count("Modem found with BSD path: " + first.Path() + "\n"), 1);
    EXPECT_EQ(m_log.Count("Modem found with BSD path: " + second.Path() + "\n"), 1);
    EXPECT_TRUE(first.Is_Silent());
    // Both are free again.
    m_found.m_paths.clear();
    EXPECT_EQ(Search(), 0);
    EXPECT_EQ(m_found.m_paths.size(), 2u);
}

TEST_F(Discovery, Without_A_Port_That_Opens_The_Result_Is_Five)
{
    m_path = "old";
    EXPECT_EQ(Search(), 5);
    EXPECT_EQ(m_path, QString());
    m_finder.Set_Paths({"/nowhere"});
    m_finder.m_can_ask = false; // without a register to ask an empty line is logged, and the search goes on
    m_log.Forget();
    EXPECT_EQ(Search(), 5);
    EXPECT_EQ(m_log.All().front(), "");
    EXPECT_EQ(m_path, "/nowhere");
    EXPECT_TRUE(m_found.m_paths.empty());
}

TEST_F(Discovery, A_Path_Without_Room_Is_Logged_And_Passed_Over_And_A_Search_That_Fails_Logged_With_Its_Status)
{
    m_finder.Set_Paths({"/dev/1234"});
    EXPECT_EQ(Search(9), 5);
    EXPECT_TRUE(m_log.Has("error CFStringGetCString: File name too long(36)\n"));
    m_log.Forget();
    EXPECT_EQ(Search(10), 5);
    EXPECT_TRUE(m_log.Has("Error opening serial port /dev/1234 - No such file or directory(2).\n"));
    m_log.Forget();
    m_finder.m_status = 17;
    Modem_Iterator iterator;
    EXPECT_EQ(m_session.FindModems(iterator), 17);
    EXPECT_EQ(m_log.All(), Lines("IOServiceGetMatchingServices returned 17\n"));
}

TEST_F(Discovery, The_System_Search_Offers_The_Extra_Paths_Once_Each)
{
    Set_Extra_Device_Paths({"/dev/given", "/dev/given", QString(), "/dev/other"});
    Modem_Iterator iterator;
    EXPECT_EQ(System_Port_Finder().Find_Ports(iterator), 0);
    std::vector<std::string> paths;
    while (const auto entry = iterator.Next())
        paths.push_back(entry->m_callout_path->toStdString());
    ASSERT_GE(paths.size(), 2u);
    EXPECT_EQ(std::vector<std::string>(paths.end() - 2, paths.end()), Lines("/dev/given", "/dev/other"));
    EXPECT_EQ(std::count(paths.begin(), paths.end(), "/dev/given"), 1);
    Set_Extra_Device_Paths({});
    EXPECT_TRUE(Extra_Device_Paths().isEmpty());
}

TEST_F(Discovery, A_Placeholder_Of_The_Kernel_Is_No_Port)
{
    EXPECT_TRUE(Is_Phantom_Port("ttyS4", false, 0));
    EXPECT_TRUE(Is_Phantom_Port("ttyS4", true, 0));
    EXPECT_TRUE(Is_Phantom_Port("ttyS4", false, std::nullopt));
    EXPECT_FALSE(Is_Phantom_Port("ttyS0", false, 4));
    EXPECT_FALSE(Is_Phantom_Port("ttyS0", true, std::nullopt));
    EXPECT_FALSE(Is_Phantom_Port("ttyUSB0", false, std::nullopt));
    EXPECT_FALSE(Is_Phantom_Port("ttyACM0", false, 0));
}

TEST_F(Discovery, The_Port_List_Knows_Each_Port_By_Place_Name_And_Path)
{
    m_finder.Set_Paths({"/dev/ttyUSB0", "/dev/ttyACM1"});
    const KVSerialPortList list(m_finder);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.objectAtIndex(1)->bsdPath(), "/dev/ttyACM1");
    EXPECT_EQ(list.objectAtIndex(2), nullptr);
    EXPECT_EQ(list.objectWithName("ttyUSB0"), list.objectAtIndex(0));
    EXPECT_EQ(list.portByPath("/dev/ttyACM1"), list.objectAtIndex(1));
    EXPECT_EQ(list.objectWithName("none"), nullptr);
    EXPECT_EQ(list.portByPath("none"), nullptr);
    EXPECT_EQ(list.serialPorts().size(), 2);
    EXPECT_EQ(list.serialPortsOfType("IOSerialStream").size(), 2);
    EXPECT_TRUE(list.serialPortsOfType("other").isEmpty());
    auto enumerator = list.portEnumerator(); // goes through them once
    EXPECT_EQ(enumerator.nextObject(), list.objectAtIndex(0));
    EXPECT_EQ(enumerator.allObjects().size(), 1);
    EXPECT_EQ(enumerator.nextObject(), nullptr);
    EXPECT_EQ(list.portEnumeratorForSerialPortsOfType("other").nextObject(), nullptr);
    EXPECT_NE(KVSerialPortList::sharedPortList(), nullptr);
    EXPECT_EQ(KVSerialPortList::sharedPortList(), KVSerialPortList::sharedPortList());
}

TEST_F(Discovery, The_Port_List_Tells_What_Comes_And_Goes)
{
    Virtual_Phone phone;
    m_finder.Set_Paths({phone.Path(), "/dev/stays"});
    KVSerialPortList list(m_finder);
    KVSerialPortList::Ports added;
    KVSerialPortList::Ports removed;
    QObject::connect(&list, &KVSerialPortList::KVSerialPortListDidAddPortsNotification,
                     [&](const auto& ports) { added = ports; });
    QObject::connect(&list, &KVSerialPortList::KVSerialPortListDidRemovePortsNotification,
                     [&](const auto& ports) { removed = ports; });
    const auto going = list.objectAtIndex(0);
    const auto staying = list.objectAtIndex(1);
    ASSERT_TRUE(going->open());
    m_finder.Set_Paths({"/dev/stays", "/dev/comes"});
    list.Refresh();
    ASSERT_EQ(added.size(), 1);
    EXPECT_EQ(added[0]->bsdPath(), "/dev/comes");
    EXPECT_EQ(removed, KVSerialPortList::Ports{going});
    EXPECT_FALSE(going->isOpen());
    EXPECT_EQ(list.objectAtIndex(0), staying);
    added.clear();
    list.Refresh();
    EXPECT_TRUE(added.isEmpty());
}
