#pragma once

#include "host/InterfaceSession.h"
#include "host/display/Picture.h"
#include "host/drawlist/DrawListing.h"
#include "host/serve/JsonLine.h"
#include "host/serve/ServeRequest.h"
#include "host/serve/SteadyInput.h"

#include <optional>
#include <string>
#include <vector>

class TeskElement;

namespace host {

// An interface that is driven by requests, without a display. Its clock stands still but for what requests let pass.
// Each operation answers one request, with its result, or throws ServeFault.
class ServedInterface
{
public:
    struct Settings {
        int Width = 0; // of the display, in pixels of the interface
        int Height = 0;
        float Scale = 1; // pixels of pictures for each of them
        std::string Skin; // empty for the first one
        ScriptTrust Trust = ScriptTrust::None;
    };

    explicit ServedInterface(const Settings& settings);

    // False, and the reason in the lines: the picture could not be made, or the skin not be opened.
    bool Start();

    // Opens interface files, as Load does. False: one was not opened.
    bool Open(const std::vector<std::string>& files);

    // The lines for a person since the last question.
    std::vector<std::string> TakeLines();

    Json Load(const ServeRequest& request);
    Json Tree(const ServeRequest& request);
    Json Find(const ServeRequest& request);
    Json Click(const ServeRequest& request);
    Json Move(const ServeRequest& request);
    Json Press(const ServeRequest& request);
    Json Release(const ServeRequest& request);
    Json Wheel(const ServeRequest& request);
    Json Type(const ServeRequest& request);
    Json Keys(const ServeRequest& request);
    Json Wait(const ServeRequest& request);
    Json Get(const ServeRequest& request);
    Json Do(const ServeRequest& request);
    Json List(const ServeRequest& request);
    Json TakePicture(const ServeRequest& request);
    Json Lint(const ServeRequest& request);

private:
    bool OpenFile(const std::string& file);
    _Point2i PointTo(const ServeRequest& request);
    void MoveTo(_Point2i place);
    Json Moment() const;
    Json MouseReport(_Point2i place) const;
    Json RunText(std::string_view prefix, const std::string& text);

    Settings m_Settings;
    std::vector<std::string> m_Lines;
    std::size_t m_LinesLeftOut = 0;
    Picture m_Picture;
    DrawListing m_Listing;
    std::optional<InterfaceSession> m_Session;
    std::optional<SteadyInput> m_Input;
};

} // namespace host
