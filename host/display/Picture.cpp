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
    SDL_RenderFlush(m_Renderer);
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    if (!folder.empty())
        std::filesystem::create_directories(folder, error);

    // Nothing shines through a picture.
    SDL_Surface* opaque = SDL_CreateRGBSurfaceWithFormat(0, area.w, area.h, 24, SDL_PIXELFORMAT_RGB24);
    const bool saved = opaque && SDL_SetSurfaceBlendMode(m_Surface, SDL_BLENDMODE_NONE) == 0
        && SDL_BlitSurface(m_Surface, &area, opaque, nullptr) == 0 && IMG_SavePNG(opaque, file.c_str()) == 0;
    SDL_FreeSurface(opaque);
    return saved;
}

} // namespace host
