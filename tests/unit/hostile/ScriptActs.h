#pragma once

#include "teskara/script/MvTypeVar.h"

#include <initializer_list>

class TeskElement;

// What scripts do. An element that is not there is left alone, and nothing is allocated but by the toolkit.
namespace Script {

using Arguments = std::initializer_list<const char*>;

constexpr char MadeHolder[] = "holder"; // of the elements without markup

// The element of that kind that was made without markup.
TeskElement* FindMade(const char* kind);

void Tell(TeskElement* element, const char* method, Arguments arguments = {});

// The same of an element from the file and of its like without markup.
void TellBoth(const char* kind, const char* method, Arguments arguments = {});

// Without a type: there is no value.
_MvTypeVar Ask(TeskElement* element, const char* member, Arguments arguments = {});

// Of a row, a node, a tab and so on that was the answer.
void TellPart(const _MvTypeVar& part, const char* method, const char* argument);

} // namespace Script
