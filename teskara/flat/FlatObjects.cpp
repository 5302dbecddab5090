// What a program asks of the toolkit as plain functions: elements, values, types, commands and scripts.

#include "teskara/core/BoundedText.h"
#include "teskara/element/TeskElement.h"
#include "teskara/flat/FlatElement.h"
#include "teskara/flat/FlatGuard.h"
#include "teskara/flat/FlatHost.h"
#include "teskara/flat/FlatLife.h"
#include "teskara/flat/FlatTable.h"
#include "teskara/flat/FlatType.h"
#include "teskara/flat/FlatValue.h"

#include <string_view>

namespace {

u32 IdOf(const TeskElement* element)
{
    return element ? element->ID : 0;
}

bool HasType(const teskara_value* value)
{
    return value && value->type;
}

// Types, commands and objects take arguments that could be written to, and write to none.
char** Texts(const char* const* argv)
{
    return const_cast<char**>(argv);
}

// ask(MvTypeDefinition&, MvValue, _MvTypeVar&) answers as a type does; only what is done has a result.
template <class Ask> int AskForValue(const teskara_value* value, teskara_value* result, Ask&& ask)
{
    if (!result)
        return TESKARA_NO_VALUE;
    const teskara_value asked = HasType(value) ? *value : teskara_value(); // it may be the place of the result
    *result = {};
    return Guarded(int{TESKARA_NO_VALUE}, [&]() -> int {
        if (!asked.type)
            return TESKARA_NO_VALUE;
        _MvTypeVar found;
        const int answer = ask(*FromFlat(asked.type), FromFlat(asked).Value, found);
        if (answer == TESKARA_DONE)
            *result = ToFlat(found);
        return answer;
    });
}

} // namespace

// --- Elements

uint32_t teskara_find(const char* name)
{
    return Guarded(0u, [&] { return IdOf(g_UIManager.FindElement(name)); });
}

uint32_t teskara_create(uint32_t parent, const char* kind, const char* name)
{
    return Guarded(0u, [&] { return IdOf(g_UIManager.LoadElement(ElementOrScreen(parent), kind, name)); });
}

void teskara_delete(uint32_t element)
{
    Guarded([&] {
        TeskElement* found = g_UIManager.FindElementByID(element);
        if (found && found != g_UIManager.Screen)
            found->Delete();
    });
}

bool teskara_full_name(uint32_t element, char* output, uint32_t size)
{
    const TeskElement* found = g_UIManager.FindElementByID(element);
    if (!found || !output || size == 0)
        return false;
    CopyBounded(output, size, found->FullName);
    return true;
}

bool teskara_show(const char* name, bool show)
{
    return Guarded(false, [&] { return g_UIManager.ShowElement(name, show); });
}

bool teskara_toggle(const char* name)
{
    return Guarded(false, [&] { return g_UIManager.ToggleElement(name); });
}

uint32_t teskara_mouse_over(void)
{
    return Guarded(0u, [] { return IdOf(g_UIManager.GetMouseOverElement()); });
}

uint32_t teskara_focused(void)
{
    return Guarded(0u, [] { return IdOf(g_UIManager.GetFocusElement()); });
}

void teskara_focus(uint32_t element)
{
    Guarded([&] {
        TeskElement* found = g_UIManager.FindElementByID(element);
        if (found || element == 0)
            g_UIManager.SetFocusElement(found);
    });
}

const char* teskara_metadata(uint32_t element, const char* name)
{
    return g_UIManager.GetElementMetadata(element, name);
}

void teskara_set_metadata(uint32_t element, const char* name, const char* value)
{
    if (!g_UIManager.FindElementByID(element))
        return;
    if (value)
        g_UIManager.SetElementMetadata(element, name, value);
    else
        g_UIManager.RemoveElementMetadata(element, name);
}

bool teskara_element(uint32_t element, teskara_value* result)
{
    if (!result)
        return false;
    *result = {};
    return Guarded(false, [&] {
        TeskElement* found = g_UIManager.FindElementByID(element);
        _MvTypeVar value;
        value.Type = found ? found->GetMvType() : nullptr;
        value.Value.Object = found;
        if (value.Type)
            *result = ToFlat(value);
        return value.Type != nullptr;
    });
}

// --- Values

int teskara_get(
    const teskara_value* value, const char* member, int argc, const char* const* argv, teskara_value* result)
{
    return AskForValue(value, result, [&](MvTypeDefinition& type, MvValue asked, _MvTypeVar& found) {
        return type.DispatchMember(asked, member, argc, Texts(argv), found);
    });
}

int teskara_call(const teskara_value* value, const char* method, int argc, const char* const* argv)
{
    return Guarded(int{TESKARA_NO_VALUE}, [&]() -> int {
        if (!HasType(value))
            return TESKARA_NO_VALUE;
        return FromFlat(value->type)->DispatchMethod(FromFlat(*value).Value, method, argc, Texts(argv));
    });
}

int teskara_index(const teskara_value* value, int argc, const char* const* argv, teskara_value* result)
{
    return AskForValue(value, result, [&](MvTypeDefinition& type, MvValue asked, _MvTypeVar& found) {
        return type.GetIndex(asked, argc, Texts(argv), found);
    });
}

bool teskara_text(const teskara_value* value, char* output, uint32_t size)
{
    if (!output || size == 0)
        return false;
    *output = 0;
    return Guarded(
        false, [&] { return HasType(value) && FromFlat(value->type)->ToText(FromFlat(*value).Value, output, size); });
}

// --- Types

const char* teskara_type_name(const teskara_type* type)
{
    return type ? FromFlat(type)->GetName() : "";
}

teskara_type* teskara_type_base(const teskara_type* type)
{
    return type ? ToFlat(FromFlat(type)->GetBase()) : nullptr;
}

teskara_type* teskara_new_type(const char* name, const teskara_type_operations* operations)
{
    return Guarded(static_cast<teskara_type*>(nullptr), [&]() -> teskara_type* {
        teskara_type_operations table = {};
        if (TakeTable(operations, table) != TESKARA_OK)
            return nullptr;
        return ToFlat(new FlatType(TextOrEmpty(name), table));
    });
}

void teskara_free_type(teskara_type* type)
{
    delete dynamic_cast<FlatType*>(FromFlat(type)); // the toolkit's own are not the program's to free
}

// --- Commands and objects

int teskara_run(const char* line)
{
    const FlatHost* host = RunningFlatHost();
    return Guarded(-1, [&] { return host && line ? host->Commands().Run(line) : -1; });
}

int teskara_run_words(int argc, const char* const* argv)
{
    const FlatHost* host = RunningFlatHost();
    return Guarded(-1, [&] { return host && argc > 0 && argv ? host->Commands().Run(argc, Texts(argv)) : -1; });
}

bool teskara_ask(const char* object, int argc, const char* const* argv, teskara_value* result)
{
    if (!result)
        return false;
    *result = {};
    const FlatHost* host = RunningFlatHost();
    return Guarded(false, [&] {
        _MvTypeVar found;
        if (!host || !host->Commands().Ask(TextOrEmpty(object), argc, Texts(argv), found))
            return false;
        *result = ToFlat(found);
        return true;
    });
}

// --- Scripts

const char* teskara_atom_body(const char* source, uint32_t* length)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::string_view text = TextOrEmpty(source);
    const std::size_t open = text.find('{');
    const std::size_t close = text.rfind('}');
    std::string_view body = open < close && close != text.npos ? text.substr(open + 1, close - open - 1) : text;
    body.remove_prefix(std::min(body.find_first_not_of(blanks), body.size()));
    body = body.substr(0, body.find_last_not_of(blanks) + 1);
    if (length)
        *length = static_cast<u32>(body.size());
    return body.data();
}

teskara_script* teskara_new_script(const char* name, bool (*is_inside_atom)(void* user), void* user)
{
    return Guarded(static_cast<teskara_script*>(nullptr),
        [&] { return new teskara_script(TextOrEmpty(name), is_inside_atom, user); });
}

void teskara_free_script(teskara_script* script)
{
    delete script;
}

const char* teskara_user_input(const teskara_script* script)
{
    return script ? script->GetUserInput() : nullptr;
}
