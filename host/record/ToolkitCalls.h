#pragma once

#include "host/Operation.h"
#include "teskara/core/HostInterface.h"
#include "teskara/script/MvTypeVar.h"

class TeskMapBlip;
class TeskScreen;

// Every call of the host into the toolkit that changes something, or that lets the toolkit call back, goes through here,
// so that a recording has it. Questions that do neither are asked of the toolkit itself.
namespace host::Toolkit {

// --- Life and frames

// Hands the host to the toolkit and starts it.
void Start(HostObject* host);
void Reset();
void Shutdown();
void Render();
void SetFrameTick(u32 tick);

// skin: its name; null for none.
bool LoadInterface(const char* file, bool replace, const char* skin);

// --- Input

bool OnMouseMove(_Point2i position);
bool OnLMouseDown();
bool OnLMouseUp();
bool OnRMouseDown();
bool OnRMouseUp();
bool OnMouseWheel(int offset);
bool OnKeyDown(u32 key);
bool OnKeyUp(u32 key);

// --- Elements, by id. One that does not exist, or is of another kind, is left alone.

bool ShowElement(const char* name, bool show);
void RaiseElement(u32 id);
void FocusElement(u32 id);
void AddToHistory(u32 commandEntry, const char* line);

// How many columns of text a console shows; 0 if that is not known.
u32 MeasureConsole(u32 console);
void PrintInConsole(u32 console, const char* text);
void MoveBlip(u32 map, u32 blip, _Point3f location);

// Whether the view of maps shows the blip from now on.
bool ViewBlip(u32 view, u32 blip);

// --- Scripts

// name: the one under which the toolkit registered the command.
int RunCommand(const char* name, CommandHandler handler, int argc, char** argv);
bool AskTopLevelObject(TopLevelObjectHandler handler, int argc, char** argv, _MvTypeVar& result);
int DispatchMember(const _MvTypeVar& object, const char* name, int argc, char** argv, _MvTypeVar& result);
int DispatchMethod(const _MvTypeVar& object, const char* name, int argc, char** argv);
int GetIndex(const _MvTypeVar& object, int argc, char** argv, _MvTypeVar& result);
bool ToText(const _MvTypeVar& object, char* buffer, u32 size);

// A script of the host's is going away.
void EndScript(const HostScript& script);

// --- Replay

// Makes a call anew, with the arguments that whoever stands on the boundary gives. False: it is no call into the toolkit.
bool Repeat(Operation operation);

} // namespace host::Toolkit
