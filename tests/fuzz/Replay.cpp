// Stands in for the fuzzer's engine: runs a fuzz target over each file it is given, and with "--vary COUNT" over that
// many variations of each as well. A file's name is printed before it runs, so that the last name before a crash is the
// culprit. Variations depend on nothing but the file, so the same command finds the same crash again.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Of targets that must do something before the first input.
extern "C" [[gnu::weak]] int LLVMFuzzerInitialize(int* count, char*** arguments);

namespace {

using Bytes = std::vector<std::uint8_t>;

class Variations
{
public:
    explicit Variations(const Bytes& original)
        : m_Original(original), m_Random(static_cast<std::uint32_t>(original.size()) + 1)
    {
    }

    // A few changes to the original.
    Bytes Next()
    {
        Bytes bytes = m_Original;
        for (std::size_t changes = 1 + Below(6); changes > 0; --changes)
            Change(bytes);
        return bytes;
    }

private:
    std::size_t Below(std::size_t bound) { return m_Random() % bound; }

    void Change(Bytes& bytes)
    {
        const std::size_t place = Below(bytes.size() + 1);
        const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(place);
        const std::size_t length = std::min<std::size_t>(1 + Below(8), bytes.size() - place);
        const auto to = from + static_cast<std::ptrdiff_t>(length);
        switch (Below(4)) {
        case 0:
            std::for_each(from, to, [this](std::uint8_t& byte) { byte = static_cast<std::uint8_t>(Below(256)); });
            break;
        case 1:
            bytes.erase(from, to);
            break;
        case 2:
            bytes.insert(from, static_cast<std::uint8_t>(Below(256)));
            break;
        default:
            Repeat(bytes, place, length);
        }
    }

    // Puts a piece somewhere else as well.
    void Repeat(Bytes& bytes, std::size_t place, std::size_t length)
    {
        const Bytes piece(bytes.begin() + static_cast<std::ptrdiff_t>(place),
            bytes.begin() + static_cast<std::ptrdiff_t>(place + length));
        bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(Below(bytes.size() + 1)), piece.begin(), piece.end());
    }

    const Bytes& m_Original;
    std::minstd_rand m_Random; // the same numbers everywhere
};

void Run(const Bytes& bytes)
{
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

bool RunFile(const char* name, unsigned long variations)
{
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", name);
        return false;
    }

    std::printf("%s\n", name);
    std::fflush(stdout);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const auto* begin = reinterpret_cast<const unsigned char*>(text.data());
    const Bytes bytes(begin, begin + text.size());
    Run(bytes);
    Variations varied(bytes);
    for (unsigned long count = 0; count < variations; ++count)
        Run(varied.Next());
    return true;
}

} // namespace

int main(int count, char** arguments)
{
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&count, &arguments);
    int next = 1;
    unsigned long variations = 0;
    if (count > 2 && std::strcmp(arguments[1], "--vary") == 0) {
        variations = std::strtoul(arguments[2], nullptr, 10);
        next = 3;
    }
    for (; next < count; ++next) {
        if (!RunFile(arguments[next], variations))
            return 1;
    }
    return 0;
}
