#pragma once

#include <SDL.h>

#include <vector>

namespace host {

// A rectangle in pixels of the target.
struct PixelRect {
    float Left = 0;
    float Top = 0;
    float Right = 0;
    float Bottom = 0;

    float Width() const { return Right - Left; }
    float Height() const { return Bottom - Top; }
};

// Which part of a texture goes to which corner, from 0 to 1. The fourth corner follows from the three.
struct TextureCorners {
    SDL_FPoint TopLeft = {0, 0};
    SDL_FPoint TopRight = {1, 0};
    SDL_FPoint BottomLeft = {0, 1};
};

// Collects a frame as triangles, joined into one call for each run of the same texture, and draws it at the frame's
// end. A frame that equals the one before is not drawn again. Works on every kind of SDL renderer.
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
    struct Batch {
        SDL_Texture* Texture = nullptr;
        int FirstVertex = 0;
        int VertexCount = 0;

        bool operator==(const Batch&) const = default;
    };

    struct Frame {
        std::vector<SDL_Vertex> Vertices;
        std::vector<Batch> Batches;

        void Clear();
        bool Equals(const Frame& other) const;
    };

    void Submit();
    void DrawBatch(const Batch& batch);

    SDL_Renderer* m_Renderer;
    bool m_Software = false;
    SDL_Color m_Background = {0, 0, 0, 255};
    PixelRect m_Bounds;
    Frame m_Frame;
    Frame m_LastFrame;
    std::vector<int> m_Indices;
    bool m_Cleared = false;
    bool m_Invalid = true;
};

} // namespace host
