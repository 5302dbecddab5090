#include "host/display/TextureCache.h"

#include <SDL_image.h>

namespace host {

namespace {

constexpr u32 FramesKeptUnused = 300;

// A file that could not be read is asked for in every frame; it is looked at again only now and then.
constexpr u32 FramesBetweenAttempts = 120;

constexpr u32 ColorBits = 0x00FFFFFF;

const Image WhiteImage;

u32* RowOf(SDL_Surface* surface, int y)
{
    return reinterpret_cast<u32*>(static_cast<u8*>(surface->pixels) + y * surface->pitch);
}

void ClearColor(SDL_Surface* surface, u32 colorKey)
{
    for (int y = 0; y < surface->h; ++y) {
        u32* row = RowOf(surface, y);
        for (int x = 0; x < surface->w; ++x)
            if ((row[x] & ColorBits) == (colorKey & ColorBits))
                row[x] = 0;
    }
}

// Turns clockwise: what was the left edge becomes the upper edge.
SDL_Surface* NewTurned(SDL_Surface* surface)
{
    SDL_Surface* turned = SDL_CreateRGBSurfaceWithFormat(0, surface->h, surface->w, 32, SDL_PIXELFORMAT_ARGB8888);
    for (int y = 0; turned && y < turned->h; ++y)
        for (int x = 0; x < turned->w; ++x)
            RowOf(turned, y)[x] = RowOf(surface, surface->h - 1 - x)[y];
    return turned;
}

SDL_Surface* LoadSurface(const std::string& path)
{
    SDL_Surface* loaded = IMG_Load(path.c_str());
    if (!loaded)
        return nullptr;

    SDL_Surface* surface = SDL_ConvertSurfaceFormat(loaded, SDL_PIXELFORMAT_ARGB8888, 0);
    SDL_FreeSurface(loaded);
    return surface;
}

} // namespace

TextureCache::TextureCache(SDL_Renderer* renderer) : m_Renderer(renderer) { }

TextureCache::~TextureCache()
{
    for (auto& [id, entry] : m_Images)
        Destroy(entry);
}

u32 TextureCache::Acquire(const std::string& path, u32 colorKey, std::string& why)
{
    if (path.empty())
        return WhiteID;

    const Key key = {path, colorKey};
    const auto known = m_IDs.find(key);
    if (known != m_IDs.end()) {
        ++m_Images[known->second].Count;
        return known->second;
    }
    const auto failed = m_FailedUntil.find(key);
    if (failed != m_FailedUntil.end() && m_Frame < failed->second)
        return 0;

    Image image;
    if (!Load(key, 0, image)) {
        if (failed == m_FailedUntil.end())
            why = SDL_GetError();
        m_FailedUntil[key] = m_Frame + FramesBetweenAttempts;
        return 0;
    }
    m_FailedUntil.erase(key);
    const u32 id = ++m_LastID;
    m_IDs[key] = id;
    m_Images[id] = {key, image, {}, 1, 0};
    return id;
}

std::size_t TextureCache::Acquired() const
{
    std::size_t count = 0;
    for (const auto& image : m_Images)
        count += image.second.Count;
    return count;
}

void TextureCache::Release(u32 id)
{
    const auto found = m_Images.find(id);
    if (found != m_Images.end() && found->second.Count > 0)
        --found->second.Count;
}

void TextureCache::ReadAnew(const std::string& path)
{
    const auto isOfFile = [&path](const auto& entry) { return entry.first.first == path; };
    std::erase_if(m_IDs, isOfFile);
    std::erase_if(m_FailedUntil, isOfFile);
}

const Image* TextureCache::Find(u32 id) const
{
    if (id == WhiteID)
        return &WhiteImage;

    const auto found = m_Images.find(id);
    return found == m_Images.end() ? nullptr : &found->second.Value;
}

const Image* TextureCache::FindTurned(u32 id, u8 quarterTurns)
{
    const auto found = m_Images.find(id);
    if (found == m_Images.end() || quarterTurns == 0 || quarterTurns > std::size(found->second.Turned))
        return Find(id);

    Image& turned = found->second.Turned[quarterTurns - 1];
    if (!turned.Texture && !Load(found->second.Name, quarterTurns, turned))
        return nullptr;
    return &turned;
}

void TextureCache::Collect()
{
    ++m_Frame;
    for (auto at = m_Images.begin(); at != m_Images.end();) {
        Entry& entry = at->second;
        entry.UnusedFrames = entry.Count == 0 ? entry.UnusedFrames + 1 : 0;
        if (entry.UnusedFrames <= FramesKeptUnused) {
            ++at;
            continue;
        }
        Destroy(entry);
        const auto named = m_IDs.find(entry.Name);
        if (named != m_IDs.end() && named->second == at->first)
            m_IDs.erase(named);
        at = m_Images.erase(at);
    }
}

SDL_Texture* TextureCache::Load(const Key& key, u8 quarterTurns, Image& image)
{
    SDL_Surface* surface = LoadSurface(key.first);
    for (u8 turn = 0; surface && turn < quarterTurns; ++turn) {
        SDL_Surface* turned = NewTurned(surface);
        SDL_FreeSurface(surface);
        surface = turned;
    }
    if (!surface)
        return nullptr;

    if (key.second != 0)
        ClearColor(surface, key.second);
    image = {SDL_CreateTextureFromSurface(m_Renderer, surface), surface->w, surface->h};
    SDL_FreeSurface(surface);
    if (image.Texture) {
        SDL_SetTextureBlendMode(image.Texture, SDL_BLENDMODE_BLEND);
        SDL_SetTextureScaleMode(image.Texture, SDL_ScaleModeLinear);
    }
    return image.Texture;
}

void TextureCache::Destroy(Entry& entry)
{
    SDL_DestroyTexture(entry.Value.Texture);
    for (const Image& turned : entry.Turned)
        if (turned.Texture)
            SDL_DestroyTexture(turned.Texture);
}

} // namespace host
