#include "host/drawlist/DrawDifference.h"

#include "host/drawlist/MarkPairs.h"
#include "host/probe/ValueText.h"
#include "teskara/core/Numbers.h"

#include <algorithm>
#include <unordered_map>

namespace host {

namespace {

// All that an element draws, and where in the frame it begins.
struct DrawnElement {
    std::string_view Name;
    std::vector<ElementMark> Marks;
};

// The elements of a frame, in the order in which they begin to draw.
class DrawnElements
{
public:
    explicit DrawnElements(const DrawList& list)
    {
        for (const DrawCall& call : list.Calls) {
            const auto [entry, isNew] = m_Places.emplace(call.Element, m_Elements.size());
            if (isNew)
                m_Elements.push_back({call.Element, {}});
            for (const DrawMark& mark : call.Marks)
                m_Elements[entry->second].Marks.push_back({call.Operation, &mark});
        }
    }

    const std::vector<DrawnElement>& All() const { return m_Elements; }

    const DrawnElement* Find(std::string_view name) const
    {
        const auto found = m_Places.find(name);
        return found == m_Places.end() ? nullptr : &m_Elements[found->second];
    }

    std::size_t PlaceOf(const DrawnElement& element) const
    {
        return static_cast<std::size_t>(&element - m_Elements.data());
    }

private:
    std::vector<DrawnElement> m_Elements;
    std::unordered_map<std::string_view, std::size_t> m_Places;
};

std::string CornerText(const tagRECT& place)
{
    return PointText({place.left, place.top});
}

std::string SizeText(const tagRECT& place)
{
    return std::to_string(WrapSub(place.right, place.left)) + 'x' + std::to_string(WrapSub(place.bottom, place.top));
}

std::string ChangeText(std::string_view what, std::string_view from, std::string_view to)
{
    return std::string(what).append(" from ").append(from).append(" to ").append(to);
}

// Sentences about one element. What holds for several of its marks is said once, and for how many.
class Sentences
{
public:
    // key: what is the same in all of them.
    void Say(std::string text, std::string key)
    {
        const auto [entry, isNew] = m_Places.emplace(std::move(key), m_Sentences.size());
        if (isNew)
            m_Sentences.push_back({std::move(text)});
        else
            ++m_Sentences[entry->second].Count;
    }

    void Say(const std::string& text) { Say(text, text); }

    void MoveTo(std::string_view element, std::vector<DrawDifference>& differences)
    {
        for (Sentence& sentence : m_Sentences) {
            if (sentence.Count > 1)
                sentence.Text += " (" + std::to_string(sentence.Count) + " times)";
            differences.push_back({std::string(element), std::move(sentence.Text)});
        }
    }

private:
    struct Sentence {
        std::string Text;
        int Count = 1;
    };

    std::vector<Sentence> m_Sentences;
    std::unordered_map<std::string, std::size_t> m_Places; // of the sentence for a key
};

void ComparePlaces(const tagRECT& before, const tagRECT& after, Sentences& sentences)
{
    const i32 x = WrapSub(after.left, before.left);
    const i32 y = WrapSub(after.top, before.top);
    if (x != 0 || y != 0)
        sentences.Say(ChangeText("moved", CornerText(before), CornerText(after)), "moved by " + PointText({x, y}));
    if (SizeText(before) != SizeText(after))
        sentences.Say(ChangeText("resized", SizeText(before), SizeText(after)));
}

std::string_view FindValue(const DrawMark& mark, std::string_view name)
{
    const auto found = std::find_if(
        mark.Values.begin(), mark.Values.end(), [&](const DrawValue& value) { return value.Name == name; });
    return found == mark.Values.end() ? "nothing" : std::string_view(found->Value);
}

void CompareValue(const DrawMark& before, const DrawMark& after, const std::string& name, Sentences& sentences)
{
    const std::string_view from = FindValue(before, name);
    const std::string_view to = FindValue(after, name);
    if (from != to)
        sentences.Say(ChangeText(name == "color" ? "recoloured" : name + " changed", from, to));
}

void ComparePair(const MarkPair& pair, Sentences& sentences)
{
    const std::string operation(pair.Operation);
    if (!pair.After)
        return sentences.Say(
            "no longer has the " + operation + " at " + CornerText(pair.Before->Place), "no longer " + operation);
    if (!pair.Before)
        return sentences.Say("has a new " + operation + " at " + CornerText(pair.After->Place), "new " + operation);

    ComparePlaces(pair.Before->Place, pair.After->Place, sentences);
    for (const DrawValue& value : pair.Before->Values)
        CompareValue(*pair.Before, *pair.After, value.Name, sentences);
    for (const DrawValue& value : pair.After->Values)
        if (FindValue(*pair.Before, value.Name) == "nothing")
            CompareValue(*pair.Before, *pair.After, value.Name, sentences);
}

tagRECT RectangleOf(const std::vector<ElementMark>& marks)
{
    tagRECT all = marks.empty() ? tagRECT() : marks.front().Mark->Place;
    for (const ElementMark& mark : marks) {
        const tagRECT& place = mark.Mark->Place;
        all.left = std::min({all.left, place.left, place.right});
        all.top = std::min({all.top, place.top, place.bottom});
        all.right = std::max({all.right, place.left, place.right});
        all.bottom = std::max({all.bottom, place.top, place.bottom});
    }
    return all;
}

std::string WhereText(std::string_view what, const DrawnElement& element)
{
    const tagRECT all = RectangleOf(element.Marks);
    return std::string(what) + " at " + CornerText(all) + ", " + SizeText(all);
}

// The elements of both frames that keep their order: as many as can. The others are those that have changed places.
std::vector<bool> FindOrdered(const std::vector<std::size_t>& places)
{
    std::vector<std::size_t> ends; // of the best sequence of each length: where it ends
    std::vector<std::size_t> links(places.size());
    for (std::size_t at = 0; at < places.size(); ++at) {
        const auto found = std::lower_bound(ends.begin(), ends.end(), places[at],
            [&](std::size_t end, std::size_t place) { return places[end] < place; });
        links[at] = found == ends.begin() ? at : *(found - 1);
        if (found == ends.end())
            ends.push_back(at);
        else
            *found = at;
    }
    std::vector<bool> isOrdered(places.size());
    for (std::size_t at = ends.empty() ? 0 : ends.back(); at < places.size(); at = links[at]) {
        isOrdered[at] = true;
        if (links[at] == at)
            break;
    }
    return isOrdered;
}

std::string NameBefore(const DrawnElements& elements, const DrawnElement& element)
{
    const std::size_t place = elements.PlaceOf(element);
    return place == 0 ? "first" : "after " + QuotedLine(elements.All()[place - 1].Name);
}

class Comparison
{
public:
    Comparison(const DrawList& before, const DrawList& after) : m_Before(before), m_After(after)
    {
        if (before.Width != after.Width || before.Height != after.Height)
            m_Differences.push_back({"",
                ChangeText("resized", SizeText({0, 0, before.Width, before.Height}),
                    SizeText({0, 0, after.Width, after.Height}))});
        FindPlaces();
        for (const DrawnElement& element : m_Before.All())
            CompareElement(element);
        for (const DrawnElement& element : m_After.All())
            if (!m_Before.Find(element.Name))
                m_Differences.push_back({std::string(element.Name), WhereText("appeared", element)});
        if (m_Differences.empty() && WriteDrawList(before) != WriteDrawList(after))
            m_Differences.push_back({"", "the same is drawn in another order, or divided among calls in another way"});
    }

    std::vector<DrawDifference> Take() { return std::move(m_Differences); }

private:
    void FindPlaces()
    {
        std::vector<std::size_t> places;
        for (const DrawnElement& element : m_Before.All())
            if (const DrawnElement* other = m_After.Find(element.Name))
                places.push_back(m_After.PlaceOf(*other));
        m_IsOrdered = FindOrdered(places);
    }

    void CompareElement(const DrawnElement& element)
    {
        const DrawnElement* other = m_After.Find(element.Name);
        if (!other) {
            m_Differences.push_back({std::string(element.Name), WhereText("vanished", element)});
            return;
        }
        Sentences sentences;
        for (const MarkPair& pair : PairMarks(element.Marks, other->Marks))
            ComparePair(pair, sentences);
        if (!m_IsOrdered[m_Common++])
            sentences.Say("is drawn " + NameBefore(m_After, *other) + ", and was " + NameBefore(m_Before, element));
        sentences.MoveTo(element.Name, m_Differences);
    }

    DrawnElements m_Before;
    DrawnElements m_After;
    std::vector<bool> m_IsOrdered; // for each element of both, in the order of the first
    std::size_t m_Common = 0; // how many of those have been compared
    std::vector<DrawDifference> m_Differences;
};

} // namespace

std::vector<DrawDifference> CompareDrawLists(const DrawList& before, const DrawList& after)
{
    return Comparison(before, after).Take();
}

std::string DrawDifferencesAsText(const std::vector<DrawDifference>& differences)
{
    std::string text;
    for (const DrawDifference& difference : differences)
        text +=
            (difference.Element.empty() ? "the frame" : QuotedLine(difference.Element)) + ": " + difference.Text + '\n';
    return text;
}

} // namespace host
