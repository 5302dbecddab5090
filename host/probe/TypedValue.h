#pragma once

#include "teskara/script/MvTypeVar.h"

#include <string>

class HostTypes;
class TeskElement;

// The element of a value, if its type is one of elements, or if it has no type, as while the toolkit shuts down; null
// otherwise.
TeskElement* ElementOf(const _MvTypeVar& value);

// How a typed value is written in traces and results: the type's name and the value. "null" without a type.
std::string TypedValueText(const _MvTypeVar& value, const HostTypes& types);

// A type is written as its name.
std::string TypeText(const MvTypeDefinition* type);
