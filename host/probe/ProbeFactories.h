#pragma once

#include "teskara/core/Types.h"

#include <memory>
#include <string>
#include <vector>

class ProbeOutput;
class TeskElementFactory;

// The element kinds that the probe adds to the toolkit's: "listener", a plain element that prints each notification that
// reaches it and hands none on, and the plain kinds that a transcript registers.
class ProbeFactories
{
public:
    explicit ProbeFactories(ProbeOutput& output);
    ~ProbeFactories();

    // Registers one more factory of plain elements.
    void Register(const std::string& kind, u32 version);

private:
    std::unique_ptr<TeskElementFactory> m_Listeners;
    std::vector<std::unique_ptr<TeskElementFactory>> m_Plain;
};
