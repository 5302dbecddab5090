#pragma once

#include "teskara/core/Types.h"

#include <SDL.h>

#include <cstddef>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>

namespace host {

// An image as the renderer holds it. Without a texture it is plain white.
struct Image {
    SDL_Texture* Texture = nullptr;
    int Width = 1;
    int Height = 1;
};

// All images of the host. Images of the same file and colour key are one, counted; one that is no longer used is kept
// for a while, since controls give images back and ask for them again within a frame.
class TextureCache
{
public:
    // The image that plain lines name without loading it.
    static constexpr u32 WhiteID = 1;

    // The renderer is borrowed.
    explicit TextureCache(SDL_Renderer* renderer);
    ~TextureCache();
    TextureCache(const TextureCache&) = delete;
    TextureCache& operator=(const TextureCache&) = delete;

    // Loads or shares an image. path: a file, empty for plain white. colorKey: pixels of its red, green and blue become
    // clear, 0 for none. 0 if it cannot be loaded; why then says the reason, once for each file, else it is empty.
    u32 Acquire(const std::string& path, u32 colorKey, std::string& why);
    void Release(u32 id);

    // A file has changed: whoever asks for its image from now on gets what it holds then. Who has one keeps it.
    void ReadAnew(const std::string& path);

    // Null for an id that is not in use.
    const Image* Find(u32 id) const;

    // The image turned by quarter turns clockwise, for a renderer that cannot turn what it draws. Null as for Find, and
    // if the turned image could not be made.
    const Image* FindTurned(u32 id, u8 quarterTurns);

    // Between frames: lets go of what has not been used for a while.
    void Collect();

    // How many times images were acquired and not released.
    std::size_t Acquired() const;

private:
    using Key = std::pair<std::string, u32>;

    struct Entry {
        Key Name;
        Image Value;
        Image Turned[3]; // by one to three quarter turns, when they are needed
        u32 Count = 0;
        u32 UnusedFrames = 0;
    };

    // Null on failure.
    SDL_Texture* Load(const Key& key, u8 quarterTurns, Image& image);
    static void Destroy(Entry& entry);

    SDL_Renderer* m_Renderer;
    std::map<Key, u32> m_IDs;
    std::map<Key, u32> m_FailedUntil; // the frame from which a failed file is tried again
    std::unordered_map<u32, Entry> m_Images;
    u32 m_LastID = WhiteID;
    u32 m_Frame = 0;
};

} // namespace host
