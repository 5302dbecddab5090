#pragma once

#include "teskara/core/HostInterface.h"

#include <memory>
#include <string>
#include <vector>

namespace host {

class Boundary;

// A running script on the boundary.
class BoundaryScript : public HostScript
{
public:
    // Both are borrowed. inner: null if there is none behind it.
    BoundaryScript(Boundary& boundary, u32 number, HostScript* inner)
        : m_Boundary(boundary), m_Number(number), m_Inner(inner)
    {
    }

    const char* GetName() const override;
    bool IsInsideAtom() const override;
    const char* GetUserInput() const override;
    void SetUserInput(const char* text) override;

    HostScript* Inner() const { return m_Inner; }

private:
    Boundary& m_Boundary;
    u32 m_Number;
    HostScript* m_Inner;
    mutable std::string m_Name;
};

// The scripts that the toolkit has seen, by the number that each got when it was first seen.
class BoundaryScripts
{
public:
    // The boundary is borrowed.
    explicit BoundaryScripts(Boundary& boundary) : m_Boundary(boundary) { }

    // Of a script of the host's; 0 for null.
    u32 NumberOf(HostScript* inner);

    // The script for the toolkit; null for 0, and for one that has ended. Made if the number is the next one.
    BoundaryScript* At(u32 number);

    // Its number, 0 if the toolkit never saw it.
    u32 Find(const HostScript& inner) const;

    // A script ends, and with it what the toolkit holds of it.
    void End(u32 number);

    // The host's scripts learn which dialogs the toolkit has opened and closed.
    void ShareDialogs() const;

private:
    Boundary& m_Boundary;
    std::vector<std::unique_ptr<BoundaryScript>> m_Scripts;
};

} // namespace host
