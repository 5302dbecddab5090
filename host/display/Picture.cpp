#include "host/display/Picture.h"

#include <SDL_image.h>

#include <filesystem>

namespace host {

Picture::Picture(int width, int height)
    : m_Surface(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_ARGB8888))
{
    if (m_Surface)
        m_Renderer = SDL_CreateSoftwareRenderer(m_Surface);
}

Picture::~Picture()
{
    if (m_Renderer)
        SDL_DestroyRenderer(m_Renderer);
    SDL_FreeSurface(m_Surface);
}

bool Picture::Save(const std::string& file) const
{
    return Save(file, {0, 0, m_Surface->w, m_Surface->h});
}

bool Picture::Save(const std::string& file, const SDL_Rect& area) const
{
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    if (!folder.empty())
        std::filesystem::create_directories(folder, error);
    const auto opaque = CopyOpaque(area);
    return opaque && IMG_SavePNG(opaque.get(), file.c_str()) == 0;
}

std::optional<std::string> Picture::Encode() const
{
    constexpr std::size_t Overhead = 1u << 16; // more than what a PNG adds to pixels that cannot be packed
    const auto opaque = CopyOpaque({0, 0, m_Surface->w, m_Surface->h});
    if (!opaque)
        return std::nullopt;

    const auto pixels = static_cast<std::size_t>(opaque->pitch) * static_cast<std::size_t>(opaque->h);
    std::string bytes(pixels + pixels / 64 + Overhead, '\0');
    SDL_RWops* const memory = SDL_RWFromMem(bytes.data(), static_cast<int>(bytes.size()));
    if (!memory || IMG_SavePNG_RW(opaque.get(), memory, 0) != 0)
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(SDL_RWtell(memory)));
    SDL_RWclose(memory);
    return bytes;
}

std::unique_ptr<SDL_Surface, Picture::FreeSurface> Picture::CopyOpaque(const SDL_Rect& area) const
{
    SDL_RenderFlush(m_Renderer);
    std::unique_ptr<SDL_Surface, FreeSurface> opaque(
        SDL_CreateRGBSurfaceWithFormat(0, area.w, area.h, 24, SDL_PIXELFORMAT_RGB24));
    SDL_Rect from = area;
    const bool isCopied = opaque && SDL_SetSurfaceBlendMode(m_Surface, SDL_BLENDMODE_NONE) == 0
        && SDL_BlitSurface(m_Surface, &from, opaque.get(), nullptr) == 0;
    return isCopied ? std::move(opaque) : nullptr;
}

} // namespace host
