#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

// Writes the files that the benchmarks read, the same ones at every run:
//   bench-data numbers <lines> <file> <file of excluded numbers>
//   bench-data distinct <lines> <file>
//   bench-data sent <records> <file>
//   bench-data table <rows> <file>

namespace {

class Random
{
public:
    std::uint32_t Below(std::uint32_t bound)
    {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::uint32_t>(((m_state >> 32) * bound) >> 32);
    }

private:
    std::uint64_t m_state = 42;
};

// The n-th distinct number, ten digits in no visible order: multiplying by a number that shares no factor with the
// range passes through all of it.
std::string Ten_Digits(std::uint64_t n)
{
    constexpr std::uint64_t range = 10'000'000'000;
    std::string digits = std::to_string((n % range * 7'368'787'379U + 1'234'567U) % range);
    return std::string(10 - digits.size(), '0') + digits;
}

// One number as four people would write it.
std::string Written(const std::string& ten, std::uint32_t manner)
{
    switch (manner) {
    case 0:
        return "+44-" + ten.substr(0, 4) + "-" + ten.substr(4) + "\r\n";
    case 1:
        return "+44" + ten + "\n";
    case 2:
        return "0044" + ten + "\r\n";
    default:
        return "0044-" + ten.substr(0, 3) + "-" + ten.substr(3) + "\n";
    }
}

FILE* Opened(const char* path)
{
    FILE* file = std::fopen(path, "wb");
    if (!file) {
        std::perror(path);
        std::exit(1);
    }
    return file;
}

void Put(FILE* file, const std::string& text)
{
    if (std::fwrite(text.data(), 1, text.size(), file) != text.size()) {
        std::perror("writing");
        std::exit(1);
    }
}

/// Passes on each line, and its ten digits alone. Three lines in ten repeat an earlier number.
template <typename Take>
void For_Each_Written(std::uint64_t lines, Take take)
{
    Random random;
    std::uint64_t distinct = 0;
    for (std::uint64_t line = 0; line < lines; ++line) {
        const bool repeats = line % 10 == 3 || line % 10 == 6 || line % 10 == 9;
        const std::uint64_t n = repeats ? random.Below(static_cast<std::uint32_t>(distinct)) : distinct++;
        const std::string ten = Ten_Digits(n);
        take(line, Written(ten, random.Below(4)), ten);
    }
}

// Every twentieth line's number is excluded.
void Make_Numbers(std::uint64_t lines, const char* path, const char* excluded_path)
{
    FILE* file = Opened(path);
    FILE* excluded = Opened(excluded_path);
    For_Each_Written(lines, [&](std::uint64_t line, const std::string& written, const std::string& ten) {
        Put(file, written);
        if (line % 20 == 0)
            Put(excluded, "0044" + ten + "\n");
    });
    std::fclose(file);
    std::fclose(excluded);
}

// The same numbers with four further columns, as spreadsheets save them.
void Make_Table(std::uint64_t rows, const char* path)
{
    constexpr const char* names[] = {"Ann Baker", "Jörg Müller", "Cem Yıldız", "\"Dee \"\"D\"\" Evans\"", "Zoë"};
    constexpr const char* cities[] = {"Bath", "Stoke-on-Trent", "Ely", "York", "\"Ashby, North\"", "St Ives", "Ayr"};
    FILE* file = Opened(path);
    Put(file, "Phone,Name,City,Member,Since\r\n");
    For_Each_Written(rows, [&](std::uint64_t row, const std::string& written, const std::string&) {
        Put(file, written.substr(0, written.find_first_of("\r\n")) + ',' + names[row % 5] + ',' + cities[row % 7] +
                      ',' + std::to_string(100'000 + row) + ",2026-11-" + std::to_string(10 + row % 20) + "\r\n");
    });
    std::fclose(file);
}

void Make_Distinct(std::uint64_t lines, const char* path)
{
    FILE* file = Opened(path);
    for (std::uint64_t line = 0; line < lines; ++line)
        Put(file, "0044" + Ten_Digits(line) + "\n");
    std::fclose(file);
}

// Records of 100 bytes, as a send job leaves them.
void Make_Sent(std::uint64_t records, const char* path)
{
    FILE* file = Opened(path);
    const std::string text = "Choir practice moves to Thursday, 7 pm. Bring your notes along, please.";
    for (std::uint64_t record = 0; record < records; ++record)
        Put(file, "\a0044" + Ten_Digits(record) + "\v" + text + "\a20/11/2026\v\n");
    std::fclose(file);
}

} // namespace

int main(int argument_count, char** arguments)
{
    const std::uint64_t count = argument_count > 2 ? std::strtoull(arguments[2], nullptr, 10) : 0;
    if (argument_count == 5 && std::strcmp(arguments[1], "numbers") == 0)
        Make_Numbers(count, arguments[3], arguments[4]);
    else if (argument_count == 4 && std::strcmp(arguments[1], "distinct") == 0)
        Make_Distinct(count, arguments[3]);
    else if (argument_count == 4 && std::strcmp(arguments[1], "sent") == 0)
        Make_Sent(count, arguments[3]);
    else if (argument_count == 4 && std::strcmp(arguments[1], "table") == 0)
        Make_Table(count, arguments[3]);
    else {
        std::fprintf(stderr, "bench-data numbers|distinct|sent|table <count> <file> [<file of excluded numbers>]\n");
        return 2;
    }
    return 0;
}
