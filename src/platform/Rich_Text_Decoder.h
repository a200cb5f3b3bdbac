#pragma once

#include <QByteArray>
#include <QString>
#include <iconv.h>
#include <map>

/// Turns the bytes of a rich text into characters, whichever code pages they are in: one converter of the C library for
/// each code page met. Bytes of one character may come one by one. Owned by the reader of one document, on its thread.
class Rich_Text_Decoder
{
public:
    Rich_Text_Decoder() = default;
    ~Rich_Text_Decoder();
    Rich_Text_Decoder(const Rich_Text_Decoder&) = delete;
    Rich_Text_Decoder& operator=(const Rich_Text_Decoder&) = delete;

    /// Takes one byte of text in a code page by its number, such as 1251; one not known counts as 1252. Characters that
    /// are whole are put at the end of the text, now or later.
    void Put(char byte, int code_page, QString& text);

    /// Puts what is still held at the end of the text: a character that lacks bytes becomes U+FFFD.
    void Finish(QString& text);

    /// Whether bytes are held, so that what follows them must come through Put or after Finish.
    bool Is_Holding() const { return !m_held.isEmpty(); }

    /// The code page of a font's character set, as \fcharset gives it; 0 where that names none of its own.
    static int Code_Page_Of_Charset(int charset);

private:
    void Convert_Held(QString& text);
    iconv_t Converter();

    std::map<const char*, iconv_t> m_converters; // as many at the most as there are names in the table
    QByteArray m_held;
    int m_code_page = 0;
    const char* m_name = nullptr;
};
