// Stands in for the fuzzer's engine: runs a fuzz target once over each file it is given. A file's name is printed
// before it runs, so that the last name before a crash is the culprit.

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int count, char** arguments)
{
    for (int index = 1; index < count; ++index) {
        std::ifstream file(arguments[index], std::ios::binary);
        if (!file) {
            std::fprintf(stderr, "cannot read %s\n", arguments[index]);
            return 1;
        }

        std::printf("%s\n", arguments[index]);
        std::fflush(stdout);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    return 0;
}
