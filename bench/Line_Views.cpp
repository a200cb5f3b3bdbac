#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

// The peer of a load: reads a file and splits it into views at the line ends.
//   bench-lines <file>

int main(int argument_count, char** arguments)
{
    if (argument_count != 2) {
        std::fprintf(stderr, "bench-lines <file>\n");
        return 2;
    }
    const auto begin = std::chrono::steady_clock::now();
    FILE* file = std::fopen(arguments[1], "rb");
    if (!file) {
        std::perror(arguments[1]);
        return 1;
    }
    std::string content;
    std::fseek(file, 0, SEEK_END);
    content.resize(static_cast<std::size_t>(std::ftell(file)));
    std::rewind(file);
    const std::size_t bytes = std::fread(content.data(), 1, content.size(), file);
    std::fclose(file);
    std::vector<std::string_view> lines;
    std::string_view rest = std::string_view(content).substr(0, bytes);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        lines.push_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    std::printf("{\"seconds\": %.6f, \"count\": %zu, \"bytes\": %zu}\n", time.count(), lines.size(), bytes);
    return 0;
}
