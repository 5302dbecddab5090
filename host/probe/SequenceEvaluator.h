#pragma once

#include "host/probe/ProbeAtoms.h"
#include "host/probe/ScriptPath.h"
#include "host/probe/TemporaryTexts.h"
#include "teskara/core/HostInterface.h"

#include <map>
#include <string>
#include <string_view>

class HostTypes;

enum class PathOutcome {
    Value, // there is a value, or the method was carried out
    None, // the type or the object answered false
    Unknown, // nothing answered
    NoPath, // the text is no path
};

struct PathResult {
    PathOutcome Outcome = PathOutcome::Unknown;
    _MvTypeVar Value;
};

// Evaluates paths and the data sequences that hold them: parameters of the atom that runs, variables, and the top-level
// objects of the toolkit.
class SequenceEvaluator
{
public:
    SequenceEvaluator(const ProbeAtoms& atoms, HostTypes& types, ScriptReferences& references, TemporaryTexts& texts)
        : m_Atoms(atoms), m_Types(types), m_References(references), m_Texts(texts)
    {
    }

    // Replaces each sequence in a text by its value, and by NULL if it has none.
    std::string Expand(std::string_view text);

    // As Expand, but of sequences inside double quotes only parameters are replaced.
    std::string ExpandOutsideQuotes(std::string_view text);

    // Replaces the sequences that name a parameter of the atom that runs, and nothing else.
    std::string ExpandParameters(std::string_view text) const;

    // A text that is one sequence gives its value; any other text gives what it expands to.
    PathResult EvaluateText(std::string_view text);

    PathResult Evaluate(std::string_view path);

    // Reads a path on an object: its first step is a member too.
    PathResult EvaluateOn(const _MvTypeVar& object, std::string_view path);

    // The text of a value in a sequence.
    std::string TextOf(const _MvTypeVar& value);

    std::map<std::string, std::string, std::less<>> Variables;
    std::map<std::string, TopLevelObjectHandler, std::less<>> Objects;

private:
    const std::string* FindParameter(std::string_view name) const;
    PathResult StartAt(const PathStep& step);
    PathResult AskObject(TopLevelObjectHandler handler, const PathStep& step);
    PathResult CallVariable(std::string& variable, const PathStep& step);
    PathResult Follow(const ScriptPath& path, std::size_t first, const _MvTypeVar& start);
    PathOutcome Take(const PathStep& step, _MvTypeVar& value);
    std::vector<std::string> EvaluateArguments(const PathStep& step);
    PathResult TextResult(std::string_view text);

    const ProbeAtoms& m_Atoms;
    HostTypes& m_Types;
    ScriptReferences& m_References;
    TemporaryTexts& m_Texts;
    std::size_t m_Depth = 0;
};
