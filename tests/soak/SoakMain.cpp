// A long run of the desktop in the reference host, with a clock that is driven: session after session of somebody who
// does whatever comes to mind. The tree is checked every thousand frames; between two sessions everything goes, and the
// host must have all that it lent back. Fails at the first fault, and at the end if memory has grown.

#include "host/SignedNumber.h"
#include "host/display/Picture.h"
#include "host/probe/TreeChecker.h"
#include "teskara/core/CUIManager.h"
#include "tests/soak/ResidentMemory.h"
#include "tests/soak/SoakUser.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <string>
#include <string_view>

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr u32 FrameMilliseconds = 16;
constexpr u32 FramesBetweenChecks = 1000;
constexpr u64 FramesOfSession = 2000;
constexpr double MostDrift = 0.01;

// So much time passes between two sessions, but never over the counter's end: that is waited for.
constexpr u32 IdleMilliseconds = 0x06000000;
constexpr u32 BeforeTheEnd = 8000;
static_assert(FramesOfSession * FrameMilliseconds > BeforeTheEnd);

struct Options {
    double Minutes = 1;
    u64 Frames = 0; // 0: as many as the time allows
    u64 Seed = static_cast<u64>(std::time(nullptr));
};

class Soak
{
public:
    explicit Soak(const Options& options)
        : m_Options(options), m_Picture(SoakUser::Width, SoakUser::Height), m_Session(m_Picture.Target(), Settings()),
          m_Numbers(options.Seed), m_User(m_Session, m_Numbers, [this] { PassFrame(); })
    {
        m_Session.Host().Output().SendTo([this](const std::string&) { ++m_Lines; });
        m_AtStart = m_Session.Host().Lent();
    }

    // False: a line has said what is wrong.
    bool Run()
    {
        while (m_Fault.empty() && !IsOver())
            RunSession();
        if (m_Fault.empty() && m_Trend.Drift() > MostDrift)
            m_Fault = "memory has grown";
        Report();
        return m_Fault.empty();
    }

private:
    static host::InterfaceSession::Settings Settings()
    {
        host::InterfaceSession::Settings settings;
        settings.ClockStandsStill = true;
        settings.Width = SoakUser::Width;
        settings.Height = SoakUser::Height;
        return settings;
    }

    bool IsOver() const
    {
        if (m_Options.Frames > 0)
            return m_Frames >= m_Options.Frames;
        return std::chrono::duration<double>(SteadyClock::now() - m_Begin).count() >= m_Options.Minutes * 60;
    }

    void RunSession()
    {
        if (!m_Session.OpenSkin(m_Numbers.Below(2) ? "slate" : "paper")
            || !m_Session.OpenFile("interfaces/desktop.xml"))
            return Blame("the desktop does not open");

        for (const u64 end = m_Frames + FramesOfSession; m_Frames < end && m_Fault.empty();)
            m_User.Act();
        ClearAway();
        PassIdleTime();
    }

    void PassFrame()
    {
        const u32 before = m_Session.Clock().Ticks();
        m_Session.Clock().Advance(FrameMilliseconds);
        m_Wraps += m_Session.Clock().Ticks() < before;
        m_User.Advance();
        m_Session.SkipFrame();
        if (++m_Frames % FramesBetweenChecks != 0)
            return;

        if (const auto fault = FindTreeFault())
            Blame(*fault);
    }

    // Scripts that wait for an answer end in the frame after.
    void ClearAway()
    {
        m_Session.Host().Scripts().Tasks.EndAll();
        PassFrame();
        g_UIManager.Reset();
        g_UIManager.ClearTemplates();
        g_UIManager.KeyStates.clear();
        if (g_UIManager.ElementsByID.size() != 1)
            Blame("there is more than the screen after a reset");
        if (m_Session.Host().Lent() != m_AtStart)
            Blame("the host has not got back what it lent");
        m_Trend.Note(ResidentBytes());
    }

    void PassIdleTime()
    {
        const u32 left = 0u - m_Session.Clock().Ticks();
        m_Session.Clock().Advance(left > IdleMilliseconds + BeforeTheEnd ? IdleMilliseconds
                : left > BeforeTheEnd                                    ? left - BeforeTheEnd
                                                                         : 0);
    }

    void Blame(const std::string& fault)
    {
        if (m_Fault.empty())
            m_Fault = fault + ", in frame " + std::to_string(m_Frames);
    }

    void Report() const
    {
        const double seconds = std::chrono::duration<double>(SteadyClock::now() - m_Begin).count();
        std::printf("soak: seed %llu, %llu frames in %.0f s, %u wraps of the counter, %llu lines, %.1f MiB resident, "
                    "drift %+.2f percent: %s\n",
            static_cast<unsigned long long>(m_Options.Seed), static_cast<unsigned long long>(m_Frames), seconds,
            m_Wraps, static_cast<unsigned long long>(m_Lines), static_cast<double>(ResidentBytes()) / (1024 * 1024),
            m_Trend.Drift() * 100, m_Fault.empty() ? "passed" : m_Fault.c_str());
        std::fflush(stdout);
    }

    const Options m_Options;
    const SteadyClock::time_point m_Begin = SteadyClock::now();
    host::Picture m_Picture;
    host::InterfaceSession m_Session;
    SeededNumbers m_Numbers;
    SoakUser m_User;
    host::LentThings m_AtStart;
    MemoryTrend m_Trend;
    u64 m_Frames = 0;
    u64 m_Lines = 0;
    u32 m_Wraps = 0;
    std::string m_Fault;
};

bool Read(std::string_view text, double& number)
{
    return !text.empty() && host::ReadSignedNumber(text, number) == text.size();
}

bool Read(std::string_view text, u64& number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool ReadOptions(int argc, char** argv, Options& options)
{
    for (int index = 1; index < argc; index += 2) {
        const std::string_view name = argv[index];
        const std::string_view value = index + 1 < argc ? argv[index + 1] : "";
        const bool known = (name == "--minutes" && Read(value, options.Minutes))
            || (name == "--frames" && Read(value, options.Frames)) || (name == "--seed" && Read(value, options.Seed));
        if (!known)
            return false;
    }
    return true;
}

} // namespace

// From the root of the tree: teskara_soak [--minutes M] [--frames N] [--seed S]
int main(int argc, char** argv)
{
    Options options;
    if (!ReadOptions(argc, argv, options)) {
        std::fputs("usage: teskara_soak [--minutes M] [--frames N] [--seed S]\n", stderr);
        return 2;
    }
    std::printf("soak: seed %llu\n", static_cast<unsigned long long>(options.Seed));
    std::fflush(stdout);
    return Soak(options).Run() ? 0 : 1;
}
