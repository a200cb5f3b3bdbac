#include "tour/Story.h"

#include "tour/Visitor.h"

#include <QFile>

namespace {

const QString Rule = "==================================================="
                     "=========================";
const QString Page_Head =
    "<html><meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\"><head>"
    "<title>[ Corvane - Sent Items ]</title><style type=text/css>Body,Td,Th{font-family:Verdana, Arial, Helvetica, "
    "sans-serif; font-size:11px}.style1 {font-size: 16px;font-weight: bold; color: #000000;}.style2 {font-size: "
    "11px;font-weight: normal; color: #000000;}.style3 {font-size: 16px;font-weight: bold;\tcolor: #ffffff;\t}style4 "
    "{font-size: 12px;font-weight: bold;\tcolor: #000000;\t}.</style></head><body bgcolor =#f1f4fa><table width=1000 "
    "border=0 align=center cellpadding=0 cellspacing=0 bordercolor=#000000><tr><td align = center class= style1>[ "
    "Corvane - Sent Items ]</td></tr></table><br><table width=1000 border=0 align=center cellpadding=0 cellspacing=0 "
    "bordercolor=#000000><tr></tr></table><br><br><table width=1000 border=1 align=center cellpadding=0 cellspacing=0 "
    "bordercolor=#000000><tr><th height = 30 bgcolor = #647dbe align = Left class =style3>Sent Items:</th></tr>";
const QString Page_Item =
    "<tr><td  height = 50 class = style2><table><tr><td width=60>Date</td><td>:&nbsp;&nbsp;</td><td>%1</td>"
    "<tr><td width=60>Number</td><td>:&nbsp;&nbsp;</td><td>%2</td><tr><td width=60>Message</td><td>:&nbsp;&nbsp;</td>"
    "<td>%3</td></table></td></tr>";

const QString Date_Pattern = "dd/MM/yyyy";

void Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw Tour_Failed("could not write " + path);
}

// In the machine's own order, which is the small end first, with the mark in front of every piece.
QByteArray Utf16_Piece(const QString& text)
{
    QByteArray bytes("\xff\xfe");
    for (const QChar unit : text)
        bytes.append(static_cast<char>(unit.unicode() & 0xff)).append(static_cast<char>(unit.unicode() >> 8));
    return bytes;
}

QByteArray On_One_Line(QString text)
{
    return text.replace("\n", "|AP*|DX/").toUtf8();
}

// The table of people, as a spreadsheet program has saved it.
const QStringList Names = {"Ann", "Bob", "Cleo", "Dev", "Eve",  "Finn", "Gil", "Hana", "Ida",
                           "Jon", "Kay", "Lena", "Max", "Nora", "Olu",  "Pia", "Quin"};
constexpr int People = 300;
constexpr int First_Of_People = 10000; // behind 077009
constexpr int Without_A_Number = 17;
constexpr int Without_A_Name = 200;

QStringList Template_Texts()
{
    return {Story::Rehearsal, Story::Thanks, Story::Rehearsal + Story::About_The_Concert, Story::To_The_Soloists};
}

} // namespace

void Story::Write_Files(const QString& folder)
{
    if (!QFile::copy(QStringLiteral(":/tour/people.xlsx"), folder + u'/' + People_File))
        throw Tour_Failed("could not copy the table of people");
    Write(folder + u'/' + Moved_Away_File, "0770-090-0111\n07700900222\n");
    Write(folder + u'/' + Members_File, "0770-090-0456\n"
                                        "+44 is not a number\n"
                                        "+447700900123\n" // in the list already
                                        "07700900111\r\n" // moved away
                                        "07700900789\r\n"
                                        "07700900654\n"
                                        "07700900987\n");
}

std::vector<Story::Message> Story::Messages_To_People()
{
    std::vector<Message> messages;
    for (int place = 0; place < People; ++place) {
        if (place != Without_A_Number && place != Without_A_Name)
            messages.push_back({"+4477009" + QString::number(First_Of_People + place),
                                Told("Dear %1, the choir sings on Saturday. Your seat is %2.",
                                     "Hallo %1, der Chor singt am Samstag. Dein Platz ist %2.")
                                    .arg(Names.at(place % Names.size()))
                                    .arg(place + 1)});
    }
    return messages;
}

std::vector<Story::Message> Story::Messages()
{
    return {{First_Member, Rehearsal},
            {"07700900456", Rehearsal},
            {Concert_Helper, Rehearsal + About_The_Concert},
            {Soloists.at(0), To_The_Soloists},
            {Soloists.at(1), To_The_Soloists}};
}

// The first number goes out as an international one; one message is not known to have been sent and is sent again.
std::vector<Story::Message> Story::Messages_Of_Second_List()
{
    std::vector<Message> messages;
    for (const QString& number : {QString("+447700900123"), Concert_Helper, Silent_Member, Killed_Member, Killed_Member,
                                  Second_List.constLast()})
        messages.push_back({number, With_A_Price});
    return messages;
}

QByteArray Story::Contacts_Export()
{
    return (Rule + "\n\n\t\t\t[ Corvane - Contact List ]\t\t\t\n\n" + Rule).toUtf8() +
           "\n00447700900123\n07700900222\n07700900456\n07700900789\n07700900654\n07700900987\n";
}

QByteArray Story::Sent_Items(const QDate& date)
{
    QByteArray file;
    for (const auto& message : Messages())
        file += '\a' + message.number.toUtf8() + '\v' + On_One_Line(message.text) + '\a' +
                date.toString(Date_Pattern).toUtf8() + "\v\n";
    return file;
}

QByteArray Story::Sent_Items_Page(const QDate& date)
{
    QByteArray page = Utf16_Piece(Page_Head);
    for (const auto& message : Messages()) {
        QString text = message.text;
        text.replace("\n", "<br>").replace(QChar(u' '), "&nbsp;");
        page += Utf16_Piece(Page_Item.arg(date.toString(Date_Pattern), message.number, text));
    }
    return page;
}

QByteArray Story::Templates()
{
    QByteArray file;
    for (const QString& text : Template_Texts())
        file += On_One_Line(text) + '\n';
    return file;
}

QByteArray Story::Templates_Export()
{
    QByteArray file = Utf16_Piece(Rule + "\n\n\t\t\t[ Corvane - Templates]\t\t\t\n\n" + Rule + "\n");
    for (const QString& text : Template_Texts())
        file += Utf16_Piece(text + "\n" + Rule + "\n");
    return file;
}
