#pragma once

#include "host/Operation.h"
#include "host/record/BoundaryHost.h"
#include "host/record/BoundaryNames.h"
#include "host/record/BoundaryPlatform.h"
#include "host/record/Field.h"

#include <initializer_list>
#include <span>

namespace host {

// What a call does when it goes through: a function that is borrowed for the length of the call.
class Passage
{
public:
    template <class Function>
    Passage(const Function& function)
        : m_Function(&function), m_Call([](const void* borrowed) { (*static_cast<const Function*>(borrowed))(); })
    {
    }

    void operator()() const { m_Call(m_Function); }

private:
    const void* m_Function;
    void (*m_Call)(const void*);
};

// Somebody who stands between toolkit and host and sees every call of either: the recorder, or the replay, which is the
// host itself. There is at most one.
class Boundary
{
public:
    Boundary();
    virtual ~Boundary();
    Boundary(const Boundary&) = delete;
    Boundary& operator=(const Boundary&) = delete;

    // Null if nobody does.
    static Boundary* Current();

    // What the calls go through to, if there is a host. Both are borrowed.
    void Attach(HostObject& host, Platform& system);

    // What the toolkit gets in place of the host and its platform.
    HostObject& Host() { return m_Host; }
    Platform& System() { return m_System; }
    BoundaryScripts& Scripts() { return m_Host.Scripts(); }
    BoundaryNames& Names() { return m_Names; }

    // A call. fields: its arguments, then its results, which stand at what they are if it fails.
    virtual void Cross(Operation operation, std::span<const Field> fields, Passage passage) = 0;

    void Cross(Operation operation, std::initializer_list<Field> fields, Passage passage)
    {
        Cross(operation, std::span(fields.begin(), fields.size()), passage);
    }

private:
    BoundaryNames m_Names;
    BoundaryHost m_Host;
    BoundaryPlatform m_System;
};

} // namespace host
