#include "app/Command_Line.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;

namespace {

Command_Line Read(const QStringList& arguments)
{
    return Read_Command_Line(QStringList("corvane") + arguments, "1.2.3");
}

struct Ended
{
    int status;
    std::string output;
    std::string errors;
};

Ended Run_Corvane(const QStringList& arguments, const QProcessEnvironment& environment)
{
    QProcess corvane;
    corvane.setProcessEnvironment(environment);
    corvane.start(QStringLiteral(CORVANE_BUILD_DIR "/corvane"), arguments);
    EXPECT_TRUE(corvane.waitForFinished(30000));
    return {corvane.exitCode(), corvane.readAllStandardOutput().toStdString(),
            corvane.readAllStandardError().toStdString()};
}

} // namespace

TEST(Command_Line_Reading, Every_Device_Given_Is_Offered)
{
    const auto line = Read({"--device", "/dev/ttyUSB3", "--demo", "--device=/dev/rfcomm0"});
    EXPECT_THAT(line.device_paths, ElementsAre("/dev/ttyUSB3", "/dev/rfcomm0"));
    EXPECT_TRUE(line.demo);
    EXPECT_TRUE(line.answer.isEmpty());
    EXPECT_FALSE(Read({}).demo);
}

TEST(Command_Line_Reading, Help_And_Version_Are_Answers)
{
    EXPECT_EQ(Read({"--version"}).answer, "corvane 1.2.3");
    const auto help = Read({"--help"});
    EXPECT_FALSE(help.is_mistaken);
    for (const char* option : {"--device PATH", "--demo", "--version", "--help"})
        EXPECT_THAT(help.answer.toStdString(), HasSubstr(option));
}

TEST(Command_Line_Reading, What_Is_Not_Understood_Is_A_Mistake)
{
    for (const QStringList& arguments : {QStringList{"--nonsense"}, QStringList{"--device"}, QStringList{"file.txt"}}) {
        const auto line = Read(arguments);
        EXPECT_TRUE(line.is_mistaken) << qPrintable(arguments.join(u' '));
        EXPECT_FALSE(line.answer.isEmpty());
    }
    const auto ended = Run_Corvane({"--nonsense"}, QProcessEnvironment::systemEnvironment());
    EXPECT_EQ(ended.status, 2);
    EXPECT_THAT(ended.errors, HasSubstr("nonsense"));
}

TEST(The_Program, Answers_Help_And_Version_Without_A_Display)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    EXPECT_THAT(Run_Corvane({"--version"}, environment).output,
                MatchesRegex("corvane [0-9.]+ \\(commit ([0-9a-f]+|unknown), Qt [0-9.]+\\)\n"));
    EXPECT_EQ(Run_Corvane({"--help"}, environment).status, 0);
    const auto without_display = Run_Corvane({}, environment);
    EXPECT_EQ(without_display.status, 2);
    EXPECT_EQ(without_display.errors, "corvane: there is no display to open a window on.\n");
}

TEST(The_Program, Refuses_A_Pace_That_Is_No_Positive_Number_With_One_Line)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* pace : {"", "0", "-1", "x", "nan", "inf"}) {
        environment.insert("CORVANE_PACE", pace);
        const auto ended = Run_Corvane({}, environment);
        EXPECT_EQ(ended.status, 2) << pace;
        EXPECT_EQ(ended.errors,
                  std::string("corvane: CORVANE_PACE must be a positive number, not \"") + pace + "\".\n");
    }
}
