#include "bench/NullHost.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

constexpr int ByteWidth = 6;
constexpr std::size_t PathSize = 4096;

} // namespace

int NullHost::DataParse(const char* text, char* output, u32 size)
{
    std::snprintf(output, size, "%s", text);
    return 0;
}

bool NullHost::RetrieveProcessedText(u32, char* buffer, u32 size)
{
    constexpr char value[] = "value";
    if (size < sizeof(value))
        return false;

    std::memcpy(buffer, value, sizeof(value));
    return true;
}

// A line means that a benchmark does not measure what it should.
void NullHost::PrintLine(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
    std::fputc('\n', stderr);
}

bool NullHost::LocateFile(const char* name, char* path)
{
    std::snprintf(path, PathSize, "%s", name);
    return true;
}

bool NullHost::DrawTexturedRect(const TeskDrawRecord&)
{
    ++Draws;
    return true;
}

bool NullHost::DrawTexturedRects(u32 count, const TeskDrawRecord*)
{
    Draws += count;
    return true;
}

bool NullHost::DrawLine(const TeskDrawRecord&, u32)
{
    ++Draws;
    return true;
}

u32 NullHost::DrawText(u32, const char*, const tagRECT&, u32, u32)
{
    ++Draws;
    return 0;
}

void NullHost::MeasureText(u32, const char* text, int& width)
{
    int total = 0;
    while (*text++)
        total += ByteWidth;
    width = total;
}

bool NullHost::GetGlyphMetrics(u32, u32, u32, float* before, float* glyph, float* after)
{
    *before = 0;
    *glyph = ByteWidth;
    *after = 0;
    return true;
}

bool NullHost::GetDisplaySize(int& width, int& height)
{
    width = Width;
    height = Height;
    return true;
}

bool NullHost::GetTextureResourceSize(u32, _Point2i& size)
{
    size = {64, 64};
    return true;
}
