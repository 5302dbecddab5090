#include "host/drawlist/DrawListFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace host {

namespace {

constexpr std::size_t LargestFile = 64u << 20;
constexpr std::size_t PieceSize = 1u << 16;

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

} // namespace

std::optional<DrawList> ReadDrawListFile(const std::filesystem::path& file, std::string& why)
{
    const std::unique_ptr<std::FILE, CloseFile> input(std::fopen(file.c_str(), "rb"));
    std::string text;
    std::size_t read = PieceSize;
    while (input && read == PieceSize && text.size() <= LargestFile) {
        text.resize(text.size() + PieceSize);
        read = std::fread(text.data() + text.size() - PieceSize, 1, PieceSize, input.get());
        text.resize(text.size() - PieceSize + read);
    }
    if (!input || std::ferror(input.get())) {
        why = std::string("cannot be read: ") + std::strerror(errno);
        return std::nullopt;
    }
    if (text.size() > LargestFile) {
        why = "is larger than " + std::to_string(LargestFile >> 20) + " MiB, so it is no draw list";
        return std::nullopt;
    }
    return ReadDrawList(text, why);
}

} // namespace host
