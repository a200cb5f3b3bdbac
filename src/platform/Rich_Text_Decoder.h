#pragma once

#include <QByteArray>
#include <QString>
#include <iconv.h>
#include <map>

// Turns the bytes of a rich text into characters, whatever code pages they are in, with one converter of the C library
// for each code page met. The bytes of one character may arrive one by one. Owned by the reader of one document, on its
// thread.
class Rich_Text_Decoder
{
public:
    Rich_Text_Decoder() = default;
    ~Rich_Text_Decoder();
    Rich_Text_Decoder(const Rich_Text_Decoder&) = delete;
    Rich_Text_Decoder& operator=(const Rich_Text_Decoder&) = delete;

    /// Takes one byte of text in a code page, given by number such as 1251; an unknown one counts as 1252. Complete
    /// characters are appended to the text, now or later.
    void Put(char byte, int code_page, QString& text);

    /// Appends what is still held to the text: a character that lacks bytes becomes U+FFFD.
    void Finish(QString& text);

    /// Whether bytes are held, so that what follows them must go through Put or come after Finish.
    bool Is_Holding() const { return !m_held.isEmpty(); }

    /// The code page of a font's character set, as given by \fcharset; 0 where that names none of its own.
    static int Code_Page_Of_Charset(int charset);

private:
    void Convert_Held(QString& text);
    iconv_t Converter();

    std::map<const char*, iconv_t> m_converters; // at most as many as there are names in the table
    QByteArray m_held;
    int m_code_page = 0;
    const char* m_name = nullptr;
};
