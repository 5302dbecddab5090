#pragma once

// The toolkit for programs in C, and in every language that can call C: what a program lends the toolkit, and what it
// asks of it, as plain functions. (A program in C++ may use core/HostInterface.h and core/CUIManager.h instead.)
//
// The program fills a table of operations with what it can do. What it leaves null the toolkit does by itself, as the
// word "Default" says at each operation; a table with no operation at all still loads interfaces and routes input. With
// draw_rect, draw_text, measure_text and display_size windows can be seen, with compile_atom and execute_atom they do
// something.
//
//     static const teskara_host host = {
//         .size = sizeof(teskara_host), .version = TESKARA_TABLE_VERSION, .draw_rect = draw_rect, ...
//     };
//     if (teskara_start(&host) != TESKARA_OK || !teskara_load("hello.xml", true, NULL))
//         return 1;
//     while (running) {
//         teskara_mouse_move(x, y), ...
//         teskara_render();
//     }
//     teskara_stop();
//
// One toolkit runs in a process, and all functions are called on one thread. Texts are UTF-8 and end in a zero byte.
// They are borrowed for the length of the call in both directions, unless a comment says otherwise. Where an operation
// writes a text, size tells how many bytes the buffer has, the end included; what does not fit is cut. Ids are numbers
// of whoever gives them out, 0 means none. Colours are ARGB, alpha in the high byte. Lengths are pixels, times are
// milliseconds.
//
// An operation gets the table's user pointer first. It must return: no exception, no longjmp and no panic may pass
// through the toolkit. No function here throws; each answers with false, 0 or null when it failed, also for want of
// memory. Functions may be called before teskara_start and after teskara_stop, and then do nothing.

#include "teskara/core/Export.h"

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#ifdef __cplusplus
extern "C" {
#endif

// --- Tables and answers

// Every table of operations begins with its size in bytes, as the program was compiled, this version, and a pointer of
// the program's own. Later libraries may have longer tables, whose further operations a shorter table leaves to their
// defaults.
enum { TESKARA_TABLE_VERSION = 1 };

// What came of handing over a table.
typedef enum teskara_answer {
    TESKARA_OK = 0,
    TESKARA_NO_TABLE = 1, // the pointer is null
    TESKARA_WRONG_VERSION = 2, // the table is laid out for another library
    TESKARA_WRONG_SIZE = 3, // too small to be a table, or not whole operations
    TESKARA_TOO_NEW = 4, // the table has operations that this library does not know
    TESKARA_RUNNING = 5, // the toolkit has a host already
    TESKARA_STOPPED = 6, // the toolkit was stopped, and stays so until the library is loaded anew
    TESKARA_NO_MEMORY = 7 // it is stopped again
} teskara_answer;

// The answer in words, for a person. Never null; the text lasts as long as the library.
TESKARA_EXPORT const char* teskara_answer_text(teskara_answer answer);

// --- Values

// A rectangle on the screen. The far edges are as they are, also when they lie before the near ones.
typedef struct teskara_rect {
    int32_t left, top, right, bottom;
} teskara_rect;

// What the flags of a draw record say. Others are the interface's own and may be left alone.
enum {
    TESKARA_DRAW_SOURCE = 1, // source is set; else the whole image is meant
    TESKARA_DRAW_ALPHA = 2, // alpha is set
    TESKARA_DRAW_COLOR = 4, // color is set
    TESKARA_DRAW_TRIANGLE = 16 // the image is to be cut to a triangle
};

// One image on the screen, or one line. 48 bytes without gaps.
typedef struct teskara_draw_record {
    uint32_t flags; // TESKARA_DRAW_SOURCE and its neighbours
    teskara_rect destination; // for a line its two points: from left, top to right, bottom
    teskara_rect source; // in pixels of the image
    uint32_t texture; // from load_texture; 1 in a line without an image
    uint8_t alpha; // 0 clear to 255 opaque
    uint8_t orientation; // quarter turns clockwise
    uint8_t padding[2];
    uint32_t color; // the image is multiplied by it; a line without an image has this colour
} teskara_draw_record;

// How a text lies in its box.
enum {
    TESKARA_TEXT_LEFT = 32,
    TESKARA_TEXT_CENTER = 33,
    TESKARA_TEXT_RIGHT = 34,
    TESKARA_TEXT_UNCLIPPED = 256 // added when the box has no width of its own
};

// A type of script values. The toolkit's own last from teskara_start to teskara_stop.
typedef struct teskara_type teskara_type;

// A value with its type. A null type means that there is no value. Which field holds it follows from the type's name:
// "string" text, "int" integer32, "int64" integer64, "uint" unsigned32, "float" real, "bool" truth, "point3f" object,
// three floats, "filepath" object, UTF-16 with an end. Of all other types it is object, whose meaning only the type
// knows. A text and an object are borrowed, and good until the toolkit is called again.
typedef struct teskara_value {
    teskara_type* type;
    union {
        void* object;
        const char* text;
        uint64_t unsigned64;
        int64_t integer64;
        uint32_t unsigned32;
        int32_t integer32;
        float real;
        bool truth;
        uint64_t words[2];
    } as;
} teskara_value;

// What came of asking a value for something by name.
enum {
    TESKARA_UNKNOWN = -1, // its type does not know the name
    TESKARA_NO_VALUE = 0, // the name is known, and nothing came of it
    TESKARA_DONE = 1
};

// A script that can wait for the answer to a dialog; see teskara_new_script.
typedef struct teskara_script teskara_script;

// --- What the program lends the toolkit
//
// Operations marked "May call the toolkit" may use every function of this header, teskara_stop included, and may run
// scripts. All others return without calling it.

typedef struct teskara_host {
    uint32_t size; // sizeof(teskara_host)
    uint32_t version; // TESKARA_TABLE_VERSION
    void* user; // goes to each operation

    // --- Drawing, from inside teskara_render. What lies later lies on top.

    // Fills a rectangle. argb needs no further alpha. Default: nothing is drawn.
    void (*draw_rect)(void* user, const teskara_rect* rect, uint32_t argb);

    // Draws one image. Nothing follows from the result. Default: nothing is drawn.
    bool (*draw_texture)(void* user, const teskara_draw_record* record);

    // Draws count images in order. Default: draw_texture for each.
    bool (*draw_textures)(void* user, uint32_t count, const teskara_draw_record* records);

    // Draws a line of that width. Default: nothing is drawn.
    bool (*draw_line)(void* user, const teskara_draw_record* record, uint32_t width);

    // Draws one line of text into a box, at TESKARA_TEXT_LEFT or its neighbours, and returns the width drawn. argb needs
    // no further alpha. Default: nothing is drawn, 0.
    uint32_t (*draw_text)(
        void* user, uint32_t font, const char* text, const teskara_rect* box, uint32_t argb, uint32_t format);

    // Width of a text. Default: 12 for every text.
    int32_t (*measure_text)(void* user, uint32_t font, const char* text);

    // For each character from first to last, as UTF-16 units: the space before it, its own width, the space behind it.
    // Each of the three arrays has last - first + 1 places. False: 12 for each. Default: measure_text tells the widths.
    bool (*glyph_metrics)(
        void* user, uint32_t font, uint32_t first, uint32_t last, float* before, float* glyph, float* behind);

    // Size of the surface; asked in every frame. False or default: the screen keeps its size.
    bool (*display_size)(void* user, int32_t* width, int32_t* height);

    // --- Fonts and images, which the program makes. After teskara_stop none is given back.

    // Makes a font of that height; an empty name is the program's choice. 0: texts in it are not drawn, and the program
    // is asked again at the next use. Default: 1, one font for all.
    uint32_t (*create_font)(void* user, const char* name, uint8_t height, bool fixed, bool bold);
    void (*release_font)(void* user, uint32_t font);

    // Loads an image. path: a file, or the program's own name; empty for a white image. color_key: the colour to treat
    // as clear, 0 for none. 0: the image is not drawn, and the program is asked again at the next use. Default: 0.
    uint32_t (*load_texture)(void* user, const char* path, uint32_t color_key);
    bool (*texture_size)(void* user, uint32_t texture, int32_t* width, int32_t* height); // default: not known
    void (*release_texture)(void* user, uint32_t texture);

    // --- Files

    // Finds an interface file by its name and writes its path. False: the load fails, with a line. Default: the name is
    // the path.
    bool (*locate_file)(void* user, const char* name, char* path, uint32_t size);

    // The same for an image that does not lie beside its interface file. False or default: the name is used as it is.
    bool (*find_resource)(void* user, const char* name, char* path, uint32_t size);

    // --- Lines for a person: the toolkit's only way to say that something went wrong

    // line has no line end. May call the toolkit. Default: write_debug of the platform.
    void (*print_line)(void* user, const char* line);

    // --- Scripts: the pieces of script in interfaces, here called atoms, are compiled once and run often

    // source: "atom NAME(ARGUMENTS)\n{\nBODY\n}\n", of which teskara_atom_body finds the body. length: bytes without the
    // end. 0: the script is left out, with a line. Default: 0.
    uint32_t (*compile_atom)(void* user, const char* source, uint32_t length);

    // The atom may be running; then it goes when it returns.
    void (*release_atom)(void* user, uint32_t atom);

    // Runs an atom. argv: its arguments. self: the script's "this", null if it has none. May call the toolkit.
    // Default: nothing runs.
    int (*execute_atom)(void* user, uint32_t atom, int argc, const char* const* argv, const teskara_value* self);

    // The same for an atom that answers with a text. Default: an empty text.
    int (*execute_atom_for_text)(void* user, uint32_t atom, int argc, const char* const* argv,
        const teskara_value* self, char* output, uint32_t size);

    // A named atom of the program's own; 0 if there is none. It stays the program's. Default: 0.
    uint32_t (*find_atom)(void* user, const char* name);

    // --- Data sequences: parts of texts, ${...}, that are evaluated at each use

    // Expands the sequences in a text. text and output may be one buffer. The result is not looked at. May call the
    // toolkit. Default: the text stays as it is.
    int (*parse_data)(void* user, const char* text, char* output, uint32_t size);

    // Parses a text once, for the next four. keep: sequence_source will be asked for. 0: the text shows nothing.
    // Default: the toolkit keeps the text and parse_data expands it at each use; the next four are then not called.
    uint32_t (*prepare_sequence)(void* user, const char* text, bool keep);
    bool (*sequence_source)(void* user, uint32_t sequence, char* output, uint32_t size); // the text as it was
    bool (*sequence_text)(void* user, uint32_t sequence, char* output, uint32_t size); // may call the toolkit
    void (*release_sequence)(void* user, uint32_t sequence);

    // The value of a text that is one sequence; false: it has none. May call the toolkit.
    bool (*sequence_value)(void* user, uint32_t sequence, teskara_value* result);

    // Evaluates a numeric expression. False: it is none. May call the toolkit. Default: decimal numbers are read.
    bool (*calculate)(void* user, const char* text, double* result);

    // --- Commands, and the objects that scripts begin with. The toolkit keeps lists of its own for teskara_run and
    // teskara_ask; these are for a program whose users see one list of all.

    void (*add_command)(void* user, const char* name); // teskara_run runs it
    void (*remove_command)(void* user, const char* name);

    // Runs a command line and returns what the command returned; -1 if there is none of that name. May call the toolkit.
    // Default: teskara_run.
    int (*execute_command)(void* user, const char* line);

    // Completes a command line. backwards: the user looks for the completion before. The result is borrowed until the
    // next call; null to leave the line as it is. May call the toolkit. Default: null.
    const char* (*complete_command)(void* user, const char* line, bool backwards);

    void (*add_object)(void* user, const char* name); // such as "UIElement"; teskara_ask asks it
    void (*remove_object)(void* user, const char* name);

    // --- Types of values

    void (*add_type)(void* user, teskara_type* type); // one of the toolkit's
    void (*remove_type)(void* user, teskara_type* type); // afterwards it must not be touched

    // A type of the program's own: "string", "int", "int64", "uint", "bool", "float", "point3f" or "filepath", made by
    // teskara_new_type. Null: members of that type have no value. Default: types that know the texts of their values.
    teskara_type* (*find_type)(void* user, const char* name);

    // --- References to the toolkit's objects, for a program whose scripts keep them. Default: nothing is kept.

    // Names a class of objects: all of the toolkit's, those that last for one evaluation, those of containers.
    uint32_t (*register_class)(void* user, const char* name);
    uint32_t (*register_transient_class)(void* user, const char* name);
    uint32_t (*register_container_class)(void* user, const char* name);

    // The object is going: drop each reference to it.
    void (*invalidate_object)(void* user, uint32_t class_id, void* object);
    void (*invalidate_transient)(void* user, uint32_t class_id, void* object);
    void (*invalidate_container)(void* user, uint32_t class_id, void* object);

    // The objects of a type are of that class.
    void (*set_type_class)(void* user, teskara_type* type, uint32_t class_id);

    // Evaluates a reference such as "UIElement[Main].Width". flag is the toolkit's own. May call the toolkit. False or
    // default: it has no value.
    bool (*parse_value)(void* user, const char* text, teskara_value* result, uint32_t flag);

    // Compiles a question to objects of a type, asks it of one, frees it. The first two may call the toolkit. 0: it does
    // not compile, and nothing is searched. Default: 0.
    uint32_t (*create_query)(void* user, teskara_type* type, const char* text, uint32_t extra);
    bool (*evaluate_query)(void* user, uint32_t query, const teskara_value* object, bool* matches);
    void (*free_query)(void* user, uint32_t query);

    // The script that runs now, from teskara_new_script. Default: null, none; dialogs then answer nobody.
    teskara_script* (*current_script)(void* user);

    // --- Places of elements that want theirs kept, by full name. Default: none is kept.

    void (*save_place)(void* user, const char* element, int32_t x, int32_t y, uint32_t width, uint32_t height);

    // False: there is none, and what the four held stays.
    bool (*load_place)(void* user, const char* element, int32_t* x, int32_t* y, uint32_t* width, uint32_t* height);

    // --- Keyboard, clipboard, console

    // Name of a key for scripts. False or default: scripts for that key do not run.
    bool (*key_name)(void* user, uint32_t key, char* output, uint32_t size);

    // Opens the clipboard for copying; close_clipboard of the platform closes it. Default: the platform's open_clipboard.
    bool (*open_clipboard)(void* user);

    // Name of the console that receives output. Default: the one that was selected last.
    void (*output_console)(void* user, char* output, uint32_t size);
    void (*select_console)(void* user, const char* name); // may call the toolkit
} teskara_host;

// --- What the program lends in place of the operating system. Default of each operation: the system's own. None may call
// the toolkit. Keys are Windows virtual-key codes.

typedef struct teskara_platform {
    uint32_t size; // sizeof(teskara_platform)
    uint32_t version; // TESKARA_TABLE_VERSION
    void* user; // goes to each operation

    uint32_t (*tick_count)(void* user); // of a clock that never goes back; wraps after 2^32
    bool (*is_key_toggled)(void* user, uint32_t key); // 20 Caps Lock, 144 Num Lock

    // Writes at most two bytes of the ANSI code page and returns how many; 0 if the key gives no character. state: 256
    // bytes, 0x80 held, 1 toggled.
    int (*to_ascii)(void* user, uint32_t key, const uint8_t* state, char* characters);
    uint16_t (*ansi_to_wide)(void* user, uint8_t character); // one of those bytes as a UTF-16 unit

    // Opens a regular file for reading bytes. The toolkit closes it, through the same C library. Null: it cannot be opened.
    FILE* (*open_file)(void* user, const char* path);
    bool (*file_exists)(void* user, const char* path);

    // For a developer; text brings its own line end. The system's: standard error, on Windows the debugger.
    void (*write_debug)(void* user, const char* text);

    // A text would have passed a bound. The system's own ends the process; if this returns, the text is cut.
    void (*range_failure)(void* user);

    // A clipboard is opened first and closed last. Texts are bytes, as they came.
    bool (*open_clipboard)(void* user);
    void (*close_clipboard)(void* user);
    bool (*empty_clipboard)(void* user);
    bool (*set_clipboard_text)(void* user, const char* text);

    // Writes what fits into size bytes, the end included, and returns the length of the whole text; -1 if there is none.
    int64_t (*clipboard_text)(void* user, char* output, size_t size);
} teskara_platform;

// The table is copied; user stays borrowed until the next call. Null: the system's own again. May be called at any time
// but from inside these operations.
TESKARA_EXPORT teskara_answer teskara_set_platform(const teskara_platform* platform);

// --- Types of the program's own, for find_type and for values of its own

typedef struct teskara_type_operations {
    uint32_t size; // sizeof(teskara_type_operations)
    uint32_t version; // TESKARA_TABLE_VERSION
    void* user; // goes to each operation

    // The text of a value. Default: it has none.
    bool (*text)(void* user, const teskara_value* value, char* output, uint32_t size);

    // A member, a method, an index of a value: TESKARA_DONE, TESKARA_NO_VALUE, TESKARA_UNKNOWN. May call the toolkit.
    // Default: TESKARA_UNKNOWN.
    int (*get)(void* user, const teskara_value* value, const char* member, int argc, const char* const* argv,
        teskara_value* result);
    int (*call)(void* user, const teskara_value* value, const char* method, int argc, const char* const* argv);
    int (*index)(void* user, const teskara_value* value, int argc, const char* const* argv, teskara_value* result);
} teskara_type_operations;

// The table is copied. Of the name 31 bytes are kept. The program owns the type and frees it when the toolkit is
// stopped. Null: the table is not one that teskara_start would take, or no memory.
TESKARA_EXPORT teskara_type* teskara_new_type(const char* name, const teskara_type_operations* operations);

// Only for types from teskara_new_type, and null.
TESKARA_EXPORT void teskara_free_type(teskara_type* type);

// --- Life and frames

// Of the toolkit's interface to C++, which counts apart from that of the tables here.
TESKARA_EXPORT uint32_t teskara_version(void);

// The table is copied; what it points to is borrowed until teskara_stop. The toolkit is started once: after
// teskara_stop it stays stopped.
TESKARA_EXPORT teskara_answer teskara_start(const teskara_host* host);

// Deletes all elements and lets go of the table; must be called before what the table points to ends.
TESKARA_EXPORT void teskara_stop(void);

// Draws one frame. A call from inside a frame does nothing.
TESKARA_EXPORT void teskara_render(void);

// Deletes all elements. Templates and skins stay.
TESKARA_EXPORT void teskara_reset(void);

// --- Interface files

// Loads a file's elements, templates and skins. replace: elements of the same names go first. skin: name of the skin for
// the load, null or unknown for none. False: nothing was applied, and a line says why.
TESKARA_EXPORT bool teskara_load(const char* file, bool replace, const char* skin);

// The same below a parent, 0 for the screen; with element only the one of that name, as new_name. Both may be null.
TESKARA_EXPORT bool teskara_load_into(
    uint32_t parent, const char* file, const char* element, const char* new_name, bool replace, const char* skin);

// Deletes what teskara_load made of the file. False: it cannot be read, and a line says why.
TESKARA_EXPORT bool teskara_unload(const char* file);

// Stores a template, given as markup with one Template element. False: it is not that.
TESKARA_EXPORT bool teskara_add_template(const char* name, const char* markup);
TESKARA_EXPORT void teskara_remove_template(const char* name);
TESKARA_EXPORT void teskara_remove_skin(const char* name);

// --- Input, as it arrives. True: the toolkit took the event, and the program keeps it from what lies underneath. Keys are
// Windows virtual-key codes; a held key comes again and again.

TESKARA_EXPORT bool teskara_mouse_move(int32_t x, int32_t y);
TESKARA_EXPORT bool teskara_left_down(void);
TESKARA_EXPORT bool teskara_left_up(void);
TESKARA_EXPORT bool teskara_right_down(void);
TESKARA_EXPORT bool teskara_right_up(void);
TESKARA_EXPORT bool teskara_mouse_wheel(int32_t offset); // 120 for each notch away from the user
TESKARA_EXPORT bool teskara_key_down(uint32_t key);
TESKARA_EXPORT bool teskara_key_up(uint32_t key);

// For a program that lost track of the mouse: no button is down, and the mouse is over nothing.
TESKARA_EXPORT void teskara_forget_mouse(void);

// At first 250, 1000, and 250 before the first repeat, 50 before each further one.
TESKARA_EXPORT void teskara_set_double_click_time(uint32_t most);
TESKARA_EXPORT void teskara_set_tooltip_delay(uint32_t delay);
TESKARA_EXPORT void teskara_set_key_repeat(uint32_t delay, uint32_t interval);

// --- Elements. A full name is NAME@PARENT@..., in any case. An id is never given out again: a stale one names nothing.

TESKARA_EXPORT uint32_t teskara_find(const char* name); // 0: there is none

// Makes an element of a kind such as "frame"; parent 0 is the screen. 0: it was not made.
TESKARA_EXPORT uint32_t teskara_create(uint32_t parent, const char* kind, const char* name);
TESKARA_EXPORT void teskara_delete(uint32_t element);

// False: there is no such element.
TESKARA_EXPORT bool teskara_full_name(uint32_t element, char* output, uint32_t size);
TESKARA_EXPORT bool teskara_show(const char* name, bool show);
TESKARA_EXPORT bool teskara_toggle(const char* name);

// The element that mouse events go to first, and the one with the keyboard. 0 takes the keyboard away; an element that
// cannot be seen does not get it.
TESKARA_EXPORT uint32_t teskara_mouse_over(void);
TESKARA_EXPORT uint32_t teskara_focused(void);
TESKARA_EXPORT void teskara_focus(uint32_t element);

// Named texts that the program and scripts keep with an element. Null: there is none. Good until it is set again.
TESKARA_EXPORT const char* teskara_metadata(uint32_t element, const char* name);
TESKARA_EXPORT void teskara_set_metadata(uint32_t element, const char* name, const char* value);

// The element as a value, whose members and methods can be asked for. False: there is no such element.
TESKARA_EXPORT bool teskara_element(uint32_t element, teskara_value* result);

// --- Values, asked as scripts ask them: docs/reference lists members and methods. argv are texts. Asking runs scripts at
// times, and an element may be gone afterwards: keep its id, not its value.

// TESKARA_DONE, TESKARA_NO_VALUE or TESKARA_UNKNOWN; result holds a value only if done.
TESKARA_EXPORT int teskara_get(
    const teskara_value* value, const char* member, int argc, const char* const* argv, teskara_value* result);
TESKARA_EXPORT int teskara_call(const teskara_value* value, const char* method, int argc, const char* const* argv);
TESKARA_EXPORT int teskara_index(const teskara_value* value, int argc, const char* const* argv, teskara_value* result);
TESKARA_EXPORT bool teskara_text(const teskara_value* value, char* output, uint32_t size); // false: it has none

// Name of a type, and the type whose members it has too; null if there is none.
TESKARA_EXPORT const char* teskara_type_name(const teskara_type* type);
TESKARA_EXPORT teskara_type* teskara_type_base(const teskara_type* type);

// --- The toolkit's commands and objects

// Runs a line of words with blanks between them; a word in quotes may hold blanks. The result is the command's; -1 if
// there is no such command.
TESKARA_EXPORT int teskara_run(const char* line);

// The same with the words apart; argv[0] is the command.
TESKARA_EXPORT int teskara_run_words(int argc, const char* const* argv);

// An object such as "UIElement", with its index. False: there is no value.
TESKARA_EXPORT bool teskara_ask(const char* object, int argc, const char* const* argv, teskara_value* result);

// --- Scripts

// The body of an atom's source, without the blanks around it. length: bytes of it. It lies within source.
TESKARA_EXPORT const char* teskara_atom_body(const char* source, uint32_t* length);

// Made by the program for each script that runs; current_script answers with it. is_inside_atom: whether the script
// cannot wait now; null for never. Null: no memory.
TESKARA_EXPORT teskara_script* teskara_new_script(const char* name, bool (*is_inside_atom)(void* user), void* user);
TESKARA_EXPORT void teskara_free_script(teskara_script* script); // or null

// The answer that the user last gave to one of the script's dialogs; null if there is none. Good until the next answer.
TESKARA_EXPORT const char* teskara_user_input(const teskara_script* script);

#ifdef __cplusplus
}
#endif
