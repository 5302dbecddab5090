#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "tests/unit/FreshProcess.h"
#include "tests/unit/TemporaryFile.h"
#include "tests/unit/TestHost.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

// Uses every operation of the host that files and input can reach.
constexpr char Interface[] = R"(<Tesk>
<Template name="panel"><Width>200</Width><Height>100</Height></Template>
<Skin name="dark"><SkinTemplate Base="panel" Skin="none"/></Skin>
<frame name="Panel" Template="panel"><StorePosition>1</StorePosition>
  <BackgroundTexture><Filename>back.png</Filename></BackgroundTexture>
  <OnLoad>load</OnLoad><OnUnload>unload</OnUnload><OnLeftClick>click</OnLeftClick><OnRightDown>right</OnRightDown>
  <OnMouseEnter>enter</OnMouseEnter><OnMouseExit>exit</OnMouseExit><OnMouseMove>move</OnMouseMove>
  <OnMouseWheel>wheel</OnMouseWheel><OnKeyDown>down</OnKeyDown><OnKeyUp>up</OnKeyUp>
  <OnKeyboardEnter>focus</OnKeyboardEnter><OnKeyboardExit>blur</OnKeyboardExit><OnRender>render</OnRender>
  <Children>
    <text Name="Label"><Width>100</Width><Height>20</Height><Text>${Time} of day</Text>
      <Font><Name>Sans</Name><Size>12</Size></Font><OnLoad>load</OnLoad><OnUnload>unload</OnUnload></text>
    <frame Name="Label"/><nonsense Name="Other"/>
    <commandbutton Name="Run"><X>100</X><Width>50</Width><Height>20</Height><Text>Run ${Name}</Text>
      <Command>run</Command><Console>Log</Console></commandbutton>
    <commandcheckbox Name="Switch"><X>150</X><Width>50</Width><Height>20</Height><Text>Switch</Text><Data>${On}</Data>
      <Command>switch</Command></commandcheckbox>
  </Children>
</frame>
</Tesk>)";

void DriveTheToolkit()
{
    g_UIManager.LoadInterfaceXML("a.xml", false, nullptr);
    g_UIManager.LoadInterfaceXML("a.xml", true, g_UIManager.FindSkin("dark"));
    g_UIManager.LoadInterfaceXML("missing.xml", true, nullptr);
    g_UIManager.Render();
    for (_Point2i point : {_Point2i{10, 10}, _Point2i{50, 50}, _Point2i{700, 500}, _Point2i{50, 50}})
        g_UIManager.OnMouseMove(point);
    g_UIManager.SetFocusElement(g_UIManager.FindElement("Panel"));
    for (const unsigned int key : {65u, 16u}) {
        g_UIManager.OnKeyDown(key);
        g_UIManager.OnKeyUp(key);
    }
    g_UIManager.OnLMouseDown();
    g_UIManager.OnLMouseUp();
    g_UIManager.OnRMouseDown();
    g_UIManager.OnRMouseUp();
    g_UIManager.OnMouseWheel(1);
    for (_Point2i point : {_Point2i{120, 10}, _Point2i{170, 10}}) {
        g_UIManager.OnMouseMove(point);
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
    }
    g_UIManager.Render();
    g_UIManager.ToggleElement("Panel");
    g_UIManager.ToggleElement("Panel");
    if (TeskElement* panel = g_UIManager.FindElement("Panel"))
        g_UIManager.Screen->DeleteChild(panel);
    g_UIManager.LoadInterfaceXML("a.xml", true, nullptr);
    g_UIManager.UnloadInterfaceXML("a.xml");
    g_UIManager.LoadInterfaceXML("a.xml", "Panel", "Other", true, nullptr);
    g_UIManager.Reset();
    g_UIManager.LoadInterfaceXML("a.xml", false, nullptr);
    g_UIManager.Render();
}

void FindTheFile(TestHost& host, const TemporaryFile& file)
{
    host.Located["a.xml"] = file.Path();
    host.FoundResources["back.png"] = "/back.png";
}

// Fills what it is given to the last byte, and answers with numbers from the ends of their ranges.
class WildHost : public TestHost
{
public:
    int DataParse(const char*, char* output, u32 size) override
    {
        std::memset(output, '$', size);
        return INT_MIN;
    }
    int ExecuteAtom(u32, u32, int, char**, _MvTypeVar*) override { return INT_MIN; }
    u32 CompileAtom(const char*, u32) override { return UINT_MAX; }
    u32 FindAtom(const char*) override { return UINT_MAX; }
    u32 PreParseSequence(const char*, u32) override { return UINT_MAX; }
    bool RetrieveOriginalText(u32, char* buffer, u32 size) override { return Fill(buffer, size); }
    bool RetrieveProcessedText(u32, char* buffer, u32 size) override { return Fill(buffer, size); }
    bool GetKeyName(u32, char* buffer, u32 size) override { return Fill(buffer, size); }
    void GetOutputConsole(char* buffer, u32 size) override { Fill(buffer, size); }
    bool FindResourceFile(const char*, char* path) override { return Fill(path, 512); }
    bool Calculate(const char*, double& result) override
    {
        result = std::numeric_limits<double>::quiet_NaN();
        return true;
    }
    u32 CreateFontResource(const char*, u8, bool, bool) override { return UINT_MAX; }
    u32 DrawText(u32, const char*, const tagRECT&, u32, u32) override { return UINT_MAX; }
    void MeasureText(u32, const char*, int& width) override { width = Extreme; }
    bool GetGlyphMetrics(u32, u32, u32, float* before, float* glyph, float* after) override
    {
        *before = *glyph = *after = Metric;
        return true;
    }
    bool GetDisplaySize(int& width, int& height) override
    {
        width = Extreme;
        height = Extreme;
        return true;
    }
    u32 LoadTextureResource(const char*, u32) override { return UINT_MAX; }
    bool GetTextureResourceSize(u32, _Point2i& size) override
    {
        size = {Extreme, Extreme};
        return true;
    }
    void LoadElementPosition(TeskElement* element) override
    {
        element->X = Extreme;
        element->Y = Extreme;
        element->Width = static_cast<u32>(Extreme);
        element->Height = static_cast<u32>(Extreme);
    }

    int Extreme = INT_MIN;
    float Metric = 0;

private:
    static bool Fill(char* buffer, u32 size)
    {
        std::memset(buffer, 'x', size);
        return true;
    }
};

} // namespace

TEST(ManagerFaultsDeathTest, AnswersWithoutMeasureAreSurvived)
{
    const TemporaryFile file(Interface);
    using Limits = std::numeric_limits<float>;
    for (const int extreme : {INT_MIN, -1, 0, INT_MAX}) {
        for (const float metric : {Limits::quiet_NaN(), Limits::infinity(), -Limits::max(), Limits::max(), 0.0f}) {
            InFreshProcess([&] {
                WildHost host;
                FindTheFile(host, file);
                host.Extreme = extreme;
                host.Metric = metric;
                F1(&host)->Initialize();
                DriveTheToolkit();
                g_UIManager.Shutdown();
            });
        }
    }
}

namespace {

// Which handler of a foreign element throws.
std::string g_Throwing;

void ThrowIn(const char* handler)
{
    if (g_Throwing == handler)
        throw std::runtime_error(handler);
}

// An element that throws where it is told to.
class ThrowingElement : public TeskElement
{
public:
    ThrowingElement(const char* type, TeskElement* parent, const char* name) : TeskElement(type, parent, name)
    {
        ThrowIn("constructor");
        Width = 100;
        Height = 100;
    }
    bool FromXML(XMLNode* node, XMLNode* templateNode) override
    {
        ThrowIn("FromXML");
        return TeskElement::FromXML(node, templateNode);
    }
    void OnCreate() override { ThrowIn("OnCreate"); }
    void Render() override { ThrowIn("Render"); }
    bool OnMouseMove(_Point2i&) override { return Take("OnMouseMove"); }
    bool OnMouseWheel(int) override { return Take("OnMouseWheel"); }
    bool OnLMouseDown(_Point2i&) override { return Take("OnLMouseDown"); }
    bool OnLMouseUp(_Point2i&) override { return Take("OnLMouseUp"); }
    bool OnRMouseDown(_Point2i&) override { return Take("OnRMouseDown"); }
    bool OnRMouseUp(_Point2i&) override { return Take("OnRMouseUp"); }
    bool OnLMouseDoubleClick(_Point2i&) override { return Take("OnLMouseDoubleClick"); }
    bool OnKeyDown(unsigned int) override { return Take("OnKeyDown"); }
    bool OnKeyUp(unsigned int) override { return Take("OnKeyUp"); }
    void OnMouseEnter(_Point2i&) override { ThrowIn("OnMouseEnter"); }
    void OnMouseExit(TeskElement*) override { ThrowIn("OnMouseExit"); }
    void OnKeyboardEnter() override { ThrowIn("OnKeyboardEnter"); }
    void OnKeyboardExit(TeskElement*) override { ThrowIn("OnKeyboardExit"); }

private:
    static bool Take(const char* handler)
    {
        ThrowIn(handler);
        return true;
    }
};

void DriveTheElement()
{
    TeskElement* panel = g_UIManager.FindElement("Panel");
    for (_Point2i point : {_Point2i{10, 10}, _Point2i{700, 500}, _Point2i{50, 50}})
        g_UIManager.OnMouseMove(point);
    g_UIManager.SetFocusElement(panel);
    for (int press = 0; press < 2; ++press) {
        g_UIManager.OnLMouseDown();
        g_UIManager.OnLMouseUp();
        g_UIManager.OnRMouseDown();
        g_UIManager.OnRMouseUp();
    }
    g_UIManager.OnMouseWheel(1);
    g_UIManager.OnKeyDown(65);
    g_UIManager.OnKeyUp(65);
    g_UIManager.Render();
    g_UIManager.ShowElement("Panel", false);
    g_UIManager.ShowElement("Panel", true);
    g_UIManager.SetFocusElement(panel);
    g_UIManager.SetFocusElement(nullptr);
}

} // namespace

TEST(ManagerFaultsDeathTest, WhatAForeignElementThrowsDoesNotReachTheHost)
{
    for (const char* handler : {"constructor", "FromXML", "OnCreate", "Render", "OnMouseMove", "OnMouseWheel",
             "OnLMouseDown", "OnLMouseUp", "OnRMouseDown", "OnRMouseUp", "OnLMouseDoubleClick", "OnKeyDown", "OnKeyUp",
             "OnMouseEnter", "OnMouseExit", "OnKeyboardEnter", "OnKeyboardExit"}) {
        SCOPED_TRACE(handler);
        InFreshProcess([&] {
            TestHost host;
            TestPlatform system;
            SetPlatform(&system);
            const TeskFactory<ThrowingElement> factory("thrower");
            F1(&host)->Initialize();
            g_Throwing = handler;
            g_UIManager.LoadElement(g_UIManager.Screen, "thrower", "Panel");
            g_UIManager.AddTemplate("node", "<Template/>");
            XMLNode* node = g_UIManager.FindTemplate("node");
            g_UIManager.LoadElement(g_UIManager.Screen, "thrower", "Other", node, nullptr);
            DriveTheElement();

            // And when it throws no more, everything works.
            g_Throwing.clear();
            g_UIManager.Reset();
            g_UIManager.ResetMouseState();
            TeskElement* panel = g_UIManager.LoadElement(g_UIManager.Screen, "thrower", "Panel");
            ASSERT_NE(nullptr, panel);
            g_UIManager.Render();
            _Point2i point{20, 20};
            EXPECT_TRUE(g_UIManager.OnMouseMove(point));
            EXPECT_TRUE(g_UIManager.OnLMouseDown());
            EXPECT_TRUE(g_UIManager.OnLMouseUp());
            g_UIManager.SetFocusElement(panel);
            EXPECT_EQ(panel, g_UIManager.GetFocusElement());
            g_UIManager.Shutdown();
            SetPlatform(nullptr);
        });
    }
}
