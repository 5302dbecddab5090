#include "host/schema/SchemaWords.h"

namespace host {

const char* WordOf(SchemaPlace place)
{
    switch (place) {
    case SchemaPlace::Child:
        return "child";
    case SchemaPlace::NamedChild:
        return "child or template name";
    case SchemaPlace::TemplateChild:
        return "child of a template";
    case SchemaPlace::Attribute:
        return "attribute";
    case SchemaPlace::AttributeOfTemplate:
        return "attribute of a template";
    }
    return "";
}

const char* WordOf(SchemaUse use)
{
    switch (use) {
    case SchemaUse::Element:
        return "element";
    case SchemaUse::Part:
        return "part";
    case SchemaUse::Made:
        return "made by programs";
    case SchemaUse::Base:
        return "base";
    case SchemaUse::Value:
        return "value";
    }
    return "";
}

} // namespace host
