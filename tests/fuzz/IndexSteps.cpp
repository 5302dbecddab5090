#include "tests/fuzz/IndexSteps.h"

#include "teskara/script/MvIndex.h"
#include "teskara/script/MvIndexIterator.h"
#include "teskara/script/MvTypeDefinition.h"
#include "tests/fuzz/IndexModel.h"
#include "tests/fuzz/ModelCheck.h"

#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

namespace {

constexpr std::size_t Walks = 3;
constexpr u32 MostPositions = 48;

// Words in memory of their own; "-" is none.
class WordType : public MvTypeDefinition
{
public:
    WordType() : MvTypeDefinition("word") { }

    bool FromText(MvValue& value, const char* text) override
    {
        Act(OnMake);
        if (*text == '-')
            return false;
        value.Object = new std::string(text);
        ++Alive;
        return true;
    }

    void FreeValue(MvValue& value) override
    {
        Alive -= value.Object ? 1 : 0;
        delete static_cast<std::string*>(value.Object);
        value.Object = nullptr;
        Act(OnFree);
    }

    int Alive = 0;
    std::function<void()> OnMake; // once
    std::function<void()> OnFree;

private:
    static void Act(std::function<void()>& act)
    {
        if (const auto once = std::exchange(act, nullptr))
            once();
    }
};

struct Walk {
    std::unique_ptr<MvIndexIterator> Real;
    WalkModel Model;
};

// The index under test, what it should be, and the walks over it, of which some may be over one that is gone.
struct Scene {
    WordType Type;
    std::unique_ptr<MvIndex> Index;
    IndexModel Model;
    Walk All[Walks];

    // The model's part of a change that is under way, done at the latest when the type is asked to free what was there.
    std::function<void()> Pending;
    bool IsClearing = false;

    void Settle()
    {
        if (const auto change = std::exchange(Pending, nullptr))
            change();
    }
};

struct Step {
    const char* Name;
    void (*Run)(Scene& scene, Decisions& bytes);
};

u32 PositionFrom(Decisions& bytes)
{
    const u8 byte = bytes.Next();
    return byte == 255 ? 0xffffffff : byte % (MostPositions + 2);
}

IndexModel::Word WordFrom(Decisions& bytes)
{
    const u8 byte = bytes.Next();
    return byte % 8 == 7 ? IndexModel::Word() : std::string(byte % 5, static_cast<char>('a' + byte % 3));
}

// A word as the index takes it.
struct Handed {
    explicit Handed(const IndexModel::Word& word) : Text(word.value_or("-")) { }
    std::string Text;
    char* Texts[1] = {Text.data()};
};

// Does a change to both. plain: its part for the model, which may come before the real one ends.
template <class Result>
void Change(Scene& scene, const std::function<Result(MvIndex& index)>& real, const std::function<Result()>& plain)
{
    Result expected{};
    const bool wasLocked = scene.Model.Locked;
    scene.Pending = [&] { expected = wasLocked ? Result{} : plain(); };
    const Result result = real(*scene.Index);
    scene.Settle();
    Require(result == expected, "a change had another result");
}

void Add(Scene& scene, Decisions& bytes)
{
    const IndexModel::Word word = WordFrom(bytes);
    Handed handed(word);
    Change<u32>(
        scene, [&](MvIndex& index) { return index.Add(1, handed.Texts); },
        [&] { return scene.Index ? scene.Model.Add(word) : 0; });
}

void Set(Scene& scene, Decisions& bytes)
{
    const u32 position = PositionFrom(bytes);
    const IndexModel::Word word = WordFrom(bytes);
    Handed handed(word);
    const bool isInRange = scene.Model.Has(position);
    Change<bool>(
        scene, [&](MvIndex& index) { return index.Set(position, 1, handed.Texts); },
        [&] { return scene.Index && isInRange && scene.Model.Set(position, word); });
}

template <bool (MvIndex::*Real)(), bool (IndexModel::*Plain)()> void OnAll(Scene& scene, Decisions&)
{
    scene.IsClearing = Plain == &IndexModel::Clear;
    Change<bool>(
        scene, [](MvIndex& index) { return (index.*Real)(); }, [&] { return (scene.Model.*Plain)(); });
    scene.IsClearing = false;
}

template <bool (MvIndex::*Real)(u32), bool (IndexModel::*Plain)(u32)> void OnOne(Scene& scene, Decisions& bytes)
{
    const u32 number = PositionFrom(bytes);
    if (number > MostPositions && Plain == &IndexModel::Resize) {
        Require(!scene.Index->Resize(0xffffffff), "an index grew without end");
        return;
    }
    Change<bool>(
        scene, [&](MvIndex& index) { return (index.*Real)(number); }, [&] { return (scene.Model.*Plain)(number); });
}

template <bool (MvIndex::*Real)(u32, u32), bool (IndexModel::*Plain)(u32, u32)>
void OnTwo(Scene& scene, Decisions& bytes)
{
    const u32 first = PositionFrom(bytes);
    const u32 second = PositionFrom(bytes);
    Change<bool>(
        scene, [&](MvIndex& index) { return (index.*Real)(first, second); },
        [&] { return (scene.Model.*Plain)(first, second); });
}

void Lock(Scene& scene, Decisions&)
{
    scene.Model.Locked = scene.Index->Locked = !scene.Model.Locked;
}

// The model is empty until there is a new index.
void Delete(Scene& scene)
{
    scene.Model = {};
    scene.Index.reset();
}

// What the type does in the middle of a change. While everything is freed it can change nothing.
void Interfere(Scene& scene, u8 act, u32 position)
{
    if (!scene.Index)
        return;

    const bool isRefused = scene.IsClearing;
    Handed handed("x");
    switch (act % 5) {
    case 0:
        Require(scene.Index->Add(1, handed.Texts) == (isRefused ? 0 : scene.Model.Add("x")), "an inner word differs");
        break;
    case 1:
        Require(scene.Index->Remove(position) == (!isRefused && scene.Model.Remove(position)), "an inner end differs");
        break;
    case 2:
        Require(scene.Index->Clear() == (!isRefused && scene.Model.Clear()), "an inner clearing differs");
        break;
    case 3:
        scene.Model.Locked = scene.Index->Locked = !scene.Model.Locked;
        break;
    default:
        Delete(scene);
    }
}

void LayInWait(Scene& scene, Decisions& bytes)
{
    const u8 act = bytes.Next();
    const u32 position = PositionFrom(bytes);
    scene.Type.OnMake = scene.Type.OnFree = nullptr;
    if (act < 128)
        scene.Type.OnMake = [&scene, act, position] { Interfere(scene, act, position); };
    else
        scene.Type.OnFree = [&scene, act, position] {
            scene.Settle();
            Interfere(scene, act, position);
        };
}

void StartWalk(Scene& scene, Decisions& bytes)
{
    const u8 byte = bytes.Next();
    Walk& walk = scene.All[byte % Walks];
    walk.Model = {(byte & 64) == 0, (byte & 128) == 0, 0};
    walk.Model.Position = walk.Model.Forward ? 0 : ~u64{0};
    const IteratorFlags flags = {.Forward = walk.Model.Forward, .Reversible = walk.Model.Reversible};
    walk.Real = std::make_unique<MvIndexIterator>(*scene.Index, flags);
}

void GoOn(Scene& scene, Decisions& bytes)
{
    const u8 byte = bytes.Next();
    Walk& walk = scene.All[byte % Walks];
    if (!walk.Real)
        return;

    constexpr bool (MvIterator::*ways[])() = {
        &MvIterator::First, &MvIterator::Last, &MvIterator::Next, &MvIterator::Previous};
    const u8 way = byte / 64;
    const bool isBack = way == 1 || way == 3;
    const bool upwards = isBack != walk.Model.Forward;
    bool isThere = walk.Real->GetContainer() && (!isBack || walk.Model.Reversible);
    if (isThere && way < 2)
        walk.Model.Position = upwards ? 0 : ~u64{0};
    isThere = isThere && walk.Model.Go(scene.Model, upwards);
    Require((walk.Real.get()->*ways[way])() == isThere, "a walk went another way");
}

// clang-format off
constexpr Step Steps[] = {
    {"add",        Add},
    {"add",        Add},
    {"set",        Set},
    {"remove",     OnOne<&MvIndex::Remove, &IndexModel::Remove>},
    {"resize",     OnOne<&MvIndex::Resize, &IndexModel::Resize>},
    {"swap",       OnTwo<&MvIndex::Swap, &IndexModel::Swap>},
    {"move",       OnTwo<&MvIndex::Move, &IndexModel::Move>},
    {"collapse",   OnAll<&MvIndex::Collapse, &IndexModel::Collapse>},
    {"clear",      OnAll<&MvIndex::Clear, &IndexModel::Clear>},
    {"lock",       Lock},
    {"delete",     [](Scene& scene, Decisions&) { Delete(scene); }},
    {"wait",       LayInWait},
    {"walk",       StartWalk},
    {"go on",      GoOn},
    {"go on",      GoOn},
    {"go on",      GoOn},
};
// clang-format on

std::string TextOf(const _MvTypeVar& entry)
{
    return *static_cast<const std::string*>(entry.Value.Object);
}

void CompareWalk(const Scene& scene, const Walk& walk)
{
    const auto position = static_cast<u32>(walk.Model.Position);
    const bool isThere =
        walk.Real->GetContainer() && position == walk.Model.Position && scene.Model.At(position).has_value();
    _MvTypeVar key;
    _MvTypeVar value;
    Require(walk.Real->IsValid() == isThere, "a walk stands elsewhere");
    Require(walk.Real->GetKey(key) == isThere && walk.Real->GetValue(value) == isThere, "a walk says something else");
    Require(!isThere || key.Value.Integer64 == position, "a key differs");
    Require(!isThere || TextOf(value) == *scene.Model.At(position), "a value differs");
}

void Compare(Scene& scene)
{
    MvIndex& index = *scene.Index;
    Require(index.GetSize() == scene.Model.Words.size(), "the sizes differ");
    Require(index.GetCount() == scene.Model.Count(), "the counts differ");
    Require(index.Locked == scene.Model.Locked, "the locks differ");
    Require(scene.Type.Alive == static_cast<int>(index.GetCount()), "a word was lost or kept");
    for (u32 position = 0; position <= index.GetSize() + 1; ++position) {
        _MvTypeVar entry;
        const bool isThere = index.GetEntry(position, entry);
        Require(isThere == scene.Model.At(position).has_value(), "an entry is missing, or there is one too many");
        Require(!isThere || TextOf(entry) == *scene.Model.At(position), "an entry differs");
    }
    for (const Walk& walk : scene.All) {
        if (walk.Real)
            CompareWalk(scene, walk);
    }
}

void RunStep(Scene& scene, Decisions& bytes)
{
    if (!scene.Index)
        scene.Index = std::make_unique<MvIndex>(&scene.Type);
    Steps[bytes.Next() % std::size(Steps)].Run(scene, bytes);
    if (scene.Index)
        Compare(scene);
    else
        Require(scene.Type.Alive == 0, "words outlive their index");
}

} // namespace

void RunIndexSteps(Decisions& bytes)
{
    Scene scene;
    for (std::size_t step = 0; step < MostModelSteps && !bytes.IsUsedUp(); ++step)
        RunStep(scene, bytes);
    scene.Type.OnMake = scene.Type.OnFree = nullptr;
    scene.Index.reset();
    Require(scene.Type.Alive == 0, "words outlive the last index");
}
