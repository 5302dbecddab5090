#pragma once

#include "tests/unit/TestHost.h"

#include <gtest/gtest.h>

#include <string>

class TeskElement;
class TeskSkin;

// A started toolkit with an empty tree. Ids of fonts and images count from 1 in each test.
class ToolkitTest : public testing::Test
{
protected:
    ToolkitTest();
    ~ToolkitTest() override;

    // Loads the elements of a file of markup: what stands inside of its root.
    void Load(const std::string& markup);

    // What files are loaded with.
    TeskSkin* Skin = nullptr;

    // Draws one frame and tells what the host heard.
    std::string Frame();

    // The element of that full name; the test fails if there is none.
    TeskElement& Element(const char* name);

    template <class Kind> Kind& As(const char* name) { return dynamic_cast<Kind&>(Element(name)); }

    TestHost Host;
    TestPlatform System;
};
