#include "list/Country_Codes.h"
#include "support/Seen_Colours.h"
#include "support/Table_Menus.h"
#include "toolkit/Look.h"
#include "windows/contacts/Contacts_Test.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const QByteArray People =
    "Name,Phone,City\nAnn,07700 900100,Bath\nBob,,Stoke\nEve,07700 900102,\nDee,07700 900100,Ely\n"
    "J\xC5\x91rg,07700 900103,\xE2\x80\x9CYork\xE2\x80\x9D\n";

class Plan_Page_Test : public Contacts_Test
{
protected:
    /// Goes to the second page with these people and this message, in the confirmed manner, without repeats.
    void Look_At(const QByteArray& people, const QString& message)
    {
        m_window.m_choices.composer_text = message;
        m_window.m_choices.confirm.confirms = true;
        m_window.m_choices.skip_duplicates = true;
        Import_Csv(people);
        Choose("_Country", "United Kingdom (+44)");
        Press("Continue_Btn");
    }

    QString Sums() const { return Text_Of("_Sums"); }
    QStringList Filters() const
    {
        const auto& box = In<QComboBox>(*m_sheet, "_Filter");
        QStringList entries;
        for (int entry = 0; entry < box.count(); ++entry)
            entries.append(box.itemText(entry));
        return entries;
    }
    /// Writes another number in a row, with the keyboard.
    void Write_Number(int row, const QString& number)
    {
        Select_Alone_In(row);
        QTest::keyClick(&Rows(), Qt::Key_F2);
        auto* editor = Rows().findChild<QLineEdit*>();
        ASSERT_NE(editor, nullptr);
        editor->selectAll();
        QTest::keyClicks(editor, number);
        QTest::keyClick(editor, Qt::Key_Return);
        Await();
    }

private:
    void Select_Alone_In(int row)
    {
        Rows().setCurrentIndex(Rows().model()->index(row, 0));
        Rows().setFocus();
    }
};

// A list of tests/data/tables with the arguments that it is planned with.
struct Golden_List
{
    std::string call;
};

void PrintTo(const Golden_List& list, std::ostream* out)
{
    *out << list.call;
}

std::vector<Golden_List> Golden_Lists()
{
    std::vector<Golden_List> lists;
    for (const QByteArray& line : Bytes_Of(QStringLiteral(CORVANE_TEST_DATA "/tables/golden_lists.txt")).split('\n')) {
        if (line.startsWith("= "))
            lists.push_back({line.mid(2).toStdString()});
    }
    return lists;
}

class Golden : public Plan_Page_Test, public testing::WithParamInterface<Golden_List>
{
protected:
    Golden()
    {
        const QString call = QString::fromStdString(GetParam().call);
        const qsizetype message = call.indexOf(QLatin1String(" --message "));
        m_arguments = call.left(message).split(u' ');
        m_message = call.mid(message + 11);
    }
    QString Argument(const QString& name) const
    {
        const qsizetype place = m_arguments.indexOf(name);
        return place < 0 ? QString() : m_arguments.value(place + 1);
    }
    QString Path() const { return QStringLiteral(CORVANE_TEST_DATA "/tables/") + m_arguments.front(); }

    /// What the program without windows says of the rows: verdict, number, parts and text.
    QStringList Dry_Run() const
    {
        QProcess program;
        program.start(QStringLiteral(CORVANE_BUILD_DIR "/corvane-send"),
                      QStringList{"--dry-run", "--json", "--table", Path()} + m_arguments.mid(1) +
                          QStringList{"--message", m_message});
        EXPECT_TRUE(program.waitForFinished());
        QStringList rows;
        for (const QByteArray& line : program.readAllStandardOutput().split('\n')) {
            const QJsonObject row = QJsonDocument::fromJson(line).object();
            if (row.value("event") == QLatin1String("row"))
                rows.append(As_Row(row.value("verdict").toString(), row.value("number").toString(),
                                   row.value("parts").toInt(), row.value("text").toString()));
        }
        return rows;
    }

    // Of a number that cannot be used each shows something of its own.
    static QString As_Row(const QString& verdict, const QString& number, int parts, const QString& text)
    {
        const bool is_sent = verdict == u"send";
        return verdict + u' ' + (is_sent ? number : QString()) + u' ' + QString::number(is_sent ? parts : 0) + u' ' +
               text;
    }

    QStringList Shown_Rows() const
    {
        const QHash<QString, QString> Verdicts{{"to be sent", "send"},
                                               {"no usable number", "invalid-number"},
                                               {"empty field", "empty-field"},
                                               {"unknown field", "unknown-field"},
                                               {"fields misplaced", "wrong-columns"},
                                               {"too long", "too-long"}};
        QStringList rows;
        for (int row = 0; row < Rows().model()->rowCount(); ++row) {
            const auto cell = [&](int column) { return Rows().model()->index(row, column).data().toString(); };
            rows.append(As_Row(Verdicts.value(cell(5).mid(2), cell(5)), cell(2), cell(4).toInt(), cell(3)));
        }
        return rows;
    }

    QStringList m_arguments;
    QString m_message;
};

} // namespace

TEST_P(Golden, Lists_Are_Planned_As_Without_A_Window)
{
    m_window.m_choices.composer_text = m_message;
    m_window.m_choices.confirm.confirms = true;
    Import(Path());
    if (!Argument("--encoding").isEmpty())
        Choose("_Encoding", Argument("--encoding"));
    if (!Argument("--sheet").isEmpty())
        Choose("_Sheet", In<QComboBox>(*m_sheet, "_Sheet").findText(Argument("--sheet"), Qt::MatchFixedString));
    if (!Argument("--number-column").isEmpty())
        Choose("_Number_Column",
               In<QComboBox>(*m_sheet, "_Number_Column").findText(Argument("--number-column"), Qt::MatchFixedString));
    const Country* country = Country_With_Letters(Argument("--country"));
    Choose("_Country", country ? country->Name() + " (" : QStringLiteral("As written"));
    Press("Continue_Btn");
    const QStringList expected = Dry_Run();
    EXPECT_FALSE(expected.isEmpty());
    EXPECT_EQ(Shown_Rows(), expected);
}

INSTANTIATE_TEST_SUITE_P(Of_The_Folder, Golden, testing::ValuesIn(Golden_Lists()));

TEST_F(Plan_Page_Test, Every_Row_Has_Its_Number_Its_Text_And_A_Verdict)
{
    Look_At(People, "{{Name}} in {{City}}");
    EXPECT_EQ(Headings(Rows()),
              (QStringList{"Row", "Number as written", "As dialled", "Message", "Parts", "Verdict", "Remark"}));
    EXPECT_EQ(Row(Rows(), 0), "2|07700 900100|00447700900100|Ann in Bath|1|✓ to be sent|National, taken as one of "
                              "United Kingdom.");
    EXPECT_EQ(Row(Rows(), 1), "3|||Bob in Stoke||✗ no usable number|There is no number.");
    EXPECT_EQ(Rows_Of(Rows(), 5),
              (QStringList{"✓ to be sent", "✗ no usable number", "✗ empty field", "– repeated", "✓ to be sent"}));
    EXPECT_THAT(Rows_Of(Rows(), 6).at(2).toStdString(), HasSubstr("{{City}} is empty"));
}

TEST_F(Plan_Page_Test, The_Sums_Say_What_Is_Left_Out_And_Why_And_What_Turns_To_Unicode)
{
    Look_At(People, "{{Name}} in {{City|-}}");
    EXPECT_TRUE(Sums().startsWith("3 messages to be sent, 3 parts, less than a minute, until "))
        << Sums().toStdString();
    EXPECT_TRUE(Sums().endsWith("2 left out: 1 repeated, 1 no usable number.")) << Sums().toStdString();
    EXPECT_EQ(Text_Of("_Causes"), "1 message goes as Unicode, because of ő (1), “ (1), ” (1).");
    EXPECT_EQ(Filters(), (QStringList{"All rows (5)", "Rows left out (2)", "✓ to be sent (3)", "– repeated (1)",
                                      "✗ no usable number (1)", "Unicode messages (1)"}));
}

TEST_F(Plan_Page_Test, The_Time_Is_That_Which_The_Device_Has_Needed_With_The_Pauses)
{
    m_pace.Add(false, 600, 1);
    Look_At(People, "{{Name}} in {{City|-}}");
    EXPECT_TRUE(Sums().startsWith("3 messages to be sent, 3 parts, about 30 min, until ")) << Sums().toStdString();
    Press("Close_Btn");
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = "2";
    m_window.m_choices.pause_choice = " 1  Hour"; // half a minute at this pace
    Look_At(People, "{{Name}} in {{City|-}}");
    EXPECT_TRUE(Sums().startsWith("3 messages to be sent, 3 parts, about 31 min, until ")) << Sums().toStdString();
}

TEST_F(Plan_Page_Test, A_Filter_Leaves_Rows_Of_Its_Kind)
{
    Look_At(People, "{{Name}}");
    Choose("_Filter", "Rows left out");
    EXPECT_EQ(Rows_Of(Rows(), 3), (QStringList{"Bob", "Dee"}));
    Choose("_Filter", "Unicode messages");
    EXPECT_EQ(Rows_Of(Rows(), 3), QStringList("Jőrg"));
    Choose("_Filter", "– repeated");
    EXPECT_EQ(Rows_Of(Rows(), 0), QStringList("5"));
    Choose("_Filter", "All rows");
    EXPECT_EQ(Rows().model()->rowCount(), 5);
}

TEST_F(Plan_Page_Test, Longest_Goes_To_The_Row_Of_The_Most_Parts_Whatever_Is_Shown)
{
    Look_At("Name,Phone\nAnn,1001001\n" + QByteArray(200, 'x') + ",1001002\nBob,\n", "{{Name}}");
    Choose("_Filter", "Rows left out");
    EXPECT_EQ(Rows().model()->rowCount(), 1);
    Press("Longest_Btn");
    EXPECT_EQ(Rows().model()->rowCount(), 3);
    EXPECT_EQ(Rows_Selected_In(Rows()), std::vector<int>{1});
    EXPECT_EQ(Rows_Of(Rows(), 4), (QStringList{"1", "2", ""}));
}

TEST_F(Plan_Page_Test, A_Number_Is_Put_Right_In_Its_Place_And_Repeats_Are_Judged_Anew)
{
    Look_At(People, "{{Name}}");
    Write_Number(1, "07700 900109");
    EXPECT_EQ(Row(Rows(), 1),
              "3|07700 900109|00447700900109|Bob|1|✓ to be sent|National, taken as one of United Kingdom.");
    Write_Number(0, "07700 900110");
    EXPECT_EQ(Rows_Of(Rows(), 5), QStringList(5, "✓ to be sent"));
    EXPECT_TRUE(Sums().startsWith("5 messages to be sent")) << Sums().toStdString();
    Choose("_Filter", "Rows left out");
    EXPECT_EQ(Rows().model()->rowCount(), 0);
}

TEST_F(Plan_Page_Test, Clean_Rows_Join_The_List_With_The_Message_As_It_Was_Written)
{
    m_window.m_recipients.Append(QStringLiteral("123"), QStringLiteral("old"));
    Look_At(People, "Dear {{Name}}");
    EXPECT_EQ(m_window.m_recipients.Count(), 1);
    Press("Add_To_List");
    EXPECT_FALSE(m_sheet->isVisible());
    EXPECT_EQ(m_added, std::make_pair(3, 2));
    EXPECT_EQ(Listed().mid(1),
              (QStringList{"00447700900100 Dear Ann", "00447700900102 Dear Eve", "00447700900103 Dear Jőrg"}));
    EXPECT_EQ(m_window.m_recipients.Message_At(2), "Dear {{Name}}");
    EXPECT_EQ(m_window.m_recipients.Field_Names(), (QStringList{"Name", "Phone", "City"}));
    EXPECT_EQ(m_window.m_previous_message, "Dear {{Name}}");
}

TEST_F(Plan_Page_Test, Rows_That_Did_Not_Join_Can_Be_Looked_At_Afterwards_And_No_More)
{
    Look_At(People, "{{Name}}");
    Press("Add_To_List");
    m_sheet->Show_Not_Used();
    Await();
    EXPECT_EQ(Rows_Of(Rows(), 3), (QStringList{"Bob", "Dee"}));
    EXPECT_FALSE(Is_Offered("Add_To_List"));
    EXPECT_FALSE(Is_Offered("Back_Btn"));
    EXPECT_FALSE(Rows().model()->flags(Rows().model()->index(0, 1)).testFlag(Qt::ItemIsEditable));
    Press("Close_Btn");
    EXPECT_EQ(m_window.m_recipients.Count(), 3);
    m_sheet->Check_List();
    Await();
    Press("Close_Btn");
    m_sheet->Show_Not_Used();
    Await();
    EXPECT_EQ(Rows_Of(Rows(), 3), (QStringList{"Bob", "Dee"}));
}

TEST_F(Plan_Page_Test, Numbers_Of_The_List_And_Of_Exclusion_Lists_Are_Left_Out_Where_That_Is_Wanted)
{
    m_window.m_recipients.Append(QStringLiteral("00447700900101"), {});
    m_window.m_exclusions.Append(QStringLiteral("00447700900102"));
    m_window.m_choices.exclusion = true;
    Look_At("Phone\n07700900101\n07700900102\n07700900103\n", "x");
    EXPECT_EQ(Rows_Of(Rows(), 5), (QStringList{"– repeated", "– excluded", "✓ to be sent"}));
}

TEST_F(Plan_Page_Test, Without_A_Message_People_Are_Added_All_The_Same)
{
    Look_At("Name,Phone\nAnn,1001001\nBob,1001002\n", "");
    EXPECT_EQ(Rows_Of(Rows(), 5), QStringList(2, "✓ to be sent"));
    Press("Add_To_List");
    EXPECT_EQ(m_window.m_recipients.Count(), 2);
    EXPECT_EQ(m_window.m_recipients.Message_At(0), "");
    EXPECT_EQ(m_window.m_recipients.Field_At(1, 0), "Bob");
}

TEST_F(Plan_Page_Test, Cancel_Adds_Nothing)
{
    Look_At(People, "{{Name}}");
    Press("Close_Btn");
    EXPECT_FALSE(m_sheet->isVisible());
    EXPECT_EQ(m_window.m_recipients.Count(), 0);
    EXPECT_EQ(m_added.first, -1);
}

TEST_F(Plan_Page_Test, The_List_Itself_Is_Looked_At_And_Its_Numbers_Put_Right)
{
    Look_At("Name,Phone\nAnn,+47 1001001\nBob,+47 1001002\n,+47 1001003\n", "");
    Press("Add_To_List");
    m_window.m_recipients.Set_Messages({0, 1, 2}, QStringLiteral("Hi {{Name}}"));
    m_sheet->Check_List();
    Await();
    EXPECT_EQ(m_sheet->windowTitle(), "Check before sending");
    EXPECT_EQ(Rows_Of(Rows(), 3), (QStringList{"Hi Ann", "Hi Bob", "Hi {{Name}}"}));
    EXPECT_EQ(Rows_Of(Rows(), 5), (QStringList{"✓ to be sent", "✓ to be sent", "✗ empty field"}));
    EXPECT_FALSE(Is_Offered("Add_To_List"));
    Write_Number(1, "00471001004");
    EXPECT_EQ(Listed().at(1), "00471001004 Hi Bob");
    EXPECT_EQ(Rows_Of(Rows(), 2), (QStringList{"00471001001", "00471001004", "00471001003"}));
    Write_Number(1, "+47 (0)100/10-05");
    EXPECT_EQ(Listed().at(1), "00471001005 Hi Bob");
    Write_Number(1, "4.71E+9");
    EXPECT_EQ(Listed().at(1), "00471001005 Hi Bob");
    EXPECT_EQ(Row(Rows(), 1), "2|+47 (0)100/10-05|00471001005|Hi Bob|1|✓ to be sent|") << "as Send would have it";
    EXPECT_EQ(Text_Of("_Notice"), "4.71E+9 cannot be dialled: the row stays as it was.");
    EXPECT_TRUE(Is_Offered("_Notice"));
    Choose("_Filter", "All rows");
    EXPECT_FALSE(Is_Offered("_Notice"));
    Press("Close_Btn");
}

TEST_F(Plan_Page_Test, A_Verdict_Has_The_Colour_Of_Its_Outcome_In_The_List_And_Is_Told_Without_Its_Sign)
{
    Look_At(People, "{{Name}} in {{City}}");
    m_sheet->resize(2400, 1200);
    Enlarge_Letters_Of(Rows());
    constexpr int verdict = 5;
    for (const Look look : {Look::Light, Look::Dark, Look::High_Contrast}) {
        Choose_Look(look);
        QCoreApplication::processEvents();
        const Look_Tokens& tokens = Tokens_Of(look);
        const std::pair<QColor, const char*> expected[] = {{tokens.ok, "to be sent"},
                                                           {tokens.error, "no usable number"},
                                                           {tokens.error, "empty field"},
                                                           {tokens.soft, "repeated"}};
        for (int row = 0; row < 4; ++row) {
            const QModelIndex cell = Rows().model()->index(row, verdict);
            Rows().scrollTo(cell);
            EXPECT_TRUE(Shows_Words_In(Rows(), cell, expected[row].first)) << row;
            EXPECT_EQ(cell.data(Qt::AccessibleTextRole), expected[row].second);
            EXPECT_FALSE(cell.siblingAtColumn(1).data(Qt::ForegroundRole).isValid());
        }
    }
    Choose_Look(Look::Light);
}

TEST_F(Plan_Page_Test, Rows_Of_A_Saved_List_That_Somebody_Spoilt_Are_Shown_And_Left_Out)
{
    m_window.m_choices.confirm.confirms = false;
    Import_Csv("Number,Message,Name\n+44 7700 900100,Hi {{Name}},Ann\nnobody,Hi {{Name}},Bob\n"
               "07700900102,Hi,Cem,one too many\n,Hi,Dee\n");
    Press("Continue_Btn");
    EXPECT_EQ(Rows_Of(Rows(), 1),
              (QStringList{"00447700900100", "nobody", "07700900102 (4 fields where 3 have names)", "-"}));
    EXPECT_EQ(Rows_Of(Rows(), 5),
              (QStringList{"✓ to be sent", "✗ no usable number", "✗ no usable number", "✗ no usable number"}));
    Press("Add_To_List");
    EXPECT_EQ(Listed(), QStringList("00447700900100 Hi Ann"));
    EXPECT_EQ(m_added, std::make_pair(1, 3));
}

TEST_F(Plan_Page_Test, Its_Rows_Can_Be_Copied_As_They_Are_Shown_And_The_Longest_Be_Gone_To_From_Their_Menu)
{
    Look_At(People, "Dear {{Name}}");
    Rows().clearSelection();
    EXPECT_EQ(Menu_Of(Rows(), Opened_By::Mouse, "Copy"), QStringList({"Copy", "Longest"}));
    EXPECT_EQ(Copied(), Row(Rows(), 0).replace(u'|', u'\t') + u'\n');
    Choose("_Filter", "Rows left out");
    Rows().selectAll();
    Menu_Of(Rows(), Opened_By::Key, "Copy");
    QString expected;
    for (const QString& row : All(Rows()))
        expected += QString(row).replace(u'|', u'\t') + u'\n';
    EXPECT_GT(All(Rows()).size(), 0);
    EXPECT_EQ(Copied(), expected);
    Menu_Of(Rows(), Opened_By::Key, "Longest");
    Await();
    const auto gone_to = Rows_Selected_In(Rows());
    EXPECT_EQ(gone_to.size(), 1U);
    Rows().clearSelection();
    Press("Longest_Btn");
    EXPECT_EQ(Rows_Selected_In(Rows()), gone_to);
}
