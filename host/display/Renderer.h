#pragma once

#include "host/display/FrameGeometry.h"
#include "host/display/PixelRect.h"

#include <SDL.h>

#include <vector>

namespace host {

// Which part of a texture goes to which corner, from 0 to 1. The fourth corner follows from the three.
struct TextureCorners {
    SDL_FPoint TopLeft = {0, 0};
    SDL_FPoint TopRight = {1, 0};
    SDL_FPoint BottomLeft = {0, 1};
};

// Collects a frame as triangles, joined into one call for each run of the same texture, and draws it at the frame's
// end. A frame that equals the one before is not drawn again, and the processor draws only the part that changed.
class Renderer
{
public:
    // renderer is borrowed.
    explicit Renderer(SDL_Renderer* renderer);
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;

    SDL_Renderer* Target() const { return m_Renderer; }

    // Whether triangles are drawn by the processor, which has its own quick way for rectangles of one colour.
    bool IsSoftware() const { return m_Software; }

    // Begins a frame that has a size in pixels and lies on a background.
    void BeginFrame(int width, int height, SDL_Color background);

    // Draws an upright rectangle, cut to the frame and to clip. A null texture is plain white. The texture must live
    // until the frame's end.
    void AddQuad(SDL_Texture* texture, PixelRect rect, TextureCorners corners, SDL_Color color);
    void AddQuad(SDL_Texture* texture, PixelRect rect, TextureCorners corners, SDL_Color color, const PixelRect& clip);

    // Draws any four-cornered shape: four vertices in the order of its outline.
    void AddShape(SDL_Texture* texture, const SDL_Vertex (&vertices)[4]);

    // Draws at once what was collected: before a texture that it uses is changed.
    void Flush();

    // Ends the frame. True if it was drawn and has to be presented; false if it equals the last one.
    bool EndFrame();

    // The next frame is drawn even if it equals the last one: the target lost its pixels.
    void Invalidate() { m_Invalid = true; }

private:
    void Submit();
    void SubmitPart(const PixelRect& part);
    void DrawBatch(const FrameGeometry::Batch& batch);
    void DrawBatchPart(const FrameGeometry::Batch& batch, const PixelRect& part);
    void DrawShapes(const FrameGeometry::Batch& batch, const std::vector<int>& indices, int count);

    SDL_Renderer* m_Renderer;
    bool m_Software = false;
    SDL_Color m_Background = {0, 0, 0, 255};
    PixelRect m_Bounds;
    FrameGeometry m_Frame;
    FrameGeometry m_LastFrame;
    std::vector<int> m_Indices; // of as many shapes as a batch ever had
    std::vector<int> m_PartIndices;
    bool m_Cleared = false;
    bool m_Invalid = true;
};

} // namespace host
