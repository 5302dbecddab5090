#pragma once

#include "host/script/SequenceEvaluator.h"
#include "teskara/core/Types.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace host {

// The texts with data sequences. Each is parsed once: those that are kept by their id, the others as long as they are in
// use.
class DataSequences
{
public:
    // The evaluator is borrowed.
    explicit DataSequences(SequenceEvaluator& evaluator) : m_Evaluator(evaluator) { }

    // Texts that are not kept are remembered in two lots of so many at most: enough for what a frame shows, and few, as
    // a value that is set is a text of its own each time.
    static constexpr std::size_t MostRecent = 512;

    // Writes a text with its parts evaluated, at most size bytes with the end. The output may be the text itself.
    void Expand(std::string_view text, char* output, u32 size);
    std::string Expand(std::string_view text);

    // Keeps a text for later. 0 if there are no more ids. where: the file that it stands in, for messages.
    u32 Keep(std::string_view text, const std::string& where);
    void Free(u32 sequence) { m_Kept.erase(sequence); }

    // How many are kept, and how many are remembered besides.
    std::size_t Count() const { return m_Kept.size(); }
    std::size_t RecentCount() const { return m_Recent.size() + m_Older.size(); }

    // The kept text, as it was or with its parts evaluated. False: there is no such sequence.
    bool WriteOriginal(u32 sequence, char* buffer, u32 size) const;
    bool WriteProcessed(u32 sequence, char* buffer, u32 size);

    // The kept text; null if there is no such sequence.
    std::shared_ptr<const Sequence> Find(u32 sequence) const;

    // Forgets the texts that are not kept, until they are used again.
    void ForgetRecent();

    // Parses a text once while it is in use.
    std::shared_ptr<const Sequence> Parse(std::string_view text);

private:
    using Shared = std::shared_ptr<const Sequence>; // an evaluation may free what it evaluates
    using ByText = std::unordered_map<std::string_view, Shared>; // the text is the sequence's

    Shared Read(std::string_view text, const std::string& where);
    void Write(const Sequence& sequence, char* buffer, u32 size);

    SequenceEvaluator& m_Evaluator;
    std::unordered_map<u32, Shared> m_Kept;
    ByText m_Recent;
    std::size_t m_RecentBytes = 0;
    ByText m_Older; // those of Recent before it was full
    std::string m_Expanded; // keeps its memory between uses
    u32 m_LastID = 0;
};

} // namespace host
