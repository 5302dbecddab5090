#include "teskara/flat/FlatHost.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/platform/Platform.h"
#include "teskara/flat/FlatValue.h"

#include <cstdarg>
#include <cstring>
#include <string_view>

namespace {

constexpr u32 PathBytes = 4096; // room in the path of an image
constexpr u32 LocatedBytes = 512; // and of an interface file
constexpr std::size_t LineBytes = 8192;

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view NumberBytes = "0123456789+-.eE";

// The value that an operation takes by pointer; null if there is none.
struct FlatSelf {
    explicit FlatSelf(const _MvTypeVar* self) : Value(self ? ToFlat(*self) : teskara_value()), HasValue(self) { }
    const teskara_value* Get() const { return HasValue ? &Value : nullptr; }

    teskara_value Value;
    bool HasValue;
};

} // namespace

// --- Scripts, commands and objects

HostScript* FlatHost::GetCurrentScript()
{
    return CallFlat(m_Table, m_Table.current_script, static_cast<teskara_script*>(nullptr));
}

void FlatHost::AddCommand(const char* name, CommandHandler handler, int, int)
{
    m_Commands.AddCommand(name, handler);
    CallFlat(m_Table, m_Table.add_command, name);
}

void FlatHost::RemoveCommand(const char* name)
{
    m_Commands.RemoveCommand(name);
    CallFlat(m_Table, m_Table.remove_command, name);
}

int FlatHost::ExecuteCommand(const char* text)
{
    return m_Table.execute_command ? m_Table.execute_command(m_Table.user, text) : m_Commands.Run(text);
}

int FlatHost::DataParse(const char* text, char* output, u32 size)
{
    if (m_Table.parse_data)
        return m_Table.parse_data(m_Table.user, text, output, size);
    CopyBounded(output, size, text);
    return 0;
}

void FlatHost::AddTopLevelObject(const char* name, TopLevelObjectHandler handler)
{
    m_Commands.AddObject(name, handler);
    CallFlat(m_Table, m_Table.add_object, name);
}

void FlatHost::RemoveTopLevelObject(const char* name)
{
    m_Commands.RemoveObject(name);
    CallFlat(m_Table, m_Table.remove_object, name);
}

void FlatHost::AddType(MvTypeDefinition* type)
{
    CallFlat(m_Table, m_Table.add_type, ToFlat(type));
}

void FlatHost::RemoveType(MvTypeDefinition* type)
{
    CallFlat(m_Table, m_Table.remove_type, ToFlat(type));
}

MvTypeDefinition* FlatHost::FindType(const char* name)
{
    return m_Table.find_type ? FromFlat(m_Table.find_type(m_Table.user, name)) : m_Types.Find(name);
}

void FlatHost::InvalidateTransientObject(u32 classID, void* object)
{
    CallFlat(m_Table, m_Table.invalidate_transient, classID, object);
}

u32 FlatHost::RegisterTransientClass(const char* name)
{
    return CallFlat(m_Table, m_Table.register_transient_class, 0u, name);
}

const char* FlatHost::CompleteCommandLine(const char* text, bool shift)
{
    return CallFlat(m_Table, m_Table.complete_command, static_cast<const char*>(nullptr), text, shift);
}

bool FlatHost::Calculate(const char* text, double& result)
{
    if (m_Table.calculate)
        return m_Table.calculate(m_Table.user, text, &result);
    const std::string_view number = text;
    result = ReadDouble(number);
    return number.find_first_of(Digits) != number.npos && number.find_first_not_of(NumberBytes) == number.npos;
}

void FlatHost::PrintLine(const char* format, ...)
{
    char line[LineBytes];
    std::va_list arguments;
    va_start(arguments, format);
    const std::size_t length = FormatBoundedList(line, sizeof line - 1, format, arguments);
    va_end(arguments);
    if (m_Table.print_line)
        return m_Table.print_line(m_Table.user, line);
    CopyBounded(line + length, sizeof line - length, "\n");
    CurrentPlatform().WriteDebugOutput(line);
}

// --- Atoms

u32 FlatHost::CompileAtom(const char* source, u32 length)
{
    return CallFlat(m_Table, m_Table.compile_atom, 0u, source, length);
}

void FlatHost::ReleaseAtom(u32 atom)
{
    CallFlat(m_Table, m_Table.release_atom, atom);
}

int FlatHost::ExecuteAtomForText(u32 atom, int argc, char** argv, _MvTypeVar* self, u32, char* output, u32 size)
{
    if (size > 0)
        *output = 0;
    const FlatSelf value(self);
    return CallFlat(m_Table, m_Table.execute_atom_for_text, 0, atom, argc, argv, value.Get(), output, size);
}

int FlatHost::ExecuteAtom(u32 atom, u32, int argc, char** argv, _MvTypeVar* self)
{
    const FlatSelf value(self);
    return CallFlat(m_Table, m_Table.execute_atom, 0, atom, argc, argv, value.Get());
}

u32 FlatHost::FindAtom(const char* name)
{
    return CallFlat(m_Table, m_Table.find_atom, 0u, name);
}

// --- Data sequences: without prepare_sequence their texts are kept here

u32 FlatHost::PreParseSequence(const char* text, u32 keep)
{
    if (m_Table.prepare_sequence)
        return m_Table.prepare_sequence(m_Table.user, text, keep != 0);
    m_Texts[++m_LastSequence] = text;
    return m_LastSequence;
}

const std::string* FlatHost::KeptText(u32 sequence) const
{
    const auto found = m_Texts.find(sequence);
    return found == m_Texts.end() ? nullptr : &found->second;
}

bool FlatHost::RetrieveOriginalText(u32 sequence, char* buffer, u32 size)
{
    if (m_Table.prepare_sequence)
        return CallFlat(m_Table, m_Table.sequence_source, false, sequence, buffer, size);
    const std::string* text = KeptText(sequence);
    CopyBounded(buffer, size, text ? *text : "");
    return text;
}

bool FlatHost::RetrieveProcessedText(u32 sequence, char* buffer, u32 size)
{
    if (m_Table.prepare_sequence)
        return CallFlat(m_Table, m_Table.sequence_text, false, sequence, buffer, size);
    const std::string* kept = KeptText(sequence);
    if (!kept)
        return false;
    const std::string text = *kept; // what runs may free the sequence
    DataParse(text.c_str(), buffer, size);
    return true;
}

bool FlatHost::RetrieveProcessedResult(u32 sequence, _MvTypeVar& result)
{
    if (!m_Table.prepare_sequence)
        return false;
    return TakeFlat(result,
        [&](teskara_value* value) { return CallFlat(m_Table, m_Table.sequence_value, false, sequence, value); });
}

void FlatHost::FreeSequence(u32 sequence)
{
    if (m_Table.prepare_sequence)
        CallFlat(m_Table, m_Table.release_sequence, sequence);
    else
        m_Texts.erase(sequence);
}

// --- References

u32 FlatHost::RegisterObjectClass(const char* name)
{
    return CallFlat(m_Table, m_Table.register_class, 0u, name);
}

void FlatHost::InvalidateObject(u32 classID, void* object)
{
    CallFlat(m_Table, m_Table.invalidate_object, classID, object);
}

void FlatHost::SetTypeObjectClass(MvTypeDefinition* type, u32 classID)
{
    CallFlat(m_Table, m_Table.set_type_class, ToFlat(type), classID);
}

// --- Files

bool FlatHost::FindResourceFile(const char* name, char* path)
{
    return CallFlat(m_Table, m_Table.find_resource, false, name, path, PathBytes);
}

bool FlatHost::LocateFile(const char* name, char* path)
{
    if (m_Table.locate_file)
        return m_Table.locate_file(m_Table.user, name, path, LocatedBytes);
    return CopyBounded(path, LocatedBytes, name) == std::strlen(name);
}

// --- Clipboard, keyboard, console

bool FlatHost::OpenClipboard()
{
    return m_Table.open_clipboard ? m_Table.open_clipboard(m_Table.user) : CurrentPlatform().OpenClipboard();
}

bool FlatHost::GetKeyName(u32 key, char* buffer, u32 size)
{
    return CallFlat(m_Table, m_Table.key_name, false, key, buffer, size);
}

void FlatHost::GetOutputConsole(char* buffer, u32 size)
{
    CopyBounded(buffer, size, m_OutputConsole);
    CallFlat(m_Table, m_Table.output_console, buffer, size);
}

void FlatHost::SetOutputConsole(const char* name)
{
    m_OutputConsole = name;
    CallFlat(m_Table, m_Table.select_console, name);
}
