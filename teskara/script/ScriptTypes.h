#pragma once

#include <functional>

class MvTypeDefinition;
class ToolkitType;

// Finds the host's own types, and makes the toolkit's and registers them with the host. Types that were made already
// stay as they are. A type for which there is no memory is left out, and its pointer stays null.
void RegisterScriptTypes();

// Takes the toolkit's types out of the host again and deletes them.
void RemoveScriptTypes();

// Tells of every type in the order of registration, for tools: one made for the time of the call, and the name of its
// base, which is null where there is none. Throws when there is no memory.
using ScriptTypeVisitor = std::function<void(const ToolkitType& type, const char* base)>;
void VisitScriptTypes(const ScriptTypeVisitor& visit);

// The name of the type that a variable of TypeGlobals.h is for; null for a null address.
const char* NameOfScriptType(MvTypeDefinition* const* type);
