#include "engine/Receipt_Text.h"

#include "engine/Receipt_Cells.h"
#include "texts/Reading_Language.h"
#include "texts/Receipt_Texts.h"

namespace {

constexpr qsizetype Name_Width = 12;

QString Rule()
{
    return QString(76, u'=') + u'\n';
}

// Every line of a text behind the name, so that a message with line breaks does not look like lines of the receipt.
QString Line(const QString& name, const QString& text)
{
    const QString indent = u'\n' + QString(Name_Width, u' ') + QStringLiteral("  ");
    return name.leftJustified(Name_Width) + QStringLiteral(": ") +
           Receipt_Cells::Printable(text)
               .replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
               .replace(u'\r', u'\n')
               .replace(QStringLiteral("\n"), indent) +
           u'\n';
}

QByteArray Header(const Job_Receipt& receipt)
{
    const Reading_Language::Originals originals; // a file is the same in every language
    QString header = Rule() + QString(Texts::Receipts::Title) + u'\n' + Rule();
    for (const auto& [name, fact] : receipt.Facts())
        header += Line(name, fact);
    return (header + u'\n' + Sums_In_Words(receipt) + u'\n' + Rule()).toUtf8();
}

QByteArray Piece(const Receipt_Row& row)
{
    const QStringList headings = Receipt_Cells::Headings();
    const QStringList cells = Receipt_Cells::Of(row, true);
    QString piece;
    for (qsizetype column = 0; column < cells.size(); ++column) {
        if (!cells.at(column).isEmpty())
            piece += Line(headings.at(column), cells.at(column));
    }
    return (piece + Rule()).toUtf8();
}

} // namespace

Export_Content Receipt_Text(std::shared_ptr<const Job_Receipt> receipt)
{
    QByteArray header = Header(*receipt);
    const int rows = receipt->Row_Count();
    return {std::move(header), rows, [receipt = std::move(receipt)](qsizetype index) {
                const Reading_Language::Originals originals;
                return Piece(receipt->Row(static_cast<int>(index) + 1));
            }};
}
