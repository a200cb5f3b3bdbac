#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

// The peer of the import: does for one file what the program does, and nothing else. A number of up to twenty digits
// packs into eighty bits; one flat hash table of those holds the excluded numbers and those already taken.
//   bench-tight <file> <file of excluded numbers>

namespace {

struct Key
{
    std::uint64_t low = 0;
    std::uint32_t high = 0;
    bool operator==(const Key&) const = default;
};

struct Slot
{
    Key key; // no number is the empty one
};

class Flat_Table
{
public:
    explicit Flat_Table(std::size_t numbers)
    {
        std::size_t slots = 64;
        while (slots < numbers * 2)
            slots *= 2;
        m_slots.resize(slots);
    }

    /// Returns whether the key is new.
    bool Insert(const Key& key)
    {
        const std::size_t mask = m_slots.size() - 1;
        for (std::size_t at = Hash(key) & mask;; at = (at + 1) & mask) {
            if (m_slots[at].key == key)
                return false;
            if (m_slots[at].key == Key()) {
                m_slots[at].key = key;
                return true;
            }
        }
    }

private:
    static std::size_t Hash(const Key& key)
    {
        std::uint64_t mixed = (key.low ^ (std::uint64_t{key.high} << 40)) * 0x9E3779B97F4A7C15U;
        mixed ^= mixed >> 32;
        mixed *= 0xD6E8FEB86659FD93U;
        return mixed ^ (mixed >> 32);
    }

    std::vector<Slot> m_slots;
};

struct Recipient
{
    char number[20];
    std::uint8_t length;
    const std::string* message;
};

std::string Content(const char* path)
{
    std::string content;
    FILE* file = std::fopen(path, "rb");
    if (!file) {
        std::perror(path);
        std::exit(1);
    }
    std::fseek(file, 0, SEEK_END);
    content.resize(static_cast<std::size_t>(std::ftell(file)));
    std::rewind(file);
    if (std::fread(content.data(), 1, content.size(), file) != content.size())
        content.clear();
    std::fclose(file);
    return content;
}

// The number of a line, normalised, as text and as key; false when it is none.
bool Read_Number(const char* at, const char* end, Recipient& recipient, Key& key)
{
    const auto is_blank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    const auto is_passed_over = [](char c) { return c == '-' || c == '\\' || c == '{' || c == '}'; };
    while (at < end && (is_blank(*at) || is_passed_over(*at)))
        ++at;
    while (at < end && (is_blank(end[-1]) || is_passed_over(end[-1])))
        --end;
    unsigned length = 0;
    const auto put = [&](char digit) {
        if (length == sizeof(recipient.number))
            return false;
        recipient.number[length++] = digit;
        key.high = (key.high << 4) | static_cast<std::uint32_t>(key.low >> 60);
        key.low = (key.low << 4) | static_cast<std::uint64_t>(digit - '0' + 1);
        return true;
    };
    if (at < end && *at == '+') {
        put('0');
        put('0');
        ++at;
    }
    for (; at < end; ++at) {
        if (is_passed_over(*at))
            continue;
        if (*at < '0' || *at > '9' || !put(*at))
            return false;
    }
    recipient.length = static_cast<std::uint8_t>(length);
    return length > 0;
}

template <typename Take>
void For_Each_Number(const std::string& content, const Take& take)
{
    const char* at = content.data();
    const char* const end = at + content.size();
    while (at < end) {
        const auto* line_end = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        if (!line_end)
            line_end = end;
        Recipient recipient{};
        Key key;
        if (Read_Number(at, line_end, recipient, key))
            take(recipient, key);
        at = line_end + 1;
    }
}

} // namespace

int main(int argument_count, char** arguments)
{
    if (argument_count != 3) {
        std::fprintf(stderr, "bench-tight <file> <file of excluded numbers>\n");
        return 2;
    }
    const std::string excluded = Content(arguments[2]);
    const std::string message = "the same for all";
    const auto begin = std::chrono::steady_clock::now();
    const std::string content = Content(arguments[1]);
    Flat_Table taken((content.size() + excluded.size()) / 12);
    For_Each_Number(excluded, [&](const Recipient&, const Key& key) { taken.Insert(key); });
    std::vector<Recipient> list;
    For_Each_Number(content, [&](Recipient& recipient, const Key& key) {
        if (!taken.Insert(key))
            return;
        recipient.message = &message;
        list.push_back(recipient);
    });
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    std::printf("{\"seconds\": %.6f, \"count\": %zu}\n", time.count(), list.size());
    return 0;
}
