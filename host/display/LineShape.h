#pragma once

#include "host/display/Renderer.h"

namespace host {

// A line with a width, in pixels of the target. Upright and level lines are sharp, others have soft edges.
struct LineShape {
    SDL_FPoint From; // the middle of the pixel at each end, which belongs to the line
    SDL_FPoint To;
    float Width = 1;

    void AddTo(Renderer& renderer, SDL_Texture* texture, const TextureCorners& corners, SDL_Color color) const;

private:
    void AddSharp(Renderer& renderer, SDL_Texture* texture, const TextureCorners& corners, SDL_Color color) const;
    void AddSoft(Renderer& renderer, SDL_Texture* texture, const TextureCorners& corners, SDL_Color color) const;
};

} // namespace host
