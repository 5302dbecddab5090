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
    SDL_RenderFlush(m_Renderer);
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    if (!folder.empty())
        std::filesystem::create_directories(folder, error);

    // Nothing shines through a picture.
    SDL_Surface* opaque = SDL_ConvertSurfaceFormat(m_Surface, SDL_PIXELFORMAT_RGB24, 0);
    const bool saved = opaque && IMG_SavePNG(opaque, file.c_str()) == 0;
    SDL_FreeSurface(opaque);
    return saved;
}

} // namespace host
