#pragma once

// The toolkit's boundary: everything that it needs of the program that loads it.
//
// A program implements one object with the two tables HostInterface and HostDrawSink, and a second object with
// HostScriptInterface, and hands the first to F1 (core/CUIManager.h). The toolkit calls these operations on the one
// thread that drives it. Texts are UTF-8 and end in a zero byte; they are borrowed for the length of the call in both
// directions unless a comment says otherwise. Ids are the host's own numbers, 0 means none. An operation that throws
// counts as one that failed. A host that answers every query but LocateFile with failure can still load interfaces.
//
// Scripts may run, and the toolkit may be called again, from inside ExecuteAtom, ExecuteAtomForText, ExecuteCommand,
// DataParse, RetrieveProcessedText, RetrieveProcessedResult, Calculate, ParseTypedValue, CreateQuery, EvaluateQuery,
// CompleteCommandLine, SaveElementPosition, LoadElementPosition, SetOutputConsole and PrintLine. From the others nothing
// is to be deleted, moved or drawn: but for registrations and InvalidateObject, what they try of that does nothing.

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <cstddef>

class MvTypeDefinition;
class TeskElement;
struct _MvTypeVar;

// A command's body. argv[0] is the command's own name. Returns a number for the host.
using CommandHandler = int (*)(int argc, char** argv);

// A top-level script object. argv holds the index arguments alone. False: there is no value.
using TopLevelObjectHandler = bool (*)(int argc, char** argv, _MvTypeVar& result);

// A running script, as the host knows it. The host owns it. Dialogs that it has open when it ends stay, and answer
// nobody.
class TESKARA_EXPORT HostScript
{
public:
    HostScript() = default;
    virtual ~HostScript();
    HostScript(const HostScript&) = delete;
    HostScript& operator=(const HostScript&) = delete;

    // The script's name. Valid while the script lives.
    virtual const char* GetName() const = 0;

    // Whether the script is at present inside an atom, from which it cannot wait for an answer.
    virtual bool IsInsideAtom() const = 0;

    // The answer that the user last gave to one of the script's dialogs; null if there is none.
    virtual const char* GetUserInput() const = 0;

    // Keeps a copy of the answer. Null clears it.
    virtual void SetUserInput(const char* text) = 0;

    // Ids of the dialogs that the script has open; 0 for none. The toolkit sets them.
    u32 MessageBoxID = 0;
    u32 InputBoxID = 0;
};

// One image on the screen, or one line. A wire record: the host may read it as bytes.
struct TeskDrawRecord {
    u32 Flags = 0; // 1: Source is set, else the whole image. 2: Alpha is set. 4: ColorMask is set. 16: a triangle.
    tagRECT Destination; // screen pixels; for a line, its two points
    tagRECT Source; // pixels of the image
    u32 TextureID = 0; // from LoadTextureResource; 1 in a plain line
    u8 Alpha = 0; // 0 clear to 255 opaque
    u8 Orientation = 0; // quarter turns clockwise
    u8 Padding[2] = {0, 0};
    u32 ColorMask = 0; // ARGB by which the image is multiplied; the colour of a plain line
};
static_assert(sizeof(TeskDrawRecord) == 48);
static_assert(offsetof(TeskDrawRecord, Destination) == 4);
static_assert(offsetof(TeskDrawRecord, Source) == 20);
static_assert(offsetof(TeskDrawRecord, TextureID) == 36);
static_assert(offsetof(TeskDrawRecord, Alpha) == 40);
static_assert(offsetof(TeskDrawRecord, Orientation) == 41);
static_assert(offsetof(TeskDrawRecord, ColorMask) == 44);

// How a text lies in its box: the format of HostDrawSink::DrawText.
enum : u32 {
    DrawTextLeft = 32,
    DrawTextCenter = 33,
    DrawTextRight = 34,
    DrawTextUnclipped = 256, // added when the box has no width of its own
};

class HostScriptInterface
{
public:
    virtual ~HostScriptInterface() = default;

    // Evaluates a reference such as "UIElement[Main].Width" to a typed value. False: it has none.
    virtual bool ParseTypedValue(const char* text, _MvTypeVar& result, u32 flag) = 0;

    // Finds a script type by name; null if there is none. The last two arguments are always 0.
    virtual MvTypeDefinition* FindTypeByName(const char* name, u32 unused1, u32 unused2) = 0;

    // Keeps a copy of text in memory of the host's, at least size bytes, that outlives the evaluation that asked for
    // it. Null on failure: the member then has no value.
    virtual char* MakeTempBuffer(std::size_t size, const char* text) = 0;

    // Names a class of objects, for example "internal_pointer". The id goes to InvalidateTransientObject2.
    virtual u32 RegisterTransientClass2(const char* name) = 0;

    // An object of that class is going away: drop every reference to it.
    virtual void InvalidateTransientObject2(u32 classID, void* object) = 0;

    // Compiles a query over an object. 0: it does not compile, and nothing is searched.
    virtual u32 CreateQuery(MvTypeDefinition* owner, const char* text, u32 extra) = 0;

    // Asks a query of one object. False, or result false: the object does not match.
    virtual bool EvaluateQuery(u32 query, _MvTypeVar& object, bool& result) = 0;

    // Frees a query.
    virtual void FreeQuery(u32 query) = 0;
};

// Where the toolkit asks for scripts, commands, values of sequences, queries, lines to print, places of elements, or tells
// of types and objects, the host may call back. In all other operations, those of HostDrawSink among them, what it asks of
// the toolkit does not happen: nothing is deleted, loaded, drawn or routed, and no script runs.
class HostInterface
{
public:
    virtual ~HostInterface() = default;

    // --- Scripts, commands and objects

    // The script whose command or atom is running; null if none. Borrowed.
    virtual HostScript* GetCurrentScript() = 0;

    // Registers a command. parse is always 1 and hidden always 0.
    virtual void AddCommand(const char* name, CommandHandler handler, int parse, int hidden) = 0;

    // Takes a command out again, while the toolkit shuts down.
    virtual void RemoveCommand(const char* name) = 0;

    // Runs one command line. The result is the command's; -1 if there is no such command. May run anything.
    virtual int ExecuteCommand(const char* text) = 0;

    // Expands the data sequences in text into output, at most size bytes with the end; both may be one buffer.
    // May run scripts. The result is not looked at.
    virtual int DataParse(const char* text, char* output, u32 size) = 0;

    // Registers a top-level script object such as UIElement.
    virtual void AddTopLevelObject(const char* name, TopLevelObjectHandler handler) = 0;

    // Takes it out again, while the toolkit shuts down.
    virtual void RemoveTopLevelObject(const char* name) = 0;

    // Registers a script type. The toolkit owns it and removes it before it dies.
    virtual void AddType(MvTypeDefinition* type) = 0;

    // Takes a script type out again; afterwards it must not be touched.
    virtual void RemoveType(MvTypeDefinition* type) = 0;

    // Finds one of the host's own types ("string", "int", "bool", ...). Null: members of that type have no value.
    virtual MvTypeDefinition* FindType(const char* name) = 0;

    // As InvalidateObject, for classes made by RegisterTransientClass.
    virtual void InvalidateTransientObject(u32 classID, void* object) = 0;

    // As RegisterObjectClass, for objects that live for one evaluation.
    virtual u32 RegisterTransientClass(const char* name) = 0;

    // Completes a command line. Returns the new text, valid until the next call, or null to leave it as it is.
    virtual const char* CompleteCommandLine(const char* text, bool shift) = 0;

    // Evaluates a numeric expression. False: it is none, and result is not looked at.
    virtual bool Calculate(const char* text, double& result) = 0;

    // Writes one line to the host's console, printf style. The toolkit's only way to say that something went wrong.
    virtual void PrintLine(const char* format, ...) = 0;

    // The second table. Asked once, by F1; null if the host has no script engine.
    virtual HostScriptInterface* GetScriptInterface() = 0;

    // --- Atoms: compiled pieces of script

    // Compiles "atom NAME(ARGUMENTS)\n{\nBODY\n}\n". length: bytes without the end. 0: the script is left out, with a
    // line.
    virtual u32 CompileAtom(const char* source, u32 length) = 0;

    // Frees an atom. It may be running; then it goes when it returns.
    virtual void ReleaseAtom(u32 atom) = 0;

    // Runs an atom and takes its text, at most size bytes with the end. unused is 0. self may be null.
    virtual int ExecuteAtomForText(
        u32 atom, int argc, char** argv, _MvTypeVar* self, u32 unused, char* output, u32 size) = 0;

    // Runs an atom. unused is 0. self is the script's "this"; null if it has none. argv are the arguments as texts.
    virtual int ExecuteAtom(u32 atom, u32 unused, int argc, char** argv, _MvTypeVar* self) = 0;

    // Finds a named atom; 0 if there is none. The host keeps owning it.
    virtual u32 FindAtom(const char* name) = 0;

    // --- Data sequences: texts with parts that are evaluated at each use

    // Parses a text once. keep: 1 if RetrieveOriginalText will be asked for. 0: the text shows nothing.
    virtual u32 PreParseSequence(const char* text, u32 keep) = 0;

    // The text as it was. False: buffer is not looked at.
    virtual bool RetrieveOriginalText(u32 sequence, char* buffer, u32 size) = 0;

    // Evaluates to text, at most size bytes with the end. May run scripts. False: buffer is not looked at.
    virtual bool RetrieveProcessedText(u32 sequence, char* buffer, u32 size) = 0;

    // Evaluates to a typed value. May run scripts. False: there is none.
    virtual bool RetrieveProcessedResult(u32 sequence, _MvTypeVar& result) = 0;

    // Frees a sequence; 0 is none.
    virtual void FreeSequence(u32 sequence) = 0;

    // --- References to the toolkit's objects

    // Names the class of the toolkit's objects; called once, with "Teskara".
    virtual u32 RegisterObjectClass(const char* name) = 0;

    // An object is going away: drop every script reference to it. Called while it is being destroyed.
    virtual void InvalidateObject(u32 classID, void* object) = 0;

    // Puts a type's objects into a class.
    virtual void SetTypeObjectClass(MvTypeDefinition* type, u32 classID) = 0;

    // --- Files

    // Finds an image by the host's own search. path has room for 4096 bytes. False: the name is used as it stands.
    virtual bool FindResourceFile(const char* name, char* path) = 0;

    // Finds an interface file. path has room for 4096 bytes, of which 511 are used. False: the load fails, with a line.
    virtual bool LocateFile(const char* name, char* path) = 0;

    // --- The rest

    // Opens the clipboard for the toolkit, which closes it through its platform table. False: nothing is copied.
    virtual bool OpenClipboard() = 0;

    // Keeps the position of an element that wants it kept and is being deleted. Ask its GetStoragePosition.
    virtual void SaveElementPosition(TeskElement* element) = 0;

    // Writes a kept position into the element's X, Y, Width and Height; nothing if there is none.
    virtual void LoadElementPosition(TeskElement* element) = 0;

    // Name of a key for scripts, at most size bytes with the end. False: the key's script does not run.
    virtual bool GetKeyName(u32 key, char* buffer, u32 size) = 0;

    // Name of the console that receives output now, at most size bytes with the end.
    virtual void GetOutputConsole(char* buffer, u32 size) = 0;

    // Selects the console that receives output.
    virtual void SetOutputConsole(const char* name) = 0;
};

class HostDrawSink
{
public:
    virtual ~HostDrawSink() = default;

    // Fills a rectangle. color: ARGB, alpha already final.
    virtual void DrawRect(const tagRECT& rect, u32 color) = 0;

    // Draws one image. False if it cannot; nothing follows from that.
    virtual bool DrawTexturedRect(const TeskDrawRecord& record) = 0;

    // Draws many, in order.
    virtual bool DrawTexturedRects(u32 count, const TeskDrawRecord* records) = 0;

    // Draws a line between the two points of the record's destination. width in pixels.
    virtual bool DrawLine(const TeskDrawRecord& record, u32 width) = 0;

    // Makes a font. height in pixels. An empty name is the host's choice. 0: texts in it are not drawn, and the host
    // is asked again at the next use.
    virtual u32 CreateFontResource(const char* name, u8 height, bool fixed, bool bold) = 0;

    // Frees a font.
    virtual void ReleaseFontResource(u32 font) = 0;

    // Draws one line of text in a box. color: ARGB, alpha already final. format: DrawTextLeft and its neighbours.
    // Returns the width drawn, in pixels.
    virtual u32 DrawText(u32 font, const char* text, const tagRECT& box, u32 color, u32 format) = 0;

    // Width of a text in pixels. If nothing is written, 12 is assumed.
    virtual void MeasureText(u32 font, const char* text, int& width) = 0;

    // The three widths (space before, glyph, space after) of a character; their sum is its advance.
    // False: 12 is assumed.
    virtual bool GetGlyphMetrics(u32 font, u32 first, u32 last, float* before, float* glyph, float* after) = 0;

    // Size of the surface in pixels. Asked in every frame. False: the screen keeps its size.
    virtual bool GetDisplaySize(int& width, int& height) = 0;

    // Loads an image. path: a file, or the host's own name; empty for a white image without a file. colorKey: ARGB to
    // treat as clear, 0 for none. 0: nothing is drawn, and the host is asked again at the next use.
    virtual u32 LoadTextureResource(const char* path, u32 colorKey) = 0;

    // Size of an image in pixels. False: it is not known.
    virtual bool GetTextureResourceSize(u32 texture, _Point2i& size) = 0;

    // Frees an image.
    virtual void ReleaseTextureResource(u32 texture) = 0;
};

// What a program hands to F1: one object with both tables.
class HostObject : public HostInterface, public HostDrawSink
{
};
