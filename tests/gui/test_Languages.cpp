#include "engine/Delayed_Delivery.h"
#include "gui/Open_Program.h"
#include "support/In_Language.h"
#include "texts/Texts.h"
#include "toolkit/Message_Boxes.h"
#include "windows/contacts/Plan_Words.h"
#include "windows/list/Bubble_Words.h"

#include <QMenu>

namespace {

TEST(Languages, The_Chosen_One_Comes_Before_The_Desktops_And_English_Is_Read_Where_There_Is_None)
{
    EXPECT_EQ(Language_To_Read("fr", {"de-DE"}), "fr");
    EXPECT_EQ(Language_To_Read({}, {"de-AT", "en"}), "de");
    EXPECT_EQ(Language_To_Read({}, {"pt-BR"}), "pt");
    EXPECT_EQ(Language_To_Read({}, {"xx-XX", "pl"}), "pl");
    EXPECT_EQ(Language_To_Read({}, {"en-GB", "de"}), "en");
    EXPECT_EQ(Language_To_Read({}, {}), "en");
    EXPECT_EQ(Language_To_Read("xx", {"yy"}), "en");
}

TEST(Languages, Each_Has_Its_Translation_In_The_Program)
{
    for (const Language& language : All_Languages()) {
        const In_Language reading(QLatin1String(language.letters));
        const QString removed = QCoreApplication::translate("CorvaneAppDelegate", "%n recipients removed.", nullptr, 7);
        EXPECT_THAT(removed.toStdString(), testing::HasSubstr("7")) << language.letters;
    }
    EXPECT_FALSE(Read_In("xx"));
    EXPECT_TRUE(Reading_Language::Is_English());
}

TEST(Languages, A_Number_Has_The_Form_That_Goes_With_It)
{
    const auto removed = [](int count) { return QCoreApplication::translate("Table_Page", "%n rows", nullptr, count); };
    const In_Language german("de");
    EXPECT_EQ(removed(1), "1 Zeile");
    EXPECT_EQ(removed(2), "2 Zeilen");
}

TEST(Languages, What_Goes_Into_A_File_Stays_English)
{
    const In_Language german("de");
    EXPECT_EQ(QString(Texts::Main::List_Empty), "Die Liste der Nummern und Nachrichten ist leer.");
    EXPECT_EQ(Reading_Language::Locale().language(), QLocale::German);
    {
        const Reading_Language::Originals originals;
        EXPECT_EQ(QString(Texts::Main::List_Empty), "Phone numbers-Messages list is empty.");
        EXPECT_EQ(Reading_Language::Locale(), QLocale::c());
    }
    EXPECT_EQ(QString(Texts::Main::List_Empty), "Die Liste der Nummern und Nachrichten ist leer.");
}

TEST(Languages, A_Pause_Means_The_Same_In_Each)
{
    using namespace Delayed_Delivery;
    const QStringList english = Shown_Pause_Choices();
    EXPECT_EQ(english, Pause_Choices());
    const auto seconds_of = [](const QString& shown) {
        return Read_Setting("1", Pause_Choice_Of(shown)).pause_in_seconds;
    };
    for (const Language& language : All_Languages()) {
        QList<qint64> before;
        for (const QString& choice : english)
            before.append(Read_Setting("1", choice).pause_in_seconds);
        const In_Language reading(QLatin1String(language.letters));
        QList<qint64> seconds;
        for (const QString& choice : Shown_Pause_Choices())
            seconds.append(seconds_of(choice));
        EXPECT_EQ(seconds, before) << language.letters;
    }
    const In_Language german("de");
    EXPECT_EQ(Shown_Pause_Choices().at(Preselected_Pause_Choice), "2 Minuten");
    EXPECT_EQ(seconds_of("7 Minuten"), 420);
    EXPECT_EQ(seconds_of("2 Stunden"), 7200);
    EXPECT_EQ(seconds_of("90 Sek"), 90);
    EXPECT_EQ(seconds_of("bald"), 0);
    EXPECT_EQ(seconds_of({}), 0);
}

// The same words stand behind each number, and alone in the column of verdicts.
TEST(Languages, What_Is_Left_Out_Is_Said_In_Words_For_Any_Number)
{
    const auto sums_of = [](int rows) {
        Plan_Sums sums;
        sums.recipients = rows;
        sums.by_verdict.at(static_cast<std::size_t>(Row_Verdict::Invalid_Number)) = rows;
        return Plan_Words::Sums(sums, 0, {});
    };
    EXPECT_EQ(sums_of(2), "0 messages to be sent. 2 left out: 2 no usable number.");
    const std::pair<const char*, const char*> languages[] = {{"de", "ohne brauchbare Nummer"},
                                                             {"pl", "bez poprawnego numeru"}};
    for (const auto& [letters, words] : languages) {
        const In_Language reading(QLatin1String{letters});
        for (const int rows : {1, 2, 5})
            EXPECT_THAT(sums_of(rows).toStdString(),
                        testing::EndsWith(": " + std::to_string(rows) + ' ' + words + '.'));
    }
}

class German_Program : private In_Language, public Open_Program
{
protected:
    German_Program() : In_Language("de") {}
};

TEST_F(German_Program, Speaks_German)
{
    EXPECT_EQ(The<QPushButton>("_sent_btn").text(), "&Senden");
    EXPECT_EQ(Count_Label(), "Nummern gesamt: 0");
    user.Will_Press("OK");
    Click("Add_Number");
    EXPECT_EQ(user.Was_Shown(), QStringList{"\nBitte geben Sie eine gültige Rufnummer ein."});
    Add("07700900123");
    user.Will_Handle(
        [](QMessageBox& box) {
            EXPECT_EQ(box.defaultButton()->text(), "Ja");
            EXPECT_EQ(box.defaultButton()->shortcut(), QKeySequence(Qt::ALT | Qt::Key_J));
            box.defaultButton()->click();
        },
        "Ja");
    Click("Clear_All_Btn");
    EXPECT_TRUE(Numbers().isEmpty());
}

TEST_F(German_Program, Gives_What_Follows_A_Number_The_Form_That_Goes_With_It)
{
    const auto follows = [this](const QString& count) {
        The<QComboBox>("_delayed_msg_count_combo").setEditText(count);
        return The<QLabel>("delay_caption").text();
    };
    The<QCheckBox>("_Delayed_Delivry_Chk").click();
    EXPECT_EQ(follows("1"), "Nachricht für");
    EXPECT_EQ(follows("2"), "Nachrichten für");
    EXPECT_EQ(follows("15"), "Nachrichten für");
    EXPECT_EQ(follows(""), "Nachrichten für");
    The<QCheckBox>("_Delayed_Delivry_Chk").click();
    EXPECT_EQ(The<QLabel>("delay_caption").text(), "Nachrichten für");
}

TEST_F(German_Program, Counts_Long_Messages_And_Tells_Of_Them_Once)
{
    auto& composer = The<QPlainTextEdit>("_messageEdit");
    user.When_Opens("Long_SMS_Dlg", [](QWidget& window) { In<QPushButton>(window, "OKPressed").click(); });
    composer.setPlainText(QString(161, u'a'));
    EXPECT_TRUE(Serve_Until(
        [&] { return The<QLabel>("_Msg_char_count").text() == "161 Zeichen (jede Nachricht braucht nun 2 SMS)"; }));
    QTest::keyClicks(&composer, "b"); // and no second notice
    EXPECT_TRUE(Serve_Until(
        [&] { return The<QLabel>("_Msg_char_count").text() == "162 Zeichen (jede Nachricht braucht nun 2 SMS)"; }));
}

class Language_Choice : public Open_Program
{
protected:
    ~Language_Choice() override { QFile::remove(Settings_Path); }

    QAction& Choice(const char* name) { return *In<QMenu>(*m_delegate, "Language_Menu").findChild<QAction*>(name); }
};

TEST_F(Language_Choice, Is_The_Desktops_At_First_And_Remembered_For_The_Next_Start)
{
    EXPECT_TRUE(Choice("Language_Desktop").isChecked());
    EXPECT_FALSE(QFile::exists(Settings_Path));
    Choice("Language_pl").trigger();
    EXPECT_EQ(Program_Settings(Settings_Path).Language(), "pl");
    EXPECT_EQ(The<QPushButton>("_sent_btn").text(), "&Send");
    Choice("Language_Desktop").trigger();
    EXPECT_EQ(Program_Settings(Settings_Path).Language(), QString());
    EXPECT_FALSE(QFile::exists(Settings_Path)) << "as it was at first";
}

} // namespace
