#pragma once

#include "tests/fuzz/MarkupTree.h"

#include <cstddef>
#include <string>
#include <string_view>

// Decisions that a fuzzer's bytes make; zeros when they are used up.
class Choices
{
public:
    Choices(const unsigned char* bytes, std::size_t size) : m_Bytes(bytes), m_Left(size) { }

    bool AreUsedUp() const { return m_Left == 0; }

    std::size_t Next()
    {
        if (m_Left == 0)
            return 0;
        --m_Left;
        return *m_Bytes++;
    }

    std::size_t Below(std::size_t bound) { return Next() % bound; }

private:
    const unsigned char* m_Bytes;
    std::size_t m_Left;
};

// Makes trees of markup, and says the same tree in one of many ways.
class MarkupMaker
{
public:
    // So that trees stay small enough to be many.
    static constexpr std::size_t MostNodes = 64;

    explicit MarkupMaker(Choices& choices) : m_Choices(choices) { }

    // Under a root like that of a document.
    MarkupTree MakeTree();

    std::string Name();
    std::string Text();

    // Markup that must be parsed into the tree under the root again, given the entities "e" and "empty".
    std::string Write(const MarkupTree& root);

    static constexpr char EntityValue[] = "<en&tity>";

private:
    void AddSomething(MarkupTree& parent);
    void AddText(MarkupTree& parent);
    void AddAttributes(MarkupTree& node);

    void WriteNode(const MarkupTree& node);
    void WriteElement(const MarkupTree& node);
    void WriteAttributes(const MarkupTree& node);
    void WriteText(std::string_view text);
    void WriteCharacter(char character, char quote);
    void WriteBlank();

    Choices& m_Choices;
    std::size_t m_Nodes = 0;
    std::string m_Text;
};
