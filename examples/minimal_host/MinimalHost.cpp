// The smallest program that shows an interface: it draws a box of its own, and the toolkit's windows on top.
//   minimal_host hello.xml FONT.ttf
// It lends the toolkit SDL's drawing and, in place of a script engine, a table of words. Whatever it cannot do, it
// answers with nothing: the toolkit then leaves that out.

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostInterface.h"

#include <SDL.h>
#include <SDL_ttf.h>

#include <cstdarg>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace {

SDL_Color ToColor(u32 argb)
{
    return {
        static_cast<u8>(argb >> 16), static_cast<u8>(argb >> 8), static_cast<u8>(argb), static_cast<u8>(argb >> 24)};
}

class MinimalHost : public HostObject
{
public:
    MinimalHost(SDL_Renderer* renderer, std::string fontFile)
        : m_Renderer(renderer), m_FontFile(std::move(fontFile)) { }

    // What the words in events do.
    std::map<std::string, std::function<void()>> Words;

    // --- Drawing

    void DrawRect(const tagRECT& rect, u32 color) override
    {
        const SDL_Rect box = {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
        const SDL_Color fill = ToColor(color);
        SDL_SetRenderDrawColor(m_Renderer, fill.r, fill.g, fill.b, fill.a);
        SDL_RenderFillRect(m_Renderer, &box);
    }
    u32 CreateFontResource(const char*, u8 height, bool, bool) override
    {
        m_Fonts.push_back(TTF_OpenFont(m_FontFile.c_str(), height * 4 / 5));
        return m_Fonts.back() ? static_cast<u32>(m_Fonts.size()) : 0;
    }
    void MeasureText(u32 font, const char* text, int& w) override
    {
        TTF_SizeUTF8(m_Fonts[font - 1], text, &w, nullptr);
    }
    u32 DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format) override
    {
        SDL_Surface* surface = *text ? TTF_RenderUTF8_Blended(m_Fonts[font - 1], text, ToColor(color)) : nullptr;
        if (!surface)
            return 0;
        SDL_Texture* texture = SDL_CreateTextureFromSurface(m_Renderer, surface);
        SDL_Rect place = {box.left, box.top, surface->w, surface->h};
        const u32 alignment = format & ~u32{DrawTextUnclipped};
        if (alignment != DrawTextLeft)
            place.x += (box.right - box.left - surface->w) / (alignment == DrawTextCenter ? 2 : 1);
        SDL_RenderCopy(m_Renderer, texture, nullptr, &place);
        SDL_DestroyTexture(texture);
        SDL_FreeSurface(surface);
        return static_cast<u32>(place.w);
    }
    bool GetDisplaySize(int& w, int& h) override { return SDL_GetRendererOutputSize(m_Renderer, &w, &h) == 0; }

    // --- Scripts: the text between the braces is a word

    u32 CompileAtom(const char* source, u32 length) override
    {
        const std::string text(source, length);
        const std::size_t begin = text.find_first_not_of(" \n", text.find('{') + 1);
        m_Texts.push_back(text.substr(begin, text.find_first_of(" \n", begin) - begin));
        return static_cast<u32>(m_Texts.size());
    }
    int ExecuteAtom(u32 atom, u32, int, char**, _MvTypeVar*) override
    {
        const auto word = Words.find(m_Texts[atom - 1]);
        return word == Words.end() ? -1 : (word->second(), 0);
    }

    // --- Texts that may hold data sequences: here all stay as they are

    u32 PreParseSequence(const char* text, u32) override
    {
        return m_Texts.emplace_back(text), static_cast<u32>(m_Texts.size());
    }
    bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) override
    {
        return std::snprintf(buffer, size, "%s", m_Texts[sequence - 1].c_str()) >= 0;
    }

    // --- Files and lines

    bool LocateFile(const char* name, char* path) override { return std::snprintf(path, 512, "%s", name) < 512; }
    void PrintLine(const char* format, ...) override
    {
        std::va_list arguments;
        va_start(arguments, format);
        std::vfprintf(stderr, format, arguments);
        va_end(arguments);
        std::fputc('\n', stderr);
    }

    // --- What this program does without: images, lines, commands, script objects, stored positions

    bool DrawTexturedRect(const TeskDrawRecord&) override { return false; }
    bool DrawTexturedRects(u32, const TeskDrawRecord*) override { return false; }
    bool DrawLine(const TeskDrawRecord&, u32) override { return false; }
    bool GetGlyphMetrics(u32, u32, u32, float*, float*, float*) override { return false; }
    void ReleaseFontResource(u32) override { }
    u32 LoadTextureResource(const char*, u32) override { return 0; }
    bool GetTextureResourceSize(u32, _Point2i&) override { return false; }
    void ReleaseTextureResource(u32) override { }
    HostScript* GetCurrentScript() override { return nullptr; }
    void AddCommand(const char*, CommandHandler, int, int) override { }
    void RemoveCommand(const char*) override { }
    int ExecuteCommand(const char*) override { return -1; }
    int DataParse(const char* text, char* output, u32 size) override { return std::snprintf(output, size, "%s", text); }
    void AddTopLevelObject(const char*, TopLevelObjectHandler) override { }
    void RemoveTopLevelObject(const char*) override { }
    void AddType(MvTypeDefinition*) override { }
    void RemoveType(MvTypeDefinition*) override { }
    MvTypeDefinition* FindType(const char*) override { return nullptr; }
    void InvalidateTransientObject(u32, void*) override { }
    u32 RegisterTransientClass(const char*) override { return 0; }
    const char* CompleteCommandLine(const char*, bool) override { return nullptr; }
    bool Calculate(const char*, double&) override { return false; }
    HostScriptInterface* GetScriptInterface() override { return nullptr; }
    void ReleaseAtom(u32) override { }
    int ExecuteAtomForText(u32, int, char**, _MvTypeVar*, u32, char*, u32) override { return 0; }
    u32 FindAtom(const char*) override { return 0; }
    bool RetrieveOriginalText(u32, char*, u32) override { return false; }
    bool RetrieveProcessedResult(u32, _MvTypeVar&) override { return false; }
    void FreeSequence(u32) override { }
    u32 RegisterObjectClass(const char*) override { return 0; }
    void InvalidateObject(u32, void*) override { }
    void SetTypeObjectClass(MvTypeDefinition*, u32) override { }
    bool FindResourceFile(const char*, char*) override { return false; }
    bool OpenClipboard() override { return false; }
    void SaveElementPosition(TeskElement*) override { }
    void LoadElementPosition(TeskElement*) override { }
    bool GetKeyName(u32, char*, u32) override { return false; }
    void GetOutputConsole(char* buffer, u32) override { *buffer = 0; }
    void SetOutputConsole(const char*) override { }

private:
    SDL_Renderer* m_Renderer;
    std::string m_FontFile;
    std::vector<TTF_Font*> m_Fonts;
    std::vector<std::string> m_Texts; // of atoms and sequences, each by its id - 1
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3 || SDL_Init(SDL_INIT_VIDEO) != 0 || TTF_Init() != 0)
        return 1;

    SDL_Window* window = SDL_CreateWindow("Minimal host", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, 640, 400, 0);
    SDL_Renderer* renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_PRESENTVSYNC);
    SDL_SetRenderDrawBlendMode(renderer, SDL_BLENDMODE_BLEND);
    const int frames = argc > 3 ? SDL_atoi(argv[3]) : 0; // 0: until the window is closed
    int side = 60;
    bool running = true;
    MinimalHost host(renderer, argv[2]);
    host.Words["bigger"] = [&side] { side += 20; };
    host.Words["quit"] = [&running] { running = false; };
    CUIManager* manager = F1(&host);
    manager->Initialize();
    if (!manager->LoadInterfaceXML(argv[1], true, nullptr))
        return 1;

    for (int frame = 1; running && frame != frames; ++frame) {
        for (SDL_Event event; SDL_PollEvent(&event);) {
            _Point2i mouse = {event.motion.x, event.motion.y};
            if (event.type == SDL_MOUSEMOTION)
                manager->OnMouseMove(mouse);
            else if (event.type == SDL_MOUSEBUTTONDOWN && event.button.button == SDL_BUTTON_LEFT)
                manager->OnLMouseDown();
            else if (event.type == SDL_MOUSEBUTTONUP && event.button.button == SDL_BUTTON_LEFT)
                manager->OnLMouseUp();
            running = running && event.type != SDL_QUIT;
        }
        const SDL_Rect place = {frame % 640, 300 - side / 2, side, side};
        SDL_SetRenderDrawColor(renderer, 16, 20, 27, 255);
        SDL_RenderClear(renderer);
        SDL_SetRenderDrawColor(renderer, 255, 184, 107, 255);
        SDL_RenderFillRect(renderer, &place);
        manager->Render();
        SDL_RenderPresent(renderer);
    }
    manager->Shutdown();
    SDL_Quit();
}
