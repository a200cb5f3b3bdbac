#include "app/Command_Line.h"

#include <QCommandLineParser>

namespace {

QString Usage()
{
    return QStringLiteral("Usage: corvane [--device PATH]... [--demo] [--version] [--help]\n"
                          "Sends a text message to many people through your own GSM phone or modem.\n\n"
                          "  --device PATH  Offer the serial device at PATH in the connection wizard as well.\n"
                          "  --demo         Start a virtual phone and offer it in the connection wizard.\n"
                          "  --version      Show the version.\n"
                          "  --help         Show this text.");
}

} // namespace

Command_Line Read_Command_Line(const QStringList& arguments, const QString& version)
{
    QCommandLineParser parser;
    const QCommandLineOption device(QStringLiteral("device"), QString(), QStringLiteral("path"));
    const QCommandLineOption demo(QStringLiteral("demo"));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption show_version(QStringLiteral("version"));
    parser.addOptions({device, demo, help, show_version});

    Command_Line line;
    if (!parser.parse(arguments)) {
        line.answer = parser.errorText();
        line.is_mistaken = true;
    } else if (!parser.positionalArguments().isEmpty()) {
        line.answer = QStringLiteral("Unexpected argument: ") + parser.positionalArguments().constFirst();
        line.is_mistaken = true;
    } else if (parser.isSet(help)) {
        line.answer = Usage();
    } else if (parser.isSet(show_version)) {
        line.answer = QStringLiteral("corvane ") + version;
    }
    line.device_paths = parser.values(device);
    line.demo = parser.isSet(demo);
    return line;
}
