#include "engine/Receipt_Cells.h"

#include "texts/Receipt_Texts.h"

namespace T = Texts::Receipts;

QStringList Receipt_Cells::Headings()
{
    return {T::Row, T::Number, T::Message, T::Outcome, T::Reason, T::Parts_Sent, T::Parts, T::Delivery, T::Time};
}

QStringList Receipt_Cells::Of(const Receipt_Row& row, bool has_sign)
{
    return {QString::number(row.source_row),
            row.number,
            row.message,
            has_sign ? row.signed_outcome : row.outcome,
            row.reason,
            QString::number(row.parts_sent),
            QString::number(row.parts),
            row.delivery,
            row.time};
}

QString Receipt_Cells::Printable(QString text)
{
    constexpr char16_t Pictures = 0x2400; // Control Pictures, in the order of the characters
    constexpr char16_t Picture_Of_Delete = 0x2421;
    for (QChar& character : text) {
        const char16_t unit = character.unicode();
        if (unit < u' ' && unit != u'\n' && unit != u'\r' && unit != u'\t')
            character = QChar(static_cast<char16_t>(Pictures + unit));
        else if (unit == 0x7F)
            character = QChar(Picture_Of_Delete);
        else if (unit > 0x7F && unit < 0xA0) // which have no pictures
            character = QChar(QChar::ReplacementCharacter);
    }
    return text;
}
