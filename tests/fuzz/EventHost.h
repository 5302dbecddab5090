#pragma once

#include "teskara/script/MvTypeDefinition.h"
#include "tests/fuzz/ChaosHost.h"

#include <array>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>

// A chaotic host that is told beforehand what its scripts will do, event by event, and how often it refuses.
class EventHost : public ChaosHost
{
public:
    std::string Part; // what LocateFile finds by that name; all other names lead to File
    QuietPlatform Quiet;

    // How many places there are where the host may act.
    static constexpr u8 Places = 64;

    // The places of the events in the order of EventNames, after those of the other calls. The body of each event's
    // script is its place.
    static constexpr u8 FirstEvent = static_cast<u8>(CallOut::Count);

    // Forgets all of it for a new input.
    virtual void StartAnew();

    // The next scripts of that place do an act, so many times.
    void Arm(u8 place, u8 act, u8 argument, u8 times);

    // Refuses each operation of that number, counted over all that may be refused; 0: none.
    void RefuseEach(u8 number) { m_RefuseEach = number; }

    void SetDisplaySize(int width, int height);

    MvTypeDefinition* FindType(const char* name) override;
    HostScriptInterface* GetScriptInterface() override;
    u32 CompileAtom(const char* source, u32 length) override;
    int ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self) override;
    bool LocateFile(const char* name, char* path) override;
    bool GetDisplaySize(int& width, int& height) override;

protected:
    bool Refuses() override;
    void CalledOut(CallOut place, TeskElement* self) override;

private:
    struct Mine {
        u8 Act = 0;
        u8 Argument = 0;
        u8 Left = 0;
    };

    void Reach(u8 place, TeskElement* self);

    std::array<Mine, Places> m_Mines;
    std::unordered_map<u32, u8> m_PlaceOfAtom;
    std::map<std::string, std::unique_ptr<MvTypeDefinition>> m_Types;
    u32 m_ActsLeft = 0;
    u32 m_RefusableCalls = 0;
    u8 m_RefuseEach = 0;
    int m_Width = 800;
    int m_Height = 600;
};
