#pragma once

#include "host/display/PixelRect.h"

#include <SDL.h>

#include <cstddef>
#include <vector>

namespace host {

// The four-cornered shapes of one frame, in their order, with neighbours of the same texture joined. Keeps its memory
// when it is cleared.
class FrameGeometry
{
public:
    static constexpr int VerticesPerShape = 4;

    // Shapes that follow one another and have the same texture.
    struct Batch {
        SDL_Texture* Texture = nullptr;
        int FirstShape = 0;
        int ShapeCount = 0;

        bool operator==(const Batch&) const = default;
    };

    void Clear();

    // Adds four vertices in the order of the shape's outline.
    void Add(SDL_Texture* texture, const SDL_Vertex (&vertices)[VerticesPerShape]);

    const std::vector<Batch>& Batches() const { return m_Batches; }
    const SDL_Vertex* ShapeAt(int shape) const;
    PixelRect BoundsOf(int shape) const;

    // Whether the other frame has as many shapes of the same textures.
    bool HasFormOf(const FrameGeometry& other) const { return m_Batches == other.m_Batches; }

    // The part of the target in which two frames of the same form differ; empty if they are equal.
    PixelRect DifferenceFrom(const FrameGeometry& other) const;

private:
    std::vector<SDL_Vertex> m_Vertices;
    std::vector<Batch> m_Batches;
};

} // namespace host
