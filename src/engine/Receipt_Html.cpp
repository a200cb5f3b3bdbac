#include "engine/Receipt_Html.h"

#include "engine/Receipt_Cells.h"
#include "texts/Reading_Language.h"
#include "texts/Receipt_Texts.h"

namespace {

constexpr const char* Head =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'\">\n"
    "<meta name=\"viewport\" content=\"width=device-width\">\n<style>\n"
    "body { font-family: sans-serif; margin: 2em; color: #1d232f; background: #fff; }\n"
    "dt { float: left; clear: left; width: 8em; color: #4a5160; }\n"
    "table { border-collapse: collapse; margin-top: 1em; }\n"
    "th, td { border: 1px solid #c5ccd8; padding: 0.3em 0.6em; text-align: start; vertical-align: top; }\n"
    "th { background: #f1f4fa; }\n"
    "td { white-space: pre-wrap; overflow-wrap: anywhere; }\n"
    "</style>\n";
constexpr const char* Foot = "</tbody>\n</table>\n</body>\n</html>\n";

QString Escaped(const QString& text)
{
    return Receipt_Cells::Printable(text).toHtmlEscaped();
}

QString Element(const char* name, const QString& text)
{
    const QString tag = QLatin1String(name);
    return u'<' + tag + u'>' + Escaped(text) + QStringLiteral("</") + tag.section(u' ', 0, 0) + u'>';
}

QByteArray Header(const Job_Receipt& receipt)
{
    const Reading_Language::Originals originals; // a file is the same in every language
    QString page = QLatin1String(Head) + Element("title", Texts::Receipts::Title) +
                   QStringLiteral("\n</head>\n<body>\n") + Element("h1", Texts::Receipts::Title) +
                   QStringLiteral("\n<dl>\n");
    for (const auto& [name, fact] : receipt.Facts())
        page += Element("dt", name) + Element("dd", fact) + u'\n';
    page +=
        QStringLiteral("</dl>\n") + Element("p", Sums_In_Words(receipt)) + QStringLiteral("\n<table>\n<thead>\n<tr>");
    for (const QString& heading : Receipt_Cells::Headings())
        page += Element("th scope=\"col\"", heading);
    return (page + QStringLiteral("</tr>\n</thead>\n<tbody>\n")).toUtf8();
}

// The texts of people may be in either direction of writing.
QByteArray Piece(const Receipt_Row& row)
{
    QString piece = QStringLiteral("<tr>");
    for (const QString& cell : Receipt_Cells::Of(row, true))
        piece += Element("td dir=\"auto\"", cell);
    return (piece + QStringLiteral("</tr>\n")).toUtf8();
}

} // namespace

Export_Content Receipt_Html(std::shared_ptr<const Job_Receipt> receipt)
{
    QByteArray header = Header(*receipt);
    const int rows = receipt->Row_Count();
    return {std::move(header), rows + 1, [receipt = std::move(receipt), rows](qsizetype index) {
                const Reading_Language::Originals originals;
                return index == rows ? QByteArray(Foot) : Piece(receipt->Row(static_cast<int>(index) + 1));
            }};
}
