#pragma once

#include <SDL.h>

#include <memory>
#include <optional>
#include <string>

namespace host {

// A picture in memory with a renderer that draws into it; needs no display.
class Picture
{
public:
    // size in pixels of the target.
    Picture(int width, int height);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    // Null if it could not be made.
    SDL_Renderer* Target() const { return m_Renderer; }

    // Writes the picture, or an area of it, as a PNG file, and its folder if that is missing. False: SDL_GetError says
    // why.
    bool Save(const std::string& file) const;
    bool Save(const std::string& file, const SDL_Rect& area) const;

    // The bytes of such a file. Nothing: SDL_GetError says why.
    std::optional<std::string> Encode() const;

private:
    struct FreeSurface {
        void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
    };

    // A copy of an area through which nothing shines; null if there is no memory.
    std::unique_ptr<SDL_Surface, FreeSurface> CopyOpaque(const SDL_Rect& area) const;

    SDL_Surface* m_Surface = nullptr;
    SDL_Renderer* m_Renderer = nullptr;
};

} // namespace host
