#include "gui/Every_Window.h"
#include "gui/Open_Program.h"
#include "gui/Read_As.h"
#include "pictures/What_Opens.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Guarded_Application.h"
#include "toolkit/Look.h"

#include <QCommandLineParser>
#include <QtWidgets>
#include <cstdio>

// Draws every window of the program into a folder, as it is on one screen in one look and one font, and all of them
// on one sheet. scripts/pictures calls it for each screen, look and font.

namespace {

constexpr int Sheet_Width = 2400;
constexpr int Gap = 24;
constexpr int Caption = 28;

const std::pair<const char*, Look> Looks[] = {
    {"light", Look::Light}, {"dark", Look::Dark}, {"contrast", Look::High_Contrast}};

/// What comes from the command line, before there is an application.
struct Wish
{
    QString out = QStringLiteral("pictures");
    QString look = QStringLiteral("light");
    QString font = QStringLiteral("Noto Sans");
    QString screen = QStringLiteral("1366x768");
    QString language = QStringLiteral("en"); ///< or "pseudo", or "leftward"
    int percent = 100;
    QString only; ///< windows whose names begin so

    QString Name() const
    {
        return QStringLiteral("%1-%2-%3-%4").arg(look, screen).arg(percent).arg(QString(font).remove(u' ')) +
               (language == u"en" ? QString() : u'-' + language);
    }
};

Wish Read_Wish(int count, char** arguments)
{
    Wish wish;
    for (int i = 1; i + 1 < count; i += 2) {
        const QString name = QString::fromLocal8Bit(arguments[i]);
        const QString value = QString::fromLocal8Bit(arguments[i + 1]);
        const std::pair<const char*, QString*> texts[] = {{"--out", &wish.out},           {"--look", &wish.look},
                                                          {"--font", &wish.font},         {"--screen", &wish.screen},
                                                          {"--language", &wish.language}, {"--only", &wish.only}};
        for (const auto& [key, text] : texts) {
            if (name == QLatin1String(key))
                *text = value;
        }
        if (name == QLatin1String("--percent"))
            wish.percent = value.toInt();
    }
    return wish;
}

/// The offscreen platform reads its screen from a file.
void Stand_Before(const Wish& wish, const QString& folder)
{
    const QStringList size = wish.screen.split(u'x');
    const QString text = QStringLiteral("{\"synchronousWindowSystemEvents\": false, \"windowFrameMargins\": true, "
                                        "\"screens\": [{\"name\": \"one\", \"x\": 0, \"y\": 0, \"width\": %1, "
                                        "\"height\": %2, \"logicalDpi\": %3, \"logicalBaseDpi\": 96, \"dpr\": 1.0}]}")
                             .arg(size.value(0), size.value(1))
                             .arg(96 * wish.percent / 100);
    const QString path = folder + QStringLiteral("/screen.json");
    Write_Bytes(path, text.toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + path.toUtf8());
    qputenv("XDG_DATA_HOME", folder.toUtf8());
}

struct Program : Open_Program
{
    using Open_Program::m_delegate;
    explicit Program(const QFont& font) : Open_Program(font, QApplication::primaryScreen()) {}
    void TestBody() override {}
};

/// A list that a person might have, so that the window is not shown empty twice.
void Fill_List(CorvaneAppDelegate& main)
{
    for (int i = 0; i < 12; ++i)
        main.Create_Num_Msg_List(
            QStringLiteral("004477009001%1").arg(i, 2, 10, QLatin1Char('0')),
            QStringLiteral("Choir rehearsal moves to 7 pm on Tuesday. Bring 10 € for the coffee."));
    main.Redisplay_Recipients();
    main.Set_Composer_Text(QStringLiteral("Choir rehearsal moves to 7 pm on Tuesday. Bring 10 € for the coffee."));
}

Picture Taken_Of(QWidget& window, const QString& name)
{
    window.show();
    for (int round = 0; round < 10; ++round)
        QCoreApplication::processEvents();
    Picture picture{name, window.grab().toImage()};
    window.hide();
    return picture;
}

std::vector<Picture> Pictures(const Wish& wish)
{
    std::vector<Picture> taken;
    const Read_As reading(wish.language);
    const Program program(QFont(wish.font, 10));
    for (const auto& [name, look] : Looks) {
        if (wish.look == QLatin1String(name))
            Choose_Look(look);
    }
    const auto is_wanted = [&](const QString& name) { return name.startsWith(wish.only); };
    if (is_wanted(QStringLiteral("empty list")))
        taken.push_back(Taken_Of(*program.m_delegate, QStringLiteral("empty list")));
    Fill_List(*program.m_delegate);
    for (const auto& sight : Every_Window()) {
        if (is_wanted(QString::fromUtf8(sight.what)))
            taken.push_back(Taken_Of(sight.Prepared(*program.m_delegate), QString::fromUtf8(sight.what)));
    }
    for (const Picture& picture : What_Opens(*program.m_delegate)) {
        if (is_wanted(picture.name))
            taken.push_back(picture);
    }
    return taken;
}

/// Pictures beside and below one another, at half their size where a screen is very large.
QImage Sheet_Of(const std::vector<Picture>& pictures)
{
    struct Place
    {
        QPoint at;
        QImage image;
    };
    std::vector<Place> places;
    QPoint next(Gap, Gap);
    int row_height = 0;
    for (const Picture& picture : pictures) {
        const QImage image = picture.image.width() > Sheet_Width - 2 * Gap
                                 ? picture.image.scaledToWidth(Sheet_Width - 2 * Gap, Qt::SmoothTransformation)
                                 : picture.image;
        if (next.x() > Gap && next.x() + image.width() + Gap > Sheet_Width) {
            next = {Gap, next.y() + row_height + Gap};
            row_height = 0;
        }
        places.push_back({next, image});
        next.rx() += image.width() + Gap;
        row_height = std::max(row_height, image.height() + Caption);
    }
    QImage sheet(Sheet_Width, next.y() + row_height + Gap, QImage::Format_RGB32);
    sheet.fill(QColor(0x80, 0x80, 0x80));
    QPainter painter(&sheet);
    for (std::size_t i = 0; i < places.size(); ++i) {
        painter.drawText(places[i].at + QPoint(0, Caption - 8), pictures[i].name);
        painter.drawImage(places[i].at + QPoint(0, Caption), places[i].image);
    }
    return sheet;
}

} // namespace

int main(int count, char** arguments)
{
    testing::InitGoogleMock(&count, arguments);
    const Wish wish = Read_Wish(count, arguments);
    const QTemporaryDir folder;
    Stand_Before(wish, folder.path());
    Guarded_Application application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    if (!QFontDatabase::families().contains(wish.font)) {
        fprintf(stderr, "The font %s is not installed.\n", qPrintable(wish.font));
        return 1;
    }
    const std::vector<Picture> pictures = Pictures(wish);
    const QDir out(wish.out);
    bool is_written = out.mkpath(wish.Name()) && !pictures.empty();
    int number = 0;
    for (const Picture& picture : pictures) {
        const QString name = QStringLiteral("%1-%2.png").arg(++number, 2, 10, QLatin1Char('0')).arg(picture.name);
        is_written =
            picture.image.save(out.filePath(wish.Name() + u'/' + QString(name).replace(u' ', u'_'))) && is_written;
    }
    is_written = Sheet_Of(pictures).save(out.filePath(wish.Name() + QStringLiteral(".png"))) && is_written;
    Begin_Program_Exit();
    Finish_Workers();
    if (!is_written)
        fprintf(stderr, "The pictures could not be written into %s.\n", qPrintable(wish.out));
    return is_written ? 0 : 1;
}
