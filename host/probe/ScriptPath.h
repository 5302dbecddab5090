#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A path reads a value of the toolkit: UIElement[Panel].Width, UIElement[Panel]:SetMetadata[Colour,red].

enum class PathStepKind { Object, Member, Method };

struct PathArgument {
    std::string Text;
    bool IsQuoted = false; // stands as it is; otherwise sequences in it are evaluated
};

struct PathStep {
    PathStepKind Kind = PathStepKind::Object;
    std::string Name;
    std::vector<PathArgument> Arguments;
};

using ScriptPath = std::vector<PathStep>;

// Nothing if the text is no path. A path has at least one step, and the first is the object.
std::optional<ScriptPath> ReadScriptPath(std::string_view text);

// The place behind the bracket that ends the sequence whose "${" stands at start; npos if nothing ends it.
std::size_t FindSequenceEnd(std::string_view text, std::size_t start);
