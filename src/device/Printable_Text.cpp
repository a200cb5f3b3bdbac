#include "device/Printable_Text.h"

namespace {

constexpr char Escape = 0x1B;

QByteArray Octal_Form(char byte)
{
    return '\\' + QByteArray::number(static_cast<unsigned char>(byte), 8).rightJustified(3, '0');
}

} // namespace

QByteArray Printable_Text(const QByteArray& bytes)
{
    QByteArray text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        if (byte >= 0x20 && byte < 0x7F)
            text += byte;
        else if (byte == '\t')
            text += "\\t";
        else if (byte == '\n')
            text += "\\n";
        else if (byte == '\r')
            text += "\\r";
        else if (byte == Escape)
            text += "\\e";
        else
            text += Octal_Form(byte);
    }
    return text;
}
