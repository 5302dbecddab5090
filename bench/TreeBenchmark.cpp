// A tree of many nodes, all expanded: drawing it wherever it is scrolled, filling it, and what single nodes cost.

#include "bench/JsonLinesReporter.h"
#include "bench/LoadedScene.h"
#include "teskara/collections/TeskTree.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/CUIManager.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int Nodes = 100000;
constexpr int ChildrenOfNode = 10;

// 40 rows show.
constexpr char Markup[] =
    "<Tesk><tree name='t'><Width>400</Width><Height>603</Height><Font><Size>13</Size></Font><ItemHeight>15</ItemHeight>"
    "<ImageSize>12</ImageSize><IndentPerDepth>14</IndentPerDepth><TextMargin>3</TextMargin>"
    "<ImageTexture Filename='a'/><ScrollBar><X>r16</X><Width>16</Width><Height>100%</Height><Slider><Width>16</Width>"
    "<Height>100%</Height><Vertical/></Slider></ScrollBar></tree></Tesk>";

TeskTree& Tree()
{
    return static_cast<TeskTree&>(*g_UIManager.FindElement("t"));
}

std::vector<std::string> Texts(i64 count)
{
    std::vector<std::string> texts;
    for (i64 index = 0; index < count; ++index) {
        char text[32];
        std::snprintf(text, sizeof(text), "Node %06d of the tree", static_cast<int>(index));
        texts.push_back(text);
    }
    return texts;
}

// The shapes of trees. Each gives the node below which the one of that number goes.
using Shape = TeskTreeNode* (*)(const std::vector<TeskTreeNode*>& nodes, std::size_t number);

TeskTreeNode* Bushy(const std::vector<TeskTreeNode*>& nodes, std::size_t number)
{
    return number == 0 ? Tree().Root : nodes[(number - 1) / ChildrenOfNode];
}

TeskTreeNode* Flat(const std::vector<TeskTreeNode*>&, std::size_t)
{
    return Tree().Root;
}

TeskTreeNode* Deep(const std::vector<TeskTreeNode*>& nodes, std::size_t number)
{
    return number == 0 ? Tree().Root : nodes[number - 1];
}

std::vector<TeskTreeNode*> Fill(const std::vector<std::string>& texts, Shape shape)
{
    std::vector<TeskTreeNode*> nodes;
    nodes.reserve(texts.size());
    for (const std::string& text : texts)
        nodes.push_back(shape(nodes, nodes.size())->AddChild(text.c_str(), 0xffffffffu));
    return nodes;
}

// percent: of the way down.
void FrameOfTree(benchmark::State& state, Shape shape, u32 percent)
{
    const LoadedScene scene(Markup);
    Fill(Texts(Nodes), shape);
    g_UIManager.Render();
    TeskScrollBar& bar = *Tree().ScrollBar;
    bar.SetValue(bar.Range - bar.Range / 100 * percent);
    state.SetLabel("nodes=" + std::to_string(Nodes) + DrawsOfFrame());
    for (auto _ : state)
        g_UIManager.Render();
    ReportTimePer(state, "ms/frame");
}

void FillTree(benchmark::State& state, Shape shape)
{
    const std::vector<std::string> texts = Texts(Nodes);
    StartedHost();
    const MarkupFile file(Markup);
    for (auto _ : state) {
        state.PauseTiming();
        g_UIManager.Reset();
        file.Load();
        state.ResumeTiming();
        Fill(texts, shape);
    }
    state.SetLabel("nodes=" + std::to_string(Tree().GetNodeCount() - 1));
    g_UIManager.Reset();
}

void EmptyTree(benchmark::State& state, Shape shape)
{
    const LoadedScene scene(Markup);
    const std::vector<std::string> texts = Texts(Nodes);
    for (auto _ : state) {
        state.PauseTiming();
        Fill(texts, shape);
        state.ResumeTiming();
        Tree().Root->RemoveChildren();
    }
    state.SetLabel("nodes=" + std::to_string(Nodes));
}

// Single nodes all over the tree, whose time must not grow with it.
void OnSingleNodes(benchmark::State& state, void (*operation)(TeskTreeNode& node))
{
    const LoadedScene scene(Markup);
    const std::vector<TeskTreeNode*> nodes = Fill(Texts(state.range(0)), Bushy);
    std::size_t number = 0;
    for (auto _ : state) {
        operation(*nodes[number]);
        number = (number + 7919) % nodes.size();
    }
    ReportTimePer(state, "ns/node");
    state.SetLabel("nodes=" + std::to_string(nodes.size()));
}

void Find(TeskTreeNode& node)
{
    benchmark::DoNotOptimize(node.pTree->FindNode(node.Handle));
}

void Turn(TeskTreeNode& node)
{
    node.ToggleExpand();
    node.ToggleExpand();
}

void AddAndRemove(TeskTreeNode& node)
{
    node.AddChild("a node that comes and goes", 0)->Remove();
}

BENCHMARK_CAPTURE(FrameOfTree, top, Bushy, 0)->Name("tree.frame.top")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfTree, middle, Bushy, 50)->Name("tree.frame.middle")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfTree, bottom, Bushy, 100)->Name("tree.frame.bottom")->Repetitions(9);
BENCHMARK_CAPTURE(FrameOfTree, flat, Flat, 100)->Name("tree.frame.flat")->Repetitions(5);
BENCHMARK_CAPTURE(FrameOfTree, deep, Deep, 50)->Name("tree.frame.deep")->Repetitions(5);
BENCHMARK_CAPTURE(FillTree, bushy, Bushy)
    ->Name("tree.add")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->Iterations(3);
BENCHMARK_CAPTURE(FillTree, flat, Flat)
    ->Name("tree.add.flat")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->Iterations(3);
BENCHMARK_CAPTURE(EmptyTree, bushy, Bushy)
    ->Name("tree.remove")
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->Iterations(3);
BENCHMARK_CAPTURE(OnSingleNodes, find, Find)->Name("tree.find")->Arg(1000)->Arg(100000)->Repetitions(5);
BENCHMARK_CAPTURE(OnSingleNodes, turn, Turn)->Name("tree.turn")->Arg(1000)->Arg(100000)->Repetitions(5);
BENCHMARK_CAPTURE(OnSingleNodes, change, AddAndRemove)->Name("tree.change")->Arg(1000)->Arg(100000)->Repetitions(5);

} // namespace
