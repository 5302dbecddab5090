#pragma once

#include "host/serve/JsonLine.h"
#include "teskara/core/Types.h"

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace host {

// Why a request cannot be done, for who made it.
class ServeFault : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// What a field of a request holds.
enum class ServeFieldType {
    Text,
    Texts, // a list of texts, or one
    Flag,
    Number, // a whole one, from Least to Most
};

struct ServeField {
    std::string_view Name;
    ServeFieldType Type = ServeFieldType::Text;
    enum class Need { Optional, Required } Presence = Need::Optional;
    i64 Least = 0;
    i64 Most = 0;
};

// What is asked, once it is known to have the fields that its command takes and no others.
class ServeRequest
{
public:
    // Both are borrowed. Throws ServeFault, which names what was expected.
    ServeRequest(const Json& object, std::span<const ServeField> fields);

    bool Has(std::string_view name) const;

    // Of a field that is not there they give the fallback.
    std::string Text(std::string_view name, const std::string& fallback = {}) const;
    std::vector<std::string> Texts(std::string_view name) const;
    bool Flag(std::string_view name) const;
    i64 Number(std::string_view name, i64 fallback = 0) const;

    // "one of left, right": what a field may hold, in words.
    static std::string Describe(const ServeField& field);

private:
    const Json* Find(std::string_view name) const;

    const Json& m_Object;
};

} // namespace host
