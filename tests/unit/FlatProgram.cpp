#include "tests/unit/FlatProgram.h"

#include <cstdio>
#include <cstring>
#include <iterator>
#include <locale>
#include <sstream>
#include <utility>

namespace {

std::ostream& operator<<(std::ostream& out, const teskara_rect& rect)
{
    return out << rect.left << ',' << rect.top << ',' << rect.right << ',' << rect.bottom;
}

std::ostream& operator<<(std::ostream& out, const teskara_draw_record& record)
{
    return out << '{' << record.flags << ' ' << record.destination << ' ' << record.source << ' ' << record.texture
               << ' ' << int{record.alpha} << ' ' << int{record.orientation} << ' ' << std::hex << record.color
               << std::dec << '}';
}

std::ostream& operator<<(std::ostream& out, const teskara_value* value)
{
    if (!value)
        return out << "nothing";
    return out << '<' << teskara_type_name(value->type) << ' ' << value->as.integer32 << '>';
}

// The texts of a call, as one argument of Write.
struct Words {
    int Count;
    const char* const* Texts;
};

std::ostream& operator<<(std::ostream& out, const Words& words)
{
    out << '[';
    for (int index = 0; index < words.Count; ++index)
        out << (index > 0 ? "," : "") << words.Texts[index];
    return out << ']';
}

template <class... Arguments> void Write(void* user, const char* operation, const Arguments&... arguments)
{
    std::ostringstream line;
    line.imbue(std::locale::classic());
    line << std::boolalpha << operation;
    [[maybe_unused]] const auto add = [&line](const auto& argument) { line << ' ' << argument; };
    (add(arguments), ...);
    static_cast<FlatProgram*>(user)->Calls += line.str() + '\n';
}

bool Answer(char* output, uint32_t size, const char* text)
{
    std::snprintf(output, size, "%s", text);
    return true;
}

void AddDrawing(teskara_host& host)
{
    host.draw_rect = [](void* user, const teskara_rect* rect, uint32_t argb) { Write(user, "draw_rect", *rect, argb); };
    host.draw_texture = [](void* user, const teskara_draw_record* record) {
        Write(user, "draw_texture", *record);
        return true;
    };
    host.draw_textures = [](void* user, uint32_t count, const teskara_draw_record* records) {
        Write(user, "draw_textures", count, records[0], records[count - 1]);
        return true;
    };
    host.draw_line = [](void* user, const teskara_draw_record* record, uint32_t width) {
        Write(user, "draw_line", *record, width);
        return true;
    };
    host.draw_text = [](void* user, uint32_t font, const char* text, const teskara_rect* box, uint32_t argb,
                         uint32_t format) {
        Write(user, "draw_text", font, text, *box, argb, format);
        return uint32_t{41};
    };
    host.measure_text = [](void* user, uint32_t font, const char* text) {
        Write(user, "measure_text", font, text);
        return static_cast<int32_t>(7 * std::strlen(text));
    };
    host.glyph_metrics = [](void* user, uint32_t font, uint32_t first, uint32_t last, float* before, float* glyph,
                             float* behind) {
        Write(user, "glyph_metrics", font, first, last);
        *before = 1;
        *glyph = 5;
        *behind = 2;
        return true;
    };
    host.display_size = [](void* user, int32_t* width, int32_t* height) {
        Write(user, "display_size");
        *width = 320;
        *height = 200;
        return true;
    };
}

void AddResources(teskara_host& host)
{
    host.create_font = [](void* user, const char* name, uint8_t height, bool fixed, bool bold) {
        Write(user, "create_font", name, int{height}, fixed, bold);
        return uint32_t{11};
    };
    host.release_font = [](void* user, uint32_t font) { Write(user, "release_font", font); };
    host.load_texture = [](void* user, const char* path, uint32_t key) {
        Write(user, "load_texture", path, key);
        return uint32_t{12};
    };
    host.texture_size = [](void* user, uint32_t texture, int32_t* width, int32_t* height) {
        Write(user, "texture_size", texture);
        *width = 64;
        *height = 32;
        return true;
    };
    host.release_texture = [](void* user, uint32_t texture) { Write(user, "release_texture", texture); };
    host.locate_file = [](void* user, const char* name, char* path, uint32_t size) {
        Write(user, "locate_file", name, size);
        return Answer(path, size, "/where/it/lies.xml");
    };
    host.find_resource = [](void* user, const char* name, char* path, uint32_t size) {
        Write(user, "find_resource", name, size);
        return Answer(path, size, "/where/it/lies.png");
    };
    host.print_line = [](void* user, const char* line) { Write(user, "print_line", line); };
}

void AddScripts(teskara_host& host)
{
    host.compile_atom = [](void* user, const char* source, uint32_t length) {
        Write(user, "compile_atom", source, length);
        return uint32_t{21};
    };
    host.release_atom = [](void* user, uint32_t atom) { Write(user, "release_atom", atom); };
    host.execute_atom = [](void* user, uint32_t atom, int argc, const char* const* argv, const teskara_value* self) {
        Write(user, "execute_atom", atom, Words{argc, argv}, self);
        return 22;
    };
    host.execute_atom_for_text = [](void* user, uint32_t atom, int argc, const char* const* argv,
                                     const teskara_value* self, char* output, uint32_t size) {
        Write(user, "execute_atom_for_text", atom, Words{argc, argv}, self, size);
        Answer(output, size, "answer");
        return 23;
    };
    host.find_atom = [](void* user, const char* name) {
        Write(user, "find_atom", name);
        return uint32_t{24};
    };
    host.current_script = [](void* user) {
        Write(user, "current_script");
        return static_cast<FlatProgram*>(user)->Script;
    };
}

void AddSequences(teskara_host& host)
{
    host.parse_data = [](void* user, const char* text, char* output, uint32_t size) {
        Write(user, "parse_data", text, size);
        Answer(output, size, "expanded");
        return 31;
    };
    host.prepare_sequence = [](void* user, const char* text, bool keep) {
        Write(user, "prepare_sequence", text, keep);
        return uint32_t{32};
    };
    host.sequence_source = [](void* user, uint32_t sequence, char* output, uint32_t size) {
        Write(user, "sequence_source", sequence, size);
        return Answer(output, size, "as it was");
    };
    host.sequence_text = [](void* user, uint32_t sequence, char* output, uint32_t size) {
        Write(user, "sequence_text", sequence, size);
        return Answer(output, size, "as it is");
    };
    host.release_sequence = [](void* user, uint32_t sequence) { Write(user, "release_sequence", sequence); };
    host.sequence_value = [](void* user, uint32_t sequence, teskara_value* result) {
        Write(user, "sequence_value", sequence);
        result->type = static_cast<FlatProgram*>(user)->Type;
        result->as.integer32 = 33;
        return true;
    };
    host.calculate = [](void* user, const char* text, double* result) {
        Write(user, "calculate", text);
        *result = 34.5;
        return true;
    };
}

void AddCommands(teskara_host& host)
{
    host.add_command = [](void* user, const char* name) { Write(user, "add_command", name); };
    host.remove_command = [](void* user, const char* name) { Write(user, "remove_command", name); };
    host.execute_command = [](void* user, const char* line) {
        Write(user, "execute_command", line);
        return 41;
    };
    host.complete_command = [](void* user, const char* line, bool backwards) {
        Write(user, "complete_command", line, backwards);
        return "completed";
    };
    host.add_object = [](void* user, const char* name) { Write(user, "add_object", name); };
    host.remove_object = [](void* user, const char* name) { Write(user, "remove_object", name); };
    host.add_type = [](void* user, teskara_type* type) { Write(user, "add_type", teskara_type_name(type)); };
    host.remove_type = [](void* user, teskara_type* type) { Write(user, "remove_type", teskara_type_name(type)); };
    host.find_type = [](void* user, const char* name) {
        Write(user, "find_type", name);
        return static_cast<FlatProgram*>(user)->Type;
    };
}

template <int Class> uint32_t Register(void* user, const char* name)
{
    Write(user, "register", Class, name);
    return Class;
}

template <int Class> void Invalidate(void* user, uint32_t id, void* object)
{
    Write(user, "invalidate", Class, id, object != nullptr);
}

void AddReferences(teskara_host& host)
{
    host.register_class = Register<51>;
    host.register_transient_class = Register<52>;
    host.register_container_class = Register<53>;
    host.invalidate_object = Invalidate<51>;
    host.invalidate_transient = Invalidate<52>;
    host.invalidate_container = Invalidate<53>;
    host.set_type_class = [](void* user, teskara_type* type, uint32_t id) {
        Write(user, "set_type_class", teskara_type_name(type), id);
    };
    host.parse_value = [](void* user, const char* text, teskara_value* result, uint32_t flag) {
        Write(user, "parse_value", text, flag);
        result->type = static_cast<FlatProgram*>(user)->Type;
        result->as.integer32 = 54;
        return true;
    };
    host.create_query = [](void* user, teskara_type* type, const char* text, uint32_t extra) {
        Write(user, "create_query", teskara_type_name(type), text, extra);
        return uint32_t{55};
    };
    host.evaluate_query = [](void* user, uint32_t query, const teskara_value* object, bool* matches) {
        Write(user, "evaluate_query", query, object);
        *matches = true;
        return true;
    };
    host.free_query = [](void* user, uint32_t query) { Write(user, "free_query", query); };
}

void AddTheRest(teskara_host& host)
{
    host.save_place = [](void* user, const char* element, int32_t x, int32_t y, uint32_t width, uint32_t height) {
        Write(user, "save_place", element, x, y, width, height);
    };
    host.load_place = [](void* user, const char* element, int32_t* x, int32_t* y, uint32_t* width, uint32_t* height) {
        Write(user, "load_place", element, *x, *y, *width, *height);
        *x = 61;
        *width = 62;
        return true;
    };
    host.key_name = [](void* user, uint32_t key, char* output, uint32_t size) {
        Write(user, "key_name", key, size);
        return Answer(output, size, "Enter");
    };
    host.open_clipboard = [](void* user) {
        Write(user, "open_clipboard");
        return true;
    };
    host.output_console = [](void* user, char* output, uint32_t size) {
        Write(user, "output_console", size);
        Answer(output, size, "Log");
    };
    host.select_console = [](void* user, const char* name) { Write(user, "select_console", name); };
}

} // namespace

std::string FlatProgram::TakeCalls()
{
    return std::exchange(Calls, {});
}

teskara_host FlatProgram::Host()
{
    teskara_host host = {};
    host.size = sizeof(teskara_host);
    host.version = TESKARA_TABLE_VERSION;
    host.user = this;
    AddDrawing(host);
    AddResources(host);
    AddScripts(host);
    AddSequences(host);
    AddCommands(host);
    AddReferences(host);
    AddTheRest(host);
    return host;
}

teskara_platform FlatProgram::Platform()
{
    teskara_platform platform = {};
    platform.size = sizeof(teskara_platform);
    platform.version = TESKARA_TABLE_VERSION;
    platform.user = this;
    platform.tick_count = [](void* user) {
        Write(user, "tick_count");
        return uint32_t{71};
    };
    platform.is_key_toggled = [](void* user, uint32_t key) {
        Write(user, "is_key_toggled", key);
        return true;
    };
    platform.to_ascii = [](void* user, uint32_t key, const uint8_t* state, char* characters) {
        Write(user, "to_ascii", key, int{state[255]});
        std::memcpy(characters, "ab", 2);
        return 2;
    };
    platform.ansi_to_wide = [](void* user, uint8_t character) {
        Write(user, "ansi_to_wide", int{character});
        return uint16_t{0x20ac};
    };
    platform.open_file = [](void* user, const char* path) {
        Write(user, "open_file", path);
        return static_cast<FILE*>(nullptr);
    };
    platform.file_exists = [](void* user, const char* path) {
        Write(user, "file_exists", path);
        return true;
    };
    platform.write_debug = [](void* user, const char* text) { Write(user, "write_debug", text); };
    platform.range_failure = [](void* user) { Write(user, "range_failure"); };
    platform.open_clipboard = [](void* user) {
        Write(user, "open_clipboard");
        return true;
    };
    platform.close_clipboard = [](void* user) { Write(user, "close_clipboard"); };
    platform.empty_clipboard = [](void* user) {
        Write(user, "empty_clipboard");
        return true;
    };
    platform.set_clipboard_text = [](void* user, const char* text) {
        Write(user, "set_clipboard_text", text);
        return true;
    };
    platform.clipboard_text = [](void* user, char* output, size_t size) {
        Write(user, "clipboard_text", size);
        const std::string& text = static_cast<FlatProgram*>(user)->Clipboard;
        std::snprintf(output, size, "%s", text.c_str());
        return static_cast<int64_t>(text.size());
    };
    return platform;
}

teskara_type_operations FlatProgram::TypeOperations()
{
    teskara_type_operations operations = {};
    operations.size = sizeof(teskara_type_operations);
    operations.version = TESKARA_TABLE_VERSION;
    operations.user = this;
    operations.text = [](void* user, const teskara_value* value, char* output, uint32_t size) {
        Write(user, "text", value, size);
        return Answer(output, size, "a text");
    };
    operations.get = [](void* user, const teskara_value* value, const char* member, int argc, const char* const* argv,
                         teskara_value* result) {
        Write(user, "get", value, member, Words{argc, argv});
        *result = *value;
        result->as.integer32 += 1;
        return std::strcmp(member, "Next") == 0 ? 7 : -7;
    };
    operations.call = [](void* user, const teskara_value* value, const char* method, int argc,
                          const char* const* argv) {
        Write(user, "call", value, method, Words{argc, argv});
        return int{TESKARA_NO_VALUE};
    };
    operations.index = [](void* user, const teskara_value* value, int argc, const char* const* argv,
                           teskara_value* result) {
        Write(user, "index", value, Words{argc, argv});
        *result = *value;
        return int{TESKARA_DONE};
    };
    return operations;
}
