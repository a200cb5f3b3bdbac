#include "layers/Layer_Rules.h"

#include <gmock/gmock.h>

namespace {

using testing::IsEmpty;

const Source_Tree& The_Checkout()
{
    static const Source_Tree Tree = Read_Source_Tree(CORVANE_SOURCE_DIR, {"src", "phone", "tests"});
    return Tree;
}

// A rule and what it has to say of a house.
struct Rule
{
    const char* name;
    Complaints (*check)(const Source_Tree&);
    Source_Tree house = {};
    Complaints complaints = {};
};

void PrintTo(const Rule& rule, std::ostream* out)
{
    *out << rule.name;
}

class Layers : public testing::TestWithParam<Rule>
{
};

class Made_Up_Houses : public Layers
{
};

std::string Name_Of(const testing::TestParamInfo<Rule>& rule)
{
    return rule.param.name;
}

} // namespace

TEST(The_Checkout, Was_Read)
{
    EXPECT_TRUE(The_Checkout().contains("src/platform/Waiting.cpp"));
    EXPECT_TRUE(The_Checkout().contains("src/toolkit/PleaseWait_Modeless.ui"));
    EXPECT_TRUE(The_Checkout().contains("tests/layers/test_Layers.cpp"));
}

TEST_P(Layers, Hold)
{
    EXPECT_THAT(GetParam().check(The_Checkout()), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(The_Checkout, Layers,
                         testing::Values(Rule{"Every_Room_Includes_Only_What_It_May", Check_Rooms},
                                         Rule{"Every_Room_Links_Only_What_It_May_And_All_It_Includes", Check_Links},
                                         Rule{"The_Core_Knows_Nothing_That_Draws", Check_Core},
                                         Rule{"No_File_Includes_Itself_Round_A_Corner", Check_Circles},
                                         Rule{"The_Phone_Shares_Nothing_But_The_Handset_With_The_Program", Check_Phone},
                                         Rule{"No_Source_Is_Over_400_Lines_And_No_Test_Over_700", Check_Sizes},
                                         Rule{"No_Form_Gives_A_Size_In_Pixels", Check_Forms},
                                         Rule{"Time_And_Boxes_And_Panels_Have_One_Door", Check_Doors}),
                         Name_Of);

TEST_P(Made_Up_Houses, Are_Complained_Of)
{
    EXPECT_EQ(GetParam().check(GetParam().house), GetParam().complaints);
}

TEST(Layer_Rules, The_Table_Goes_Upwards_Only)
{
    std::vector<std::string> below;
    for (const Room& room : Rooms()) {
        for (const auto& other : room.may_include)
            EXPECT_THAT(below, testing::Contains(other)) << room.folder;
        below.push_back(room.folder);
    }
    EXPECT_THAT(Rooms().front().may_include, IsEmpty());
    EXPECT_EQ(below, (std::vector<std::string>{"platform",
                                               "texts",
                                               "handset",
                                               "pdu",
                                               "list",
                                               "records",
                                               "device",
                                               "engine",
                                               "plan",
                                               "doctor",
                                               "send",
                                               "toolkit",
                                               "windows/list",
                                               "windows/stores",
                                               "windows/exclusion",
                                               "windows/phone",
                                               "windows/jobs",
                                               "windows/contacts",
                                               "windows/handover",
                                               "windows/main",
                                               "app"}));
}

TEST(Layer_Rules, The_Deepest_Room_Counts)
{
    EXPECT_EQ(Room_Of("src/windows/list/Update.h"), "windows/list");
    EXPECT_EQ(Room_Of("src/list/Update.h"), "list");
    EXPECT_EQ(Room_Of("src/windows/Start.cpp"), "");
    EXPECT_EQ(Room_Of("src/apple/Pie.cpp"), "");
    EXPECT_EQ(Room_Of("phone/Line.cpp"), "");
}

TEST(Layer_Rules, A_Forbidden_Call_Is_Found_In_Each_Of_Its_Forms)
{
    const std::vector<std::string> forbidden{
        "sleep(1);",
        "::usleep (1);",
        "if (nanosleep(&a, &b) == 0)",
        "std::this_thread::sleep_for(1s);",
        "this_thread::sleep_until(then);",
        "return poll(&p, 1, 0);",
        "ready = ::select(1, &s, nullptr, nullptr, nullptr);",
        "QThread::sleep(1);",
        "QThread::msleep(1);",
        "QMessageBox box;",
        "QFileDialog::getOpenFileName();",
        "QDateTime::currentDateTime();",
        "QDate::currentDate()",
        "std::chrono::steady_clock::now();",
        "auto now = time(nullptr);",
    };
    for (const auto& line : forbidden) {
        const Source_Tree tree{{"src/windows/main/S.cpp", {"", line}}};
        EXPECT_THAT(Check_Doors(tree), testing::ElementsAre(testing::StartsWith("src/windows/main/S.cpp:2: "))) << line;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Layer_Rules, Made_Up_Houses,
    testing::ValuesIn(std::vector<Rule>{
        {"An_Include_That_Runs_Uphill_Is_Named_With_File_And_Line",
         Check_Rooms,
         {{"src/pdu/A.h", {"#pragma once", "#include \"device/B.h\""}},
          {"src/device/B.h", {"#include \"pdu/A.h\"", "#include <platform/C.h>"}},
          {"src/platform/C.h", {"#include <app/Top.h>"}},
          {"src/app/Top.h", {"#include \"platform/C.h\"", "#include <vector>"}}},
         {"src/pdu/A.h:2: pdu must not include device/B.h", "src/platform/C.h:1: platform must not include app/Top.h"}},
        {"What_The_Build_Makes_Is_Made_From_A_Neighbour",
         Check_Rooms,
         {{"src/windows/phone/W.ui", {"<ui/>"}},
          {"src/windows/phone/W.cpp", {"#include \"ui_W.h\"", "#include \"W.moc\"", "#include \"ui_X.h\""}},
          {"src/windows/main/S.cpp", {"#include \"ui_W.h\"", "#include \"W.moc\""}}},
         {"src/windows/main/S.cpp:1: \"ui_W.h\" is no file of src/",
          "src/windows/main/S.cpp:2: \"W.moc\" is no file of src/",
          "src/windows/phone/W.cpp:3: \"ui_X.h\" is no file of src/"}},
        {"A_Room_Links_What_It_Includes_And_Nothing_Above_It",
         Check_Links,
         {{"src/platform/CMakeLists.txt", {"corvane_room(platform)"}},
          {"src/list/CMakeLists.txt", {"corvane_room(list # LINKS corvane_platform", " LINKS corvane_windows_list)"}},
          {"src/platform/P.h", {}},
          {"src/list/L.cpp", {"#include \"platform/P.h\""}}},
         {"src/list/CMakeLists.txt:1: list must not link corvane_windows_list",
          "src/list/L.cpp:1: list includes platform but does not link it"}},
        {"A_Room_Of_The_Core_Links_Nothing_That_Draws",
         Check_Core,
         {{"src/platform/CMakeLists.txt", {"corvane_room(platform WIDGETS)"}},
          {"src/pdu/CMakeLists.txt", {"corvane_room(pdu)", "target_link_libraries(corvane_pdu PRIVATE Qt6::Gui)"}},
          {"src/list/CMakeLists.txt", {"corvane_room(list LINKS corvane_platform) # no WIDGETS, no Qt6::Gui"}},
          {"src/toolkit/CMakeLists.txt", {"corvane_room(toolkit WIDGETS)"}},
          {"src/list/L.cpp", {"#include <QtGui/QColor>", "#include <QString>"}},
          {"src/toolkit/T.cpp", {"#include <QtWidgets>"}}},
         {"src/list/L.cpp:1: list must not include QtGui/QColor",
          "src/pdu/CMakeLists.txt:2: pdu must not link Qt6::Gui",
          "src/platform/CMakeLists.txt:1: platform must not link WIDGETS"}},
        {"A_Circle_Is_Found_However_Long",
         Check_Circles,
         {{"src/pdu/A.h", {"#include \"pdu/B.h\""}},
          {"src/pdu/B.h", {"", "#include \"pdu/C.h\""}},
          {"src/pdu/C.h", {"#include \"pdu/D.h\"", "#include \"pdu/A.h\""}},
          {"src/pdu/D.h", {}},
          {"phone/E.h", {"#include \"phone/E.h\""}}},
         {"phone/E.h:1: closes a circle back to phone/E.h", "src/pdu/C.h:2: closes a circle back to src/pdu/A.h"}},
        {"Two_Ways_To_One_File_Are_No_Circle",
         Check_Circles,
         {{"src/pdu/A.h", {"#include \"pdu/B.h\"", "#include \"pdu/C.h\""}},
          {"src/pdu/B.h", {"#include \"pdu/C.h\""}},
          {"src/pdu/C.h", {}}},
         {}},
        {"The_Phone_Knows_Neither_Sources_Nor_Tests_Nor_Qt",
         Check_Phone,
         {{"src/pdu/PDU.h", {}},
          {"src/handset/Text.h", {"#include <QString>", "#include <vector>"}},
          {"tests/support/User.h", {}},
          {"phone/Line.h", {}},
          {"phone/Line.cpp",
           {"#include \"phone/Line.h\"", "#include <string>", "#include \"pdu/PDU.h\"", "#include <QString>",
            "#include <QtCore/qglobal.h>", "#include \"support/User.h\"", "#include \"../src/pdu/PDU.h\"",
            "#include \"phone/Gone.h\"", "#include <qstring.h>", "#include \"handset/Text.h\"",
            "#include \"handset/Gone.h\""}}},
         {"phone/Line.cpp:3: phone must not include pdu/PDU.h", "phone/Line.cpp:4: phone must not include Qt's QString",
          "phone/Line.cpp:5: phone must not include Qt's QtCore/qglobal.h",
          "phone/Line.cpp:6: phone must not include support/User.h",
          "phone/Line.cpp:7: phone must not include ../src/pdu/PDU.h", "phone/Line.cpp:8: \"phone/Gone.h\" is no file",
          "phone/Line.cpp:9: phone must not include Qt's qstring.h", "phone/Line.cpp:11: \"handset/Gone.h\" is no file",
          "src/handset/Text.h:1: handset must not include Qt's QString"}},
        {"A_Source_Has_Fewer_Lines_Than_A_Test_May_Have",
         Check_Sizes,
         {{"src/pdu/Long.cpp", std::vector<std::string>(400, "x")},
          {"src/pdu/Longer.cpp", std::vector<std::string>(401, "x")},
          {"src/pdu/Form.ui", std::vector<std::string>(2000, "x")},
          {"tests/pdu/test_Long.cpp", std::vector<std::string>(700, "x")},
          {"tests/pdu/test_Longer.cpp", std::vector<std::string>(701, "x")}},
         {"src/pdu/Longer.cpp:401: goes on beyond 400 lines",
          "tests/pdu/test_Longer.cpp:701: goes on beyond 700 lines"}},
        {"A_Size_In_A_Form_Is_Named_With_File_And_Line",
         Check_Forms,
         {{"src/pdu/Form.ui", {"<widget>", "<property name=\"geometry\"><rect>", "<property name=\"minimumSize\">"}},
          {"src/pdu/Form.cpp", {"<property name=\"geometry\"><rect>"}}},
         {"src/pdu/Form.ui:2: gives a size that fits one font", "src/pdu/Form.ui:3: gives a size that fits one font"}},
        {"What_Only_Looks_Like_A_Forbidden_Call_Is_None",
         Check_Doors,
         {{"src/windows/main/S.cpp",
           {"// sleep(1) would hold everything up", "/* QMessageBox", "QFileDialog */ int a;",
            "const char* text = \"select(1) \\\" sleep(1)\";", "model->select(index);", "selection.select(index);",
            "Rows::select(index);", "int big = 1'000'000; // poll(", "auto raw = R\"x(sleep(1)", "usleep(1) )\" )x\";",
            "a_sleep(1);", "sleep_time = 1;", "char quote = '\"'; int b; // QMessageBox", "std::chrono::seconds(1);"}}},
         {}},
        {"An_Include_Must_Name_A_File_From_The_Top_Of_The_Sources",
         Check_Rooms,
         {{"src/pdu/A.h", {}},
          {"src/pdu/B.cpp",
           {"#include \"A.h\"", "#include \"phone/A.h\"", "#include \"tests/support/User.h\"", "#include \"pdu/A.h\"",
            "#include <algorithm>"}},
          {"src/odd/C.cpp", {}}},
         {"src/odd/C.cpp:1: stands in no room", "src/pdu/B.cpp:1: \"A.h\" is no file of src/",
          "src/pdu/B.cpp:2: \"phone/A.h\" is no file of src/",
          "src/pdu/B.cpp:3: \"tests/support/User.h\" is no file of src/"}},
        {"Each_Door_Is_Open_To_Its_Own_Place_Only",
         Check_Doors,
         {{"src/platform/Waiting.cpp", {"sleep(1);", "QDate::currentDate();"}},
          {"src/platform/Other.cpp", {"sleep(1);", "QDate::currentDate();"}},
          {"src/toolkit/Message_Boxes.cpp", {"QMessageBox box;", "QFileDialog panel;"}},
          {"src/toolkit/File_Panels.cpp", {"QMessageBox box;", "QFileDialog panel;"}},
          {"tests/support/User.cpp", {"QMessageBox box;", "sleep(1);"}}},
         {"src/platform/Other.cpp:2: currentDate belongs into src/platform/Waiting.",
          "src/toolkit/File_Panels.cpp:1: QMessageBox belongs into src/toolkit/Message_Boxes.cpp",
          "src/toolkit/Message_Boxes.cpp:2: QFileDialog belongs into src/toolkit/File_Panels.cpp"}},
    }),
    Name_Of);
